// What somebody may mean who types a chord: "m7", "minor", "Am7", "c#m7b5/g", "Bb".
#pragma once

#include "core/notes.h"
#include "core/texttable.h"

#include <QString>

#include <optional>
#include <vector>

struct TypedChord {
    QString text;  // As it is offered: the type's name, or the chord's as players write it.
    int entry = 1; // The type's, from 1.
    std::optional<PitchClass> root; // Empty where a type alone was typed.
    std::optional<PitchClass> bass;

    bool operator==(const TypedChord&) const = default;
};

// The types whose name or one of whose alternative names begins with the text, and the chords
// whose root, suffix and bass do, the likeliest first; letters in either case, but M is major
// and m minor. None for an empty text.
std::vector<TypedChord> MatchTypedChord(const TextTable& chordTypes, const QString& typed,
                                        std::size_t most);
