#include "music/fingernumbers.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace {

// How awkward a way to hold a shape is.
namespace Awkward {
constexpr int furtherString = 10; // Each string that a finger holds beyond its first.

// The index finger lies flat most easily, and the better the longer it lies.
constexpr int indexBarre = -1;
constexpr int indexBetween = -6;   // Each string between the ends of its barre,
constexpr int indexBetweenTwo = 7; // taken back where it holds only the ends,
constexpr int indexOverMute = 12;  // and a muted string has to be kept from sounding.

constexpr int innerBarre = 13;  // By the middle or the ring finger.
constexpr int littleBarre = 20; // By the weakest finger.
constexpr int longBarre = -5;   // Three strings are as easy for these as two.
constexpr int overMute = 6;

// Any finger that lies flat dampens a thinner string that should ring open.
constexpr int underOpen = 6;

constexpr int withoutIndex = 6; // The hand starts with its index finger.
constexpr int littleFinger = 1;

// Beside open strings in the first frets each finger keeps to its own fret.
constexpr int offPlace = 4;
constexpr int lastPlaceFret = 4;

constexpr int crowded = 9; // Each fret too few between two fingers.
// Each fret too many between a finger and its neighbour: index, middle, ring.
constexpr std::array stretched{8, 9, 5};
constexpr int stretchedApart = 9; // Between fingers that are no neighbours.
} // namespace Awkward

// A string that is stopped, and its fret.
struct Stop {
    int string;
    int fret;
};

// Tries every assignment of fingers to the stops, which are taken in the order of the fingers.
class Assignment {
public:
    explicit Assignment(const Shape& shape) : m_shape(shape) {
        // On one fret the thick string comes first.
        for (int string = stringCount; string >= 1; --string)
            if (const int fret = shape.Fret(string); fret > 0)
                m_stops[m_stopCount++] = {string, fret};
            else if (fret == 0)
                m_thinnestOpen = string;
        std::stable_sort(m_stops.begin(), m_stops.begin() + m_stopCount,
                         [](const Stop& a, const Stop& b) { return a.fret < b.fret; });
    }

    std::optional<FingerNumbers> Cheapest() {
        if (m_stopCount == 0)
            return FingerNumbers();
        if (m_stops[m_stopCount - 1].fret - m_stops[0].fret > widestSpan)
            return std::nullopt;
        for (int finger = 1; finger <= fingerCount; ++finger)
            Hold(0, finger, {StartCost(finger), 0, {}});
        if (m_best == none)
            return std::nullopt;
        return FingerNumbers(static_cast<unsigned>(m_best) & ((1U << FingerNumbers::bitCount) - 1));
    }

private:
    struct Way {
        int cost;
        int fingersUsed;
        FingerNumbers numbers;
    };

    static constexpr std::int64_t none = std::numeric_limits<std::int64_t>::max();

    int StartCost(int finger) const {
        int cost = finger == 1 ? 0 : Awkward::withoutIndex;
        if (const int fret = m_stops[0].fret;
            m_thinnestOpen <= stringCount && fret <= Awkward::lastPlaceFret)
            cost += Awkward::offPlace * std::abs(fret - finger);
        return cost;
    }

    // The finger takes the stop and as many of the next ones as it may reach.
    void Hold(std::size_t first, int finger, Way way) {
        ++way.fingersUsed;
        if (finger == fingerCount)
            way.cost += Awkward::littleFinger;
        int mutesBetween = 0;
        for (std::size_t last = first; last < m_stopCount; ++last) {
            if (last > first && !Reaches(m_stops[last - 1], m_stops[last], mutesBetween))
                return;
            way.numbers.Set(m_stops[last].string, finger);
            Way next = way;
            if (last > first)
                next.cost += BarreCost(finger, first, last, mutesBetween);
            Continue(last + 1, finger, next);
        }
    }

    void Continue(std::size_t stop, int finger, const Way& way) {
        if (stop == m_stopCount) {
            m_best = std::min(m_best, Order(way));
            return;
        }
        const int frets = m_stops[stop].fret - m_stops[stop - 1].fret;
        for (int next = finger + 1; next <= fingerCount; ++next) {
            Way further = way;
            further.cost += DistanceCost(finger, next, frets);
            Hold(stop, next, further);
        }
    }

    // Whether a finger on the one stop can lie over to the other; counts the mutes it lies on.
    bool Reaches(const Stop& from, const Stop& to, int& mutes) const {
        if (from.fret != to.fret)
            return false;
        for (int string = from.string - 1; string > to.string; --string) {
            if (!m_shape.Sounds(string))
                ++mutes;
            else if (m_shape.Fret(string) < from.fret)
                return false;
        }
        return true;
    }

    int BarreCost(int finger, std::size_t first, std::size_t last, int mutes) const {
        const auto held = static_cast<int>(last - first) + 1;
        const int between = m_stops[first].string - m_stops[last].string - 1;
        int cost = Awkward::furtherString * (held - 1);
        if (m_thinnestOpen < m_stops[last].string)
            cost += Awkward::underOpen;
        if (finger == 1)
            return cost + Awkward::indexBarre + Awkward::indexBetween * between +
                   Awkward::indexOverMute * mutes +
                   (held == 2 ? Awkward::indexBetweenTwo * between : 0);
        return cost + (finger == fingerCount ? Awkward::littleBarre : Awkward::innerBarre) +
               Awkward::overMute * mutes + (held >= 3 ? Awkward::longBarre : 0);
    }

    static int DistanceCost(int finger, int next, int frets) {
        const int tooMany = frets - (next - finger);
        if (tooMany < 0)
            return Awkward::crowded * -tooMany;
        const bool neighbours = next == finger + 1;
        return tooMany * (neighbours ? Awkward::stretched[static_cast<std::size_t>(finger - 1)]
                                     : Awkward::stretchedApart);
    }

    // The cheapest first; of equals the one with fewer fingers, then with the lower ones from
    // the thick string on.
    static std::int64_t Order(const Way& way) {
        return (static_cast<std::int64_t>(way.cost) * (fingerCount + 1) + way.fingersUsed) *
                   (1 << FingerNumbers::bitCount) +
               way.numbers.Bits();
    }

    const Shape& m_shape;
    std::array<Stop, stringCount> m_stops{};
    std::size_t m_stopCount = 0;
    int m_thinnestOpen = stringCount + 1; // Beyond the strings where none is.
    std::int64_t m_best = none;
};

} // namespace

std::optional<FingerNumbers> FindFingers(const Shape& shape) {
    return Assignment(shape).Cheapest();
}

Shape HeldBy(Shape shape, FingerNumbers fingers) {
    shape.barres.clear();
    for (int string = 1; string <= stringCount; ++string)
        shape.fingers[static_cast<std::size_t>(string - 1)] =
            static_cast<std::int8_t>(fingers.Of(string));
    for (int finger = 1; finger <= fingerCount; ++finger) {
        const auto first = std::find(shape.fingers.begin(), shape.fingers.end(), finger);
        const auto last = std::find(shape.fingers.rbegin(), shape.fingers.rend(), finger);
        if (first == shape.fingers.end() || first == last.base() - 1)
            continue;
        const auto thinnest = static_cast<int>(first - shape.fingers.begin()) + 1;
        const auto thickest = static_cast<int>(last.base() - shape.fingers.begin());
        shape.barres.push_back({shape.Fret(thinnest), thinnest, thickest, finger});
    }
    return shape;
}

Shape WithFingers(const Shape& shape) {
    if (const auto fingers = FindFingers(shape))
        return HeldBy(shape, *fingers);
    Shape bare = shape;
    bare.fingers = {};
    bare.barres.clear();
    return bare;
}
