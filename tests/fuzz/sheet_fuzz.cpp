// Any bytes as a sheet that is opened, and any text as one that is saved, with the codes of
// fingerings on it.
#include "core/codepage.h"
#include "diagrams/fingeringcode.h"
#include "diagrams/sheetfile.h"
#include "fuzz.h"

#include <cstring>

namespace {

// A text that the text box can hold: characters of any script, two bytes each.
QString AnyText(const QByteArray& bytes) {
    QString text(bytes.size() / 2, u'\0');
    std::memcpy(text.data(), bytes.constData(), static_cast<std::size_t>(text.size()) * 2);
    return text.replace(u'\r', u'\n').replace(QChar::Null, u' ');
}

// The digits of the marks after a chord's name; the first bytes say where they stand.
QString Code(const QByteArray& bytes) {
    BoardFingering board;
    const auto number = [&bytes](qsizetype i) { return i < bytes.size() ? bytes[i] % 21 : 0; };
    board.chordName = FromAnsi(bytes);
    if (number(6) > 0)
        board.barreFret = number(6);
    for (std::size_t row = 0; row < board.marks.size(); ++row)
        if (number(static_cast<qsizetype>(row)) > 0)
            board.marks[row] = number(static_cast<qsizetype>(row));
    return FingeringCode(board);
}

void SaveAndOpen(const QString& path, const QString& text) {
    if (Succeeds([&] { WriteSheet(path, text); }))
        Require(ReadSheet(path) == text, "what is saved is opened");
    else
        Require(!OutsideAnsi(text).isEmpty(), "only a character that is missing keeps from saving");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, std::size_t size) {
    static const Folder folder;
    const QByteArray bytes = Input(data, size).Rest();
    const QString path = folder.Write(QStringLiteral("sheet.txt"), bytes);
    Require(SheetSize(path) == bytes.size(), "a sheet is as long as its file");
    const QString opened = ReadSheet(path);
    Require(!opened.contains(u'\r') && !opened.contains(QChar::Null), "lines end by LF alone");
    SaveAndOpen(path, opened);
    Require(OutsideAnsi(opened).isEmpty(), "what was opened can be saved");
    SaveAndOpen(path, AnyText(bytes));

    const QString code = Code(bytes);
    Require(code.startsWith(FromAnsi(bytes) + QStringLiteral(" - ")), "a code names its chord");
    Require(code.size() >= bytes.size() + 9, "a code has a number for each of the six rows");
    return 0;
}
