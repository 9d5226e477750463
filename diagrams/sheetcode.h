// Fingering codes, read back from the sheet's text.
#pragma once

#include "music/shape.h"

#include <QStringView>

#include <array>
#include <optional>
#include <vector>

// A stretch of a text.
struct TextSpan {
    qsizetype start = 0;
    qsizetype length = 0;

    qsizetype End() const { return start + length; }
    bool operator==(const TextSpan&) const = default;
};

// "Am - Б5/000220": a name, the fret of a barre, and a number for each row of the fretboard.
struct SheetCode {
    TextSpan place; // From the name, or the hyphen of a nameless code, to the last number.
    QString name;   // Without blanks around it.
    std::optional<int> barreFret;           // 1 to 15.
    std::array<int, stringCount> numbers{}; // -15 to 20, the bottom row first; with a barre,
                                            // counted from it.
    bool operator==(const SheetCode&) const = default;
};

// The codes of a line, in their order. A name reaches back to the code before it or to the
// beginning of the line. The numbers stand without separators; of several ways to part them the
// one whose stopped frets lie closest together, then the one with its two-digit numbers further
// to the right. What cannot be parted is no code.
std::vector<SheetCode> CodesOfLine(QStringView line);

// The shape of a code on strings that lie so. Nothing is muted: 0 is an open string or, with a
// barre, one under it. A mark off the board leaves its string open.
Shape ShapeOfCode(const SheetCode& code, bool thinStringAtBottom);
