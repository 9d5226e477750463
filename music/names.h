// What a player calls the notes that sound together.
#pragma once

#include "core/phrase.h"
#include "music/nameindex.h"
#include "music/shape.h"
#include "music/strings.h"

#include <optional>
#include <span>
#include <vector>

// A chord of the catalogue: its root, and its type's entry (from 1).
struct CatalogueChord {
    PitchClass root = 0;
    int entry = 1;

    bool operator==(const CatalogueChord&) const = default;
};

struct PlayersName {
    QString text; // "C/E", "Bb7"; "E" for a single note, "C–E" for an interval.
    Phrase word;  // What an interval is called; empty for anything else.
    std::optional<CatalogueChord> chord; // Empty where the catalogue has no such chord.

    bool operator==(const PlayersName& other) const {
        return text == other.text && chord == other.chord;
    }
};

// "Cm/Eb": a chord of the type over a root and a bass, chord note or not.
QString ChordText(const NamedType& type, PitchClass root, PitchClass bass);

// The pitches (MIDI numbers) of the strings that sound; those that name no note are left out.
std::vector<int> SoundingPitches(const Shape& shape, const Tuning& tuning);

// Names over all types of a catalogue and some that it may lack.
class PlayersNames {
public:
    // Reads the catalogue once; it must outlive the names and stay as it is.
    explicit PlayersNames(const TextTable& chordTypes);

    // The names of the pitches that are worth saying, best first; none where nothing sounds or
    // nothing fits. The lowest pitch is the bass. A chosen chord that has every note that sounds
    // comes first.
    std::vector<PlayersName> Of(std::span<const int> pitches,
                                std::optional<CatalogueChord> chosen = std::nullopt) const;

private:
    const TextTable& m_chordTypes;
    NameIndex m_index;
};
