// The lines of ChordPro: directives in braces, chord definitions, chords in brackets amid lyrics.
#pragma once

#include "diagrams/sheetcode.h"

#include <QString>

// "{title: Hey}": its name in small letters and in its long form, and what stands behind it.
struct Directive {
    QString name;
    QString value; // Empty where there is none.

    bool operator==(const Directive&) const = default;
};

// Nothing for a line that is not wholly in braces.
std::optional<Directive> ReadDirective(QStringView line);

struct ChordDefinition {
    QString name;
    Shape shape;

    bool operator==(const ChordDefinition&) const = default;
};

// The value of {define}: "Am base-fret 1 frets x 0 2 2 1 0 fingers 0 0 2 3 1 0", string 6 first.
// base-fret may be missing and is 1 then, fingers may be missing; x, X, N and -1 are mutes. One
// finger on several strings of a fret is a barre. Nothing where a number makes no sense or there
// are not six.
std::optional<ChordDefinition> ReadDefinition(QStringView value);

// The whole line with its braces, fingers included. A name is written without what would end it.
QString WriteDefinition(const ChordDefinition& definition);

// A piece of a lyrics line with the chord that is played when it begins.
struct LyricPart {
    QString chord;       // Empty at the beginning of a line that begins without one.
    TextSpan chordPlace; // In the line, with its brackets.
    QString text;

    bool operator==(const LyricPart&) const = default;
};

// Empty for a line without a chord. A bracket that is never closed, or that holds nothing, is
// text.
std::vector<LyricPart> ReadLyrics(QStringView line);
