#include "music/voicings.h"

#include "music/handtable.h"
#include "music/voicingcost.h"

#include <algorithm>
#include <numeric>

namespace {

// The first voicings are mixed from the best, so that each place of the neck is met soon.
namespace Mixing {
constexpr std::size_t usual = 3; // The first stand as they are.
constexpr std::size_t mixed = 12;
constexpr std::size_t best = 60;
// What lets a voicing wait:
constexpr int sameButMutes = 6; // it differs from one before it only by mutes;
constexpr int sameFret = 16;    // each one before it with the same lowest stopped fret,
constexpr int sameFretMost = 4; // so many at most.
} // namespace Mixing

struct Ranked {
    Voicing voicing;
    int cost = 0;
};

// Of equal costs the one found first stays first.
void SortByCost(std::vector<Ranked>& ranked) {
    const auto [least, most] =
        std::minmax_element(ranked.begin(), ranked.end(),
                            [](const Ranked& a, const Ranked& b) { return a.cost < b.cost; });
    const int base = least->cost;
    std::vector<std::size_t> places(static_cast<std::size_t>(most->cost - base) + 2);
    const auto group = [base](const Ranked& one) {
        return static_cast<std::size_t>(one.cost - base);
    };
    for (const Ranked& one : ranked)
        ++places[group(one) + 1];
    std::partial_sum(places.begin(), places.end(), places.begin());
    std::vector<Ranked> sorted(ranked.size());
    for (const Ranked& one : ranked)
        sorted[places[group(one)]++] = one;
    ranked = std::move(sorted);
}

int LowestStoppedFret(PackedFrets frets) {
    int lowest = 0;
    for (int string = 1; string <= stringCount; ++string)
        if (const int fret = frets.Of(string); fret > 0 && (lowest == 0 || fret < lowest))
            lowest = fret;
    return lowest;
}

// Takes the first ones greedily out of the best; those that are passed over keep their order.
void Mix(std::vector<Ranked>& ranked) {
    struct Candidate {
        Ranked ranked;
        int lowest;
        int sameFret = 0;
        bool sameButMutes = false;

        int Cost() const {
            return ranked.cost + (sameButMutes ? Mixing::sameButMutes : 0) +
                   Mixing::sameFret * std::min(sameFret, Mixing::sameFretMost);
        }
    };
    std::vector<Candidate> best;
    for (std::size_t i = 0; i < std::min(ranked.size(), Mixing::best); ++i)
        best.push_back({ranked[i], LowestStoppedFret(ranked[i].voicing.frets)});
    for (std::size_t place = 0; place < std::min(best.size(), Mixing::mixed); ++place) {
        const auto begin = best.begin() + static_cast<std::ptrdiff_t>(place);
        if (place >= Mixing::usual) {
            const auto next =
                std::min_element(begin, best.end(), [](const Candidate& a, const Candidate& b) {
                    return a.Cost() < b.Cost();
                });
            std::rotate(begin, next, next + 1);
        }
        for (auto later = begin + 1; later != best.end(); ++later) {
            if (later->lowest == begin->lowest)
                ++later->sameFret;
            if (later->ranked.voicing.frets.DifferWhereBothSound(begin->ranked.voicing.frets) == 0)
                later->sameButMutes = true;
        }
    }
    for (std::size_t i = 0; i < best.size(); ++i)
        ranked[i] = best[i].ranked;
}

std::vector<Voicing> Rank(const std::vector<PackedFrets>& found, const VoicingCost& costs) {
    std::vector<Ranked> ranked;
    ranked.reserve(found.size());
    for (const PackedFrets frets : found) {
        const HeldHand hand = FindHand(frets);
        ranked.push_back({{frets, hand.fingers}, hand.cost + costs.Of(frets)});
    }
    SortByCost(ranked);
    Mix(ranked);
    std::vector<Voicing> shapes;
    shapes.reserve(ranked.size());
    for (const Ranked& one : ranked)
        shapes.push_back(one.voicing);
    return shapes;
}

struct Step {
    GaveWay gaveWay;
    VoicingRules rules;
};

constexpr std::array steps{
    Step{GaveWay::OnNothing, {}},
    Step{GaveWay::OnOneNote, {.omitted = 1}},
    Step{GaveWay::OnTwoNotes, {.omitted = 2}},
    Step{GaveWay::OnTheSpan, {.omitted = 2, .span = widestSpan}},
    Step{GaveWay::OnTheThirdString, {.omitted = 2, .span = widestSpan, .leastStrings = 2}},
};

} // namespace

Voicings FindVoicings(NoteSet notes, PitchClass root, const Tuning& tuning) {
    const NoteSet intervals = notes.Over(root);
    for (const Step& step : steps) {
        const auto found = PlayableVoicings(intervals, root, tuning, step.rules);
        if (!found.empty())
            return {Rank(found, VoicingCost(intervals, root, tuning)), step.gaveWay};
    }
    return {};
}
