#include "music/handtable.h"

#include "music/voicingcost.h"

#include <algorithm>

namespace {

// What is the same at every place of the neck is kept once: the shape over its lowest fret, and
// how near the nut it lies, which matters beside open strings alone.
constexpr int placesNearTheNut = 4;
constexpr std::size_t placeCount = placesNearTheNut + 1;
constexpr std::size_t stringStates = 2 + widestSpan + 1; // Muted, open or stopped.
constexpr std::size_t relativeShapes =
    stringStates * stringStates * stringStates * stringStates * stringStates * stringStates;

// A hand packed into one word, so that the table stays small: the fingers, above them the cost
// with an offset that keeps it positive; zero where nobody has asked yet.
using PackedHand = std::uint32_t;
constexpr int costOffset = 1 << (31 - FingerNumbers::bitCount - 1);

std::array<PackedHand, relativeShapes * placeCount> hands; // Filled as it is asked for.

std::size_t IndexOf(PackedFrets frets) {
    int lowest = highestVoicingFret + 1;
    bool hasOpen = false;
    for (int string = 1; string <= stringCount; ++string) {
        const int fret = frets.Of(string);
        hasOpen = hasOpen || fret == 0;
        if (fret > 0)
            lowest = std::min(lowest, fret);
    }
    std::size_t index = 0;
    for (int string = 1; string <= stringCount; ++string) {
        const int fret = frets.Of(string);
        const int state = fret > 0 ? fret - lowest + 2 : fret + 1;
        index = index * stringStates + static_cast<std::size_t>(state);
    }
    const int place = hasOpen ? std::min(lowest - 1, placesNearTheNut) : placesNearTheNut;
    return index * placeCount + static_cast<std::size_t>(place);
}

PackedHand Pack(const HeldHand& hand) {
    return hand.fingers.Bits() | static_cast<PackedHand>(hand.cost + costOffset)
                                     << FingerNumbers::bitCount;
}

HeldHand Unpack(PackedHand hand) {
    constexpr PackedHand fingers = (1U << FingerNumbers::bitCount) - 1;
    return {FingerNumbers(hand & fingers),
            static_cast<int>(hand >> FingerNumbers::bitCount) - costOffset};
}

} // namespace

HeldHand FindHand(PackedFrets frets) {
    PackedHand& hand = hands[IndexOf(frets)];
    if (hand == 0) {
        const Shape shape = frets.ToShape();
        const FingerNumbers fingers = FindFingers(shape).value_or(FingerNumbers());
        hand = Pack({fingers, HandCost(HeldBy(shape, fingers))});
    }
    return Unpack(hand);
}
