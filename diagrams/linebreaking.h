// Texts and lyrics broken into lines that fit a width.
#pragma once

#include "diagrams/sheetdocument.h"

#include <QStringList>

using TextWidth = std::function<double(TextStyle style, const QString& text)>;

// The text in pieces that are no wider, parted between words where that is possible; one empty
// piece for an empty text.
QStringList BreakText(const QString& text, TextStyle style, double width,
                      const TextWidth& textWidth);

// A text at its distance from the beginning of its line.
struct LinePiece {
    double x = 0;
    TextStyle style = TextStyle::Lyrics;
    QString text;

    bool operator==(const LinePiece&) const = default;
};

// Lyrics with their chords line by line: a chord begins where its syllable does, and no two
// chords run into each other.
std::vector<std::vector<LinePiece>> BreakLyrics(const std::vector<LyricPart>& parts, double width,
                                                const TextWidth& textWidth);
