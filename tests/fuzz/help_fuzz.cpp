// Any bytes as help.dat: nothing is lost, no line is too long for the text box, a chapter is
// looked for within the text and words are found where they stand. A tab stands for a third of the
// longest line, so that short inputs reach it.
#include "core/codepage.h"
#include "fuzz.h"
#include "info/helpchapters.h"
#include "info/helptext.h"
#include "info/wordsearch.h"

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

    const auto lines = fitting.count(u'\n') + fitting.count(u'\r') + 1;
    for (const auto tongue : {Tongue::Russian, Tongue::English})
        for (const auto chapter : {std::optional<Chapter>(), std::optional(Chapter::Chords)}) {
            const int line = LineOf(fitting, chapter, tongue);
            Require(line >= 0 && line < lines, "a chapter begins in the text");
        }

    const QString folded = Folded(fitting);
    Require(folded.size() == fitting.size(), "folding moves nothing");
    const QString words = fitting.left(3);
    const auto hits = FindWords(folded, words);
    Require(hits.empty() == words.isEmpty(), "a text holds its own beginning");
    for (const int hit : hits)
        Require(folded.mid(hit, words.size()) == Folded(words), "a hit is one");
    return 0;
}
