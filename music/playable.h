// Every shape of a chord that a hand can hold.
#pragma once

#include "music/noteset.h"
#include "music/shape.h"
#include "music/strings.h"

#include <vector>

// The frets of a voicing, packed: five bits a string, the thick one in the highest, 0 for muted
// and from there on the fret and one. Ascending numbers are ascending frets from the thick string.
class PackedFrets {
public:
    constexpr PackedFrets() = default;
    constexpr explicit PackedFrets(std::uint32_t bits) : m_bits(bits) {}

    // string: 1 to 6.
    constexpr int Of(int string) const {
        return static_cast<int>(m_bits >> Place(string) & mask) + Shape::muted;
    }
    constexpr void Set(int string, int fret) {
        m_bits = (m_bits & ~(mask << Place(string))) |
                 static_cast<std::uint32_t>(fret - Shape::muted) << Place(string);
    }
    constexpr std::uint32_t Bits() const { return m_bits; }

    // The bits of the strings that both sound, but at different frets.
    constexpr std::uint32_t DifferWhereBothSound(PackedFrets other) const {
        return (m_bits ^ other.m_bits) & Sounding() & other.Sounding();
    }

    // All bits of each string that sounds.
    constexpr std::uint32_t Sounding() const {
        const std::uint32_t any =
            (m_bits | m_bits >> 1 | m_bits >> 2 | m_bits >> 3 | m_bits >> 4) & lowestOfEach;
        return any * mask;
    }

    Shape ToShape() const;

    static constexpr int bitCount = 5 * stringCount;

private:
    static constexpr std::uint32_t mask = 31;
    static constexpr std::uint32_t lowestOfEach = 0b00001'00001'00001'00001'00001'00001;
    static constexpr int Place(int string) { return 5 * (string - 1); }

    std::uint32_t m_bits = 0;
};

constexpr int highestVoicingFret = 15;

// What a voicing may do.
struct VoicingRules {
    int omitted = 0;      // Notes left out beyond those that any player leaves out.
    int span = 3;         // Steps between the lowest and the highest stopped fret.
    int leastStrings = 3; // That sound.
    int innerMutes = 2;   // Muted strings between the outermost sounding ones.
};

// The notes of a chord that players leave out where it has enough others, as intervals over the
// root: the perfect fifth, the ninth of a large chord, the third of an eleventh.
NoteSet OmittableNotes(NoteSet intervals);

// Every voicing, each once, from the thick string on by ascending frets, muted strings first.
// intervals: the chord's notes over its root; without the root nothing plays it. Strings without
// a note stay muted.
std::vector<PackedFrets> PlayableVoicings(NoteSet intervals, PitchClass root, const Tuning& tuning,
                                          const VoicingRules& rules);
