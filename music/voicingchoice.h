// Choosing among a chord's voicings: what a player asks of them, and in which order.
#pragma once

#include "music/voicings.h"

// A chord and the strings that it is played on.
struct ChordOnStrings {
    NoteSet notes;
    PitchClass root = 0;
    Tuning tuning;

    bool operator==(const ChordOnStrings&) const = default;
};

enum class ChordDegree { Root, Third, Fifth };

// What does not matter is left empty.
struct VoicingFilter {
    int fromFret = 1; // The lowest stopped fret; a shape of open strings alone counts as 1.
    int toFret = highestVoicingFret;
    std::optional<bool> openStrings; // Some, or none.
    bool noBarre = false;
    int mostFingers = fingerCount;
    std::optional<ChordDegree> bass;
    bool complete = false;                                 // Every note of the chord sounds.
    std::array<std::optional<bool>, stringCount> sounds{}; // By string, the thin one first.

    bool operator==(const VoicingFilter&) const = default;
};

enum class VoicingOrder { Usual, Position, Bass, Movement };

// How the hand gets from one shape to another: the fingers that both use move by frets and by
// strings, the others are lifted or set anew.
struct HandMovement {
    int frets = 0;
    int strings = 0;
    int lifted = 0;

    int Total() const { return frets + strings + lifted; }
    bool operator==(const HandMovement&) const = default;
};

HandMovement MovementBetween(const Shape& from, const Shape& to);

// Puts the voicings over this bass before the others; within both they keep their order.
void PutBassFirst(std::vector<Voicing>& voicings, const ChordOnStrings& chord, PitchClass bass);

// Those of the voicings that pass, in the order asked for; what is equal in it keeps its order.
// neck: the shape that the hand holds now.
std::vector<Voicing> ChooseVoicings(const std::vector<Voicing>& voicings,
                                    const ChordOnStrings& chord, const VoicingFilter& filter,
                                    VoicingOrder order, const Shape& neck);
