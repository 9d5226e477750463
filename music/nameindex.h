// The chord types that a player's name may have, found by the notes that sound.
#pragma once

#include "core/texttable.h"
#include "music/noteset.h"

#include <QString>

#include <span>
#include <vector>

struct NamedType {
    QString suffix;
    NoteSet notes; // As intervals over the root.
    int cost = 0;
    int entry = 0; // Of the catalogue, from 1; 0 where it lacks the type.
};

// An entry of the catalogue; its steps are folded into the octave.
NamedType NamedTypeOf(const TextTable& chordTypes, int entry);

// All types of a catalogue and the known ones that it lacks. Of several types of a data file with
// the same notes the last counts, as in recognition; a known suffix counts besides.
class NameIndex {
public:
    // Reads the catalogue once.
    explicit NameIndex(const TextTable& chordTypes);
    NameIndex(const NameIndex&) = delete; // What fits points to its types.
    NameIndex& operator=(const NameIndex&) = delete;

    struct Fit {
        NoteSet sounding; // What sounds of the type.
        const NamedType* type = nullptr;
        int cost = 0; // Of the type and of what is left out.
    };

    // The types of which exactly these notes may sound, as intervals over the root.
    std::span<const Fit> Fits(NoteSet sounding) const;

private:
    void ReadTypes(const TextTable& chordTypes);
    void AddFits(const NamedType& type);

    std::vector<NamedType> m_types;
    std::vector<Fit> m_fits; // By what sounds.
};
