// Which finger of the left hand holds which string.
#pragma once

#include "music/shape.h"

// Four fingers, each on one fret, in the order of the frets; on one fret the lower finger takes
// the thicker string. A finger may lie across several strings, also over muted and higher-stopped
// ones, never over one that sounds open or at a lower fret.
constexpr int fingerCount = 4;

// Between the lowest and the highest stopped fret lie at most so many steps.
constexpr int widestSpan = 4;

// A way to hold a shape, packed: three bits a string, the thick one in the highest, as players
// write them: 0 where nothing stops the string.
class FingerNumbers {
public:
    constexpr FingerNumbers() = default;
    constexpr explicit FingerNumbers(unsigned bits) : m_bits(bits) {}

    // string: 1 to 6.
    constexpr int Of(int string) const {
        return static_cast<int>(m_bits >> Place(string) & fingerMask);
    }
    constexpr void Set(int string, int finger) {
        m_bits = (m_bits & ~(fingerMask << Place(string))) | static_cast<unsigned>(finger)
                                                                 << Place(string);
    }
    constexpr unsigned Bits() const { return m_bits; }

    static constexpr int bitCount = 3 * stringCount;

private:
    static constexpr unsigned fingerMask = 7;
    static constexpr int Place(int string) { return 3 * (string - 1); }

    unsigned m_bits = 0;
};

// How the frets are usually held, open strings and mutes as they are; nothing where four fingers
// can't hold them. A shape without a stopped string needs no finger.
std::optional<FingerNumbers> FindFingers(const Shape& shape);

// The shape held by these fingers: their numbers, and a barre for each that lies across strings.
Shape HeldBy(Shape shape, FingerNumbers fingers);

// The shape held as it usually is; without fingers and barres where it can't be held.
Shape WithFingers(const Shape& shape);
