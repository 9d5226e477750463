// Laying the notes of a chord onto the six strings. Strings are counted by row of the
// fretboard: row 0 is the lowest on the picture.
#pragma once

#include "core/mdlmain.h"
#include "core/notes.h"

#include <QString>

#include <array>
#include <optional>
#include <vector>

// A finger laid across the rows 0 to lastRow at a fret.
struct Barre {
    int fret; // 1 is the fret next to the nut.
    int lastRow;

    bool Covers(int row) const { return row <= lastRow; }
    bool operator==(const Barre&) const = default;
};

// The notes that the rows sound. Empty for a string whose open note is none of the twelve
// names: it cannot be fingered.
using RowNotes = std::array<std::optional<PitchClass>, stringCount>;

RowNotes OpenNotes(const SixTexts& stringNotes);

// What the rows sound with no finger on them: the open notes or, with a barre, the notes at
// its fret on all six strings, also those that it does not cover.
RowNotes StartingNotes(const RowNotes& open, std::optional<Barre> barre);

// One row of a fingering.
struct RowFingering {
    std::optional<PitchClass> note; // What the row sounds.
    std::optional<int> mark;        // The fret of the finger mark; empty where none stands.
    std::optional<int> fret;        // The fret chosen, 0 the start; empty for no note at all.
};

using Fingering = std::array<RowFingering, stringCount>;

// The lowest fret that sounds a chord note on each string. Under the barre it is counted from
// the nut; elsewhere from the starting note, which with a barre is the note at its fret.
// Under a barre at fret 9 or higher nothing may be found below the search's bound, fret 20.
// Every name recurs within an octave, so twelve frets always hold a chord note.
Fingering PlaceFingers(const RowNotes& open, const std::vector<int>& markedKeys,
                       std::optional<Barre> barre);

// The next fret above current that sounds a chord note within an octave of the open string,
// a barre not regarded; past the last such fret, the automatic one.
int NextFret(PitchClass open, const std::vector<int>& markedKeys, int current, int automatic);

// The chord notes that no string sounds.
struct MissingNotes {
    QString text;             // Per marked key its name, or nothing if it sounds, and a blank.
    bool rootMissing = false; // The lowest marked note is among them.

    bool operator==(const MissingNotes&) const = default;
};

MissingNotes FindMissingNotes(const std::vector<int>& markedKeys, const RowNotes& sounding);
