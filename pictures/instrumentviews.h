// What the two pictures and the labels around them show, as plain values. Rows count from the
// lowest of the fretboard, 0.
#pragma once

#include "music/fingering.h"
#include "music/noteset.h"
#include "music/pianokeys.h"
#include "pictures/fretboardlayout.h"
#include "pictures/keyboardlayout.h"

#include <bitset>

// Where a row and a fret meet; fret 0 lies off the board.
struct BoardPlace {
    int row = 0;
    int fret = 0;

    bool operator==(const BoardPlace&) const = default;
};

// Which notes have a ring wherever they lie on the neck, frets 1 to 15 of all strings.
struct RingsView {
    RowNotes open;                  // What the strings sound open.
    NoteSet notes;                  // None while the rings are hidden.
    std::optional<PitchClass> root; // It has another shape.

    bool operator==(const RingsView&) const = default;
};

struct FretboardView {
    FretboardLayout layout;
    std::array<std::optional<int>, stringCount> marks; // The fret of each finger mark.
    std::array<int, stringCount> fingers{};            // That stop the rows; 0 where none is known.
    std::array<bool, stringCount> muted{};
    std::array<bool, stringCount> roots{}; // Marks that sound the root.
    std::optional<int> chosenRow;          // That the next search of a fret is for.
    std::optional<Barre> barre;
    RingsView rings;
    std::bitset<stringCount> soundingRows;
    std::optional<BoardPlace> pointed; // Under the pointer...
    QString pointedNote;               // ...and the note that a click would give.
    bool thinStringAtBottom = true;

    bool operator==(const FretboardView&) const = default;
};

struct KeyboardView {
    KeyboardLayout layout;
    std::array<Rgb, keyCount> fills{};
    std::optional<int> soundingKey;

    bool operator==(const KeyboardView&) const = default;
};

// What stands beside a string at the nut.
enum class NutSign { None, Open, Muted };

// The signs at the nut, the fret numbers and the labels at the rows' ends.
struct LabelsView {
    FretboardLayout layout; // They stand where the board lies.
    SixTexts notes;         // What each row sounds.
    SixTexts soundNumbers;  // Of its open string.
    std::array<bool, stringCount> muted{};
    std::array<NutSign, stringCount> nutSigns{};
    std::optional<int> litFret; // 1 for the first; under the pointer.
    std::optional<int> litRow;
};
