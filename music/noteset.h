// A set of the twelve notes, where neither order nor octave matters.
#pragma once

#include "core/notes.h"

#include <bit>
#include <cstdint>
#include <initializer_list>

// Which of the twelve notes: bit n is the note n semitones above C. Every number of semitones
// is taken, also below 0 or beyond the octave: it stands for its note.
class NoteSet {
public:
    constexpr NoteSet() = default;
    constexpr NoteSet(std::initializer_list<int> semitones) {
        for (const int semitone : semitones)
            Add(semitone);
    }

    // bits: the lowest twelve count.
    static constexpr NoteSet OfBits(unsigned bits) {
        NoteSet notes;
        notes.m_bits = static_cast<std::uint16_t>(bits & allBits);
        return notes;
    }

    constexpr void Add(int semitone) {
        m_bits = static_cast<std::uint16_t>(m_bits | Bit(semitone));
    }
    constexpr void Remove(int semitone) {
        m_bits = static_cast<std::uint16_t>(m_bits & ~Bit(semitone));
    }
    constexpr bool Contains(int semitone) const { return (m_bits & Bit(semitone)) != 0; }

    constexpr bool Empty() const { return m_bits == 0; }
    constexpr int Count() const { return std::popcount(m_bits); }
    constexpr unsigned Bits() const { return m_bits; }

    constexpr bool IsSubsetOf(NoteSet other) const { return (m_bits & ~other.m_bits) == 0; }

    // The same notes, each so many semitones higher.
    constexpr NoteSet Raised(int semitones) const {
        const int by = Reduced(semitones);
        return OfBits(static_cast<unsigned>(m_bits) << by | m_bits >> (notesPerOctave - by));
    }

    // The notes as intervals over a root.
    constexpr NoteSet Over(PitchClass root) const { return Raised(-root); }

    friend constexpr NoteSet operator|(NoteSet a, NoteSet b) { return OfBits(a.m_bits | b.m_bits); }
    friend constexpr NoteSet operator&(NoteSet a, NoteSet b) { return OfBits(a.m_bits & b.m_bits); }

    // The notes of a that are not in b.
    friend constexpr NoteSet operator-(NoteSet a, NoteSet b) {
        return OfBits(a.m_bits & ~static_cast<unsigned>(b.m_bits));
    }

    constexpr bool operator==(const NoteSet&) const = default;

private:
    static constexpr unsigned allBits = (1U << notesPerOctave) - 1;

    static constexpr int Reduced(int semitone) {
        return (semitone % notesPerOctave + notesPerOctave) % notesPerOctave;
    }
    static constexpr unsigned Bit(int semitone) { return 1U << Reduced(semitone); }

    std::uint16_t m_bits = 0;
};
