// The chord qualities that the program knows: 50 of its own, and those of chords.dat.
#pragma once

#include "core/texttable.h"

// The fields of an entry, and the lines of a record of chords.dat in the same order.
namespace ChordType {
enum Field {
    Name = 1,  // As the list shows it.
    AltNames,  // Other notations ("m, min, -, minor"), or a description.
    Suffix,    // Written behind the root: "m7" makes Cm7.
    Structure, // A digit a step, in semitones from the root upwards: "43" is a major triad.
    Reserved,  // Always empty.
};
} // namespace ChordType

// The built-in chord types. Tones above the octave are folded into it, so "9" is "2233".
TextTable BuiltInChordTypes();
