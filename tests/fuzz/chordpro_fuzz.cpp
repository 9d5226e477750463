// Any bytes as a song that is imported, shown on pages and exported again.
#include "diagrams/chordprofile.h"
#include "diagrams/sheetlines.h"
#include "diagrams/sheetpages.h"
#include "fuzz.h"

namespace {

bool Within(TextSpan span, const QString& text) {
    return span.start >= 0 && span.length > 0 && span.End() <= text.size();
}

void CheckLines(const QString& text) {
    qsizetype length = 0;
    for (const SheetLine& line : SheetLines(text)) {
        Require(line.start == length, "lines follow each other");
        length += line.text.size() + 1;
        qsizetype end = 0;
        for (const SheetCode& code : line.codes) {
            Require(code.place.start >= end, "codes follow each other");
            end = code.place.End();
            Require(end <= line.text.size(), "a code lies in its line");
            for (const bool thinStringAtBottom : {false, true})
                for (const int fret : ShapeOfCode(code, thinStringAtBottom).frets)
                    Require(fret >= 0 && fret <= 35, "a code's frets lie on a neck");
        }
        for (const LyricPart& part : ReadLyrics(line.text))
            Require(part.chordPlace.End() <= line.text.size(), "a chord lies in its line");
    }
    Require(length == text.size() + 1, "the lines are the text");
}

void CheckPages(const QString& text) {
    const PageLook look{{11900, 16840}, false, [](TextStyle, const QString& shown) {
                            return 100.0 * static_cast<double>(shown.size());
                        }};
    const auto pages = LayOutSheet(ReadSheetText(text, {}), look);
    Require(!pages.empty(), "there is a page");
    for (const SheetPage& page : pages)
        for (const PlacedDiagram& placed : page.diagrams) {
            Require(Within(placed.source, text), "a diagram stands for a piece of the text");
            Require(QRectF(QPointF(0, 0), look.size).contains(placed.place),
                    "a diagram lies on its page");
        }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, std::size_t size) {
    static const Folder folder;
    const QString path = folder.Write(QStringLiteral("song.cho"), Input(data, size).Rest());
    QString text;
    if (!Succeeds([&] { text = ReadChordProFile(path); }))
        return 0;
    Require(!text.contains(u'\r'), "lines end by LF alone");
    CheckLines(text);
    CheckPages(text);
    const QString written = ChordProText(text, {});
    for (const SheetLine& line : SheetLines(written))
        Require(line.codes.empty() || line.text.contains(u'{'), "no code is left");
    WriteChordProFile(path, written);
    if (!written.contains(QChar::ReplacementCharacter) && written.isValidUtf16())
        Require(ReadChordProFile(path) == written, "what is exported is imported");
    return 0;
}
