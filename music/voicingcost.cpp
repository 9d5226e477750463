#include "music/voicingcost.h"

#include "music/fingernumbers.h"

#include <algorithm>
#include <bit>
#include <limits>

namespace {

namespace Cost {
// The place on the neck: each fret of the lowest stopped one above the first.
constexpr int eachFret = 5;
constexpr int eachFretBesideOpen = 11; // On top, where open strings ring beside it.

// Open strings are either the point of a shape or out of place in it.
constexpr int anyOpen = 28;
constexpr int eachOpen = -2;
constexpr int openBetween = 3;    // The fingers on both sides of it have to arch.
constexpr int openPosition = -18; // No finger stands beyond the third fret.
constexpr int openPositionEnd = 3;

// The hand.
constexpr int eachThirtyMillimetres = 8; // From the lowest to the highest stop.
constexpr int eachStretch = 9;           // A fret between two fingers beyond one for each.
constexpr int eachFinger = -2;           // Many fingers make a full chord,
constexpr int allFingers = 7;            // but the last one is the hardest to place.
constexpr int indexBarre = 6;
constexpr int otherBarre = 33;

// Muted strings: those below the bass are simply not struck.
constexpr int aboveTheTop = 10;
constexpr int besideTheBass = 18; // The finger on the bass touches it.
constexpr int innerMute = 27;
constexpr int shell = -17; // Beside the bass and string 1 alone: the grip of rhythm guitarists.
constexpr int threeStrings = 53;

// What the lowest note is when it isn't the root.
constexpr int fifthBelow = 58;
constexpr int thirdBelow = 70;
constexpr int otherBelow = 72;
constexpr int muddy = 34; // A whole tone or less between the two lowest notes.

// What is left out, and what is doubled: the plain notes are, the colourful ones are not.
constexpr int eachOmitted = 9;
constexpr int fifthOmitted = -5; // Less, as nobody misses it.
constexpr int rootDoubled = -6;
constexpr int thirdDoubled = 0;
constexpr int fifthDoubled = -5;
constexpr int otherDoubled = 3;
constexpr int unison = 15;

constexpr int stoppedForNothing = 3; // The open string would sound a chord note as well.
} // namespace Cost

constexpr int minorThird = 3;
constexpr int majorThird = 4;
constexpr int fifth = 7;

// The whole number nearest to one that is not negative, while compiling.
constexpr int Rounded(double number) {
    const int below = static_cast<int>(number);
    return number - below < 0.5 ? below : below + 1;
}

// The cost of the reach by the lowest stopped fret and the steps to the highest one, on a neck
// with a scale of 648 mm, each of whose frets shortens the string by the same part.
constexpr std::size_t fretsOnNeck = highestVoicingFret + 1;
constexpr auto reachCost = [] {
    constexpr double scale = 648;
    constexpr double semitone = 0.94387431268169353; // The twelfth root of one half.
    std::array<double, fretsOnNeck> rest{scale};
    for (std::size_t fret = 1; fret < fretsOnNeck; ++fret)
        rest[fret] = rest[fret - 1] * semitone;
    std::array<std::array<int, widestSpan + 1>, fretsOnNeck> costs{};
    for (std::size_t lowest = 1; lowest < fretsOnNeck; ++lowest)
        for (std::size_t span = 0; span <= widestSpan && lowest + span < fretsOnNeck; ++span)
            costs[lowest][span] =
                Rounded((rest[lowest] - rest[lowest + span]) * Cost::eachThirtyMillimetres / 30);
    return costs;
}();

// The cost of the muted strings by the sounding ones, bit n the string n + 1.
constexpr unsigned setsOfStrings = 1U << stringCount;
constexpr auto muteCost = [] {
    std::array<int, setsOfStrings> costs{};
    for (unsigned sounding = 1; sounding < setsOfStrings; ++sounding) {
        const int top = std::countr_zero(sounding);
        const int bass = static_cast<int>(std::bit_width(sounding)) - 1;
        int& cost = costs[sounding];
        cost = top * Cost::aboveTheTop;
        for (int string = top + 1; string < bass; ++string)
            if ((sounding >> string & 1) == 0)
                cost += string == bass - 1 ? Cost::besideTheBass : Cost::innerMute;
        if (top == 1 && bass > 1 && (sounding >> (bass - 1) & 1) == 0)
            cost += Cost::shell;
        if (std::popcount(sounding) <= 3)
            cost += Cost::threeStrings;
    }
    return costs;
}();

constexpr auto doubledCost = [] {
    std::array<int, notesPerOctave> costs{};
    costs.fill(Cost::otherDoubled);
    costs[0] = Cost::rootDoubled;
    costs[minorThird] = costs[majorThird] = Cost::thirdDoubled;
    costs[fifth] = Cost::fifthDoubled;
    return costs;
}();

int BassCost(int interval) {
    switch (interval) {
    case 0:
        return 0;
    case fifth:
        return Cost::fifthBelow;
    case minorThird:
    case majorThird:
        return Cost::thirdBelow;
    default:
        return Cost::otherBelow;
    }
}

// The strings between the outermost of these, as bits.
constexpr unsigned Between(unsigned strings) {
    return (std::bit_floor(strings) - 1) & ~((strings & (~strings + 1)) * 2 - 1);
}

int OpenCost(unsigned open, unsigned stopped, int highestFret) {
    if (open == 0)
        return 0;
    int cost = Cost::anyOpen + Cost::eachOpen * std::popcount(open);
    if (highestFret <= Cost::openPositionEnd)
        cost += Cost::openPosition;
    if (stopped != 0)
        cost += Cost::openBetween * std::popcount(open & Between(stopped));
    return cost;
}

int PlaceCost(int lowest, int highest, bool hasOpen) {
    if (lowest == 0)
        return 0;
    const int eachFret = Cost::eachFret + (hasOpen ? Cost::eachFretBesideOpen : 0);
    return eachFret * (lowest - 1) +
           reachCost[static_cast<std::size_t>(lowest)][static_cast<std::size_t>(highest - lowest)];
}

int OmittedCost(NoteSet omitted) {
    return Cost::eachOmitted * omitted.Count() + (omitted.Contains(fifth) ? Cost::fifthOmitted : 0);
}

} // namespace

int HandCost(const Shape& held) {
    std::array<int, fingerCount + 1> fretOf{};
    for (int string = 1; string <= stringCount; ++string)
        if (held.Finger(string) > 0)
            fretOf[static_cast<std::size_t>(held.Finger(string))] = held.Fret(string);
    int cost = 0;
    int used = 0;
    int last = 0;
    for (int finger = 1; finger <= fingerCount; ++finger) {
        const int fret = fretOf[static_cast<std::size_t>(finger)];
        if (fret == 0)
            continue;
        if (used > 0) {
            const int frets = fret - fretOf[static_cast<std::size_t>(last)];
            cost += Cost::eachStretch * std::max(0, frets - (finger - last));
        }
        ++used;
        last = finger;
    }
    cost += Cost::eachFinger * used + (used == fingerCount ? Cost::allFingers : 0);
    for (const ShapeBarre& barre : held.barres)
        cost += barre.finger == 1 ? Cost::indexBarre : Cost::otherBarre;
    return cost;
}

VoicingCost::VoicingCost(NoteSet intervals, PitchClass root, const Tuning& tuning)
    : m_intervals(intervals) {
    for (std::size_t string = 0; string < stringCount; ++string)
        if (const auto& open = tuning[string])
            m_strings[string] = {open->midi, (open->note - root + notesPerOctave) % notesPerOctave,
                                 intervals.Contains(open->note - root)};
}

int VoicingCost::Of(PackedFrets frets) const {
    int cost = 0;
    int lowestFret = 0;
    int highestFret = 0;
    unsigned open = 0; // Strings as bits.
    unsigned sounding = 0;
    NoteSet notes;
    int bass = std::numeric_limits<int>::max(); // The two lowest pitches.
    int second = bass;
    int bassInterval = 0;
    std::array<int, stringCount> pitches{};
    std::size_t pitchCount = 0;
    for (int number = 1; number <= stringCount; ++number) {
        const int fret = frets.Of(number);
        if (fret == Shape::muted)
            continue;
        const String& string = m_strings[static_cast<std::size_t>(number - 1)];
        sounding |= 1U << (number - 1);
        if (fret == 0) {
            open |= 1U << (number - 1);
        } else {
            lowestFret = lowestFret == 0 ? fret : std::min(lowestFret, fret);
            highestFret = std::max(highestFret, fret);
            cost += string.openFits ? Cost::stoppedForNothing : 0;
        }
        const int pitch = string.pitch + fret;
        const int interval = (string.interval + fret) % notesPerOctave;
        if (notes.Contains(interval)) {
            cost += doubledCost[static_cast<std::size_t>(interval)];
            const auto end = pitches.begin() + static_cast<std::ptrdiff_t>(pitchCount);
            if (std::find(pitches.begin(), end, pitch) != end)
                cost += Cost::unison;
        }
        notes.Add(interval);
        pitches[pitchCount++] = pitch;
        if (pitch < bass) {
            second = bass;
            bass = pitch;
            bassInterval = interval;
        } else {
            second = std::min(second, pitch);
        }
    }
    constexpr int wholeTone = 2;
    return cost + PlaceCost(lowestFret, highestFret, open != 0) +
           OpenCost(open, sounding & ~open, highestFret) + muteCost[sounding] +
           BassCost(bassInterval) + (second - bass <= wholeTone ? Cost::muddy : 0) +
           OmittedCost(m_intervals - notes);
}
