// Any bytes as a profile file: what is written is read back, and all else in the file stays.
// An input is a section, a key and a value, a line each, and the file.
#include "core/codepage.h"
#include "core/profile.h"
#include "fuzz.h"

#include <algorithm>

namespace {

bool Holds(QStringView text, QStringView characters) {
    return std::any_of(text.begin(), text.end(),
                       [=](QChar character) { return characters.contains(character); });
}

// Whether the format can give this value back: a reader takes away the blanks around it and
// one pair of quotes.
bool Lasts(const QString& value) {
    return value == value.trimmed() && value.size() <= 255 && !Holds(value, u"\r\n") &&
           !value.startsWith(u'"') && !value.startsWith(u'\'');
}

// Whether the name can stand before "=" on a line of its own.
bool IsKey(const QString& key) {
    return !Holds(key, u"\r\n=") && !key.trimmed().startsWith(u'[');
}

// The one line, or none, that differs between two files, without its end.
QByteArray ChangedLine(const QByteArray& before, const QByteArray& after) {
    const auto [difference, unused] =
        std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    const qsizetype start = difference - before.begin();
    const qsizetype most = std::min(before.size(), after.size()) - start;
    qsizetype same = 0;
    while (same < most && before[before.size() - 1 - same] == after[after.size() - 1 - same])
        ++same;
    QByteArray changed = before.sliced(start, before.size() - start - same);
    while (changed.endsWith('\n') || changed.endsWith('\r'))
        changed.chop(1);
    return changed;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, std::size_t size) {
    static const Folder folder;
    const QString name = QStringLiteral("tonvik.ini");
    Input input(data, size);
    const QString section = FromAnsi(input.Line());
    const QString key = FromAnsi(input.Line());
    const QString value = FromAnsi(input.Line());
    const QByteArray before = input.Rest();
    const QString path = folder.Write(name, before);

    const QString missing(256, u'-');
    const QString old = ReadIni(path, section, key, missing);
    Require(old == missing || (old.size() <= 255 && !Holds(old, u"\r\n")), "a value is short");
    Require(ProfileFile::Read(path).ToBytes() == before, "a file that is only read stays");

    if (!Lasts(value) || !IsKey(key) || Holds(section, u"\r\n"))
        return 0;
    WriteIni(path, section, key, value);
    Require(ReadIni(path, section, key, missing) == value, "what is written is read");
    const QByteArray changed = ChangedLine(before, folder.Read(name));
    Require(!changed.contains('\n') && !changed.contains('\r'), "only one line changes");
    Require(old != missing || changed.isEmpty(), "a new key takes nothing away");
    return 0;
}
