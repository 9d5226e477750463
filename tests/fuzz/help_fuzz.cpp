// Any bytes as help.dat: nothing is lost, and no line is too long for the text box. A tab
// stands for a third of the longest line, so that short inputs reach it.
#include "core/codepage.h"
#include "fuzz.h"
#include "info/helptext.h"

namespace {

QString WithoutLineEnds(QString text) {
    return text.remove(u'\n').remove(u'\r');
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, std::size_t size) {
    static const Folder folder;
    static const QByteArray third(longestHelpLine / 3, '-');
    const QByteArray bytes = Input(data, size).Rest().left(50).replace('\t', third);
    folder.Write(QStringLiteral("help.dat"), bytes);
    const QString text = ReadHelp(folder.Path());
    Require(ToAnsi(text) == bytes, "the file is read whole");

    const QString fitting = FitForTextBox(text, Tongue::Russian);
    Require(WithoutLineEnds(fitting) == WithoutLineEnds(text), "nothing is lost");
    bool tooLong = false;
    for (const QStringView line : QString(text).replace(u'\r', u'\n').split(u'\n'))
        tooLong = tooLong || line.size() > longestHelpLine;
    Require(tooLong != (fitting == text), "only a text with a line too long is changed");
    for (const QStringView line : QString(fitting).replace(u'\r', u'\n').split(u'\n'))
        Require(line.size() <= longestHelpLine, "no line is too long");
    return 0;
}
