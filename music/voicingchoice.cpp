#include "music/voicingchoice.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace {

// What filters and orders ask of a voicing.
struct Facts {
    int position = 1;
    bool hasOpen = false;
    NoteSet notes; // Over the root.
    int bassPitch = std::numeric_limits<int>::max();
    int bassInterval = 0; // Over the root, 0 to 11.
};

Facts FactsOf(PackedFrets frets, const ChordOnStrings& chord) {
    Facts facts;
    int lowest = 0;
    for (int string = 1; string <= stringCount; ++string) {
        const auto& open = chord.tuning[static_cast<std::size_t>(string - 1)];
        const int fret = frets.Of(string);
        if (fret == Shape::muted || !open)
            continue;
        facts.hasOpen = facts.hasOpen || fret == 0;
        if (fret > 0 && (lowest == 0 || fret < lowest))
            lowest = fret;
        const int interval = (open->note + fret - chord.root + notesPerOctave) % notesPerOctave;
        facts.notes.Add(interval);
        if (open->midi + fret < facts.bassPitch) {
            facts.bassPitch = open->midi + fret;
            facts.bassInterval = interval;
        }
    }
    facts.position = std::max(1, lowest);
    return facts;
}

// A fifth may be altered where the chord has no perfect one.
bool IsDegree(int interval, ChordDegree degree, NoteSet intervals) {
    switch (degree) {
    case ChordDegree::Root:
        return interval == 0;
    case ChordDegree::Third:
        return interval == 3 || interval == 4;
    default:
        return interval == 7 || (!intervals.Contains(7) && (interval == 6 || interval == 8));
    }
}

int FingersOf(FingerNumbers fingers) {
    unsigned used = 0;
    for (int string = 1; string <= stringCount; ++string)
        used |= 1U << fingers.Of(string);
    return std::popcount(used & ~1U); // 0 is no finger.
}

bool HasBarre(FingerNumbers fingers) {
    unsigned used = 0;
    for (int string = 1; string <= stringCount; ++string) {
        const unsigned finger = 1U << fingers.Of(string);
        if (finger != 1 && (used & finger) != 0)
            return true;
        used |= finger;
    }
    return false;
}

bool Passes(const Voicing& voicing, const Facts& facts, NoteSet intervals,
            const VoicingFilter& filter) {
    if (facts.position < filter.fromFret || facts.position > filter.toFret ||
        (filter.openStrings && *filter.openStrings != facts.hasOpen) ||
        (filter.noBarre && HasBarre(voicing.fingers)) ||
        FingersOf(voicing.fingers) > filter.mostFingers ||
        (filter.bass && !IsDegree(facts.bassInterval, *filter.bass, intervals)) ||
        (filter.complete && !intervals.IsSubsetOf(facts.notes)))
        return false;
    for (int string = 1; string <= stringCount; ++string)
        if (const auto sounds = filter.sounds[static_cast<std::size_t>(string - 1)])
            if (*sounds != (voicing.frets.Of(string) != Shape::muted))
                return false;
    return true;
}

struct FingerPlace {
    int fret;
    int string; // The thickest that it holds.
};

std::optional<FingerPlace> PlaceOf(const Shape& shape, int finger) {
    for (int string = stringCount; string >= 1; --string)
        if (shape.Finger(string) == finger)
            return FingerPlace{shape.Fret(string), string};
    return std::nullopt;
}

} // namespace

HandMovement MovementBetween(const Shape& from, const Shape& to) {
    HandMovement movement;
    for (int finger = 1; finger <= fingerCount; ++finger) {
        const auto before = PlaceOf(from, finger);
        const auto after = PlaceOf(to, finger);
        if (before && after) {
            movement.frets += std::abs(after->fret - before->fret);
            movement.strings += std::abs(after->string - before->string);
        } else if (before || after) {
            ++movement.lifted;
        }
    }
    return movement;
}

void PutBassFirst(std::vector<Voicing>& voicings, const ChordOnStrings& chord, PitchClass bass) {
    const int interval = (bass - chord.root + notesPerOctave) % notesPerOctave;
    std::stable_partition(voicings.begin(), voicings.end(), [&](const Voicing& voicing) {
        return FactsOf(voicing.frets, chord).bassInterval == interval;
    });
}

std::vector<Voicing> ChooseVoicings(const std::vector<Voicing>& voicings,
                                    const ChordOnStrings& chord, const VoicingFilter& filter,
                                    VoicingOrder order, const Shape& neck) {
    struct Candidate {
        Voicing voicing;
        int key;
    };
    const NoteSet intervals = chord.notes.Over(chord.root);
    std::vector<Candidate> passing;
    for (const Voicing& voicing : voicings) {
        const Facts facts = FactsOf(voicing.frets, chord);
        if (!Passes(voicing, facts, intervals, filter))
            continue;
        int key = 0;
        if (order == VoicingOrder::Position)
            key = facts.position;
        else if (order == VoicingOrder::Bass)
            key = facts.bassPitch;
        else if (order == VoicingOrder::Movement)
            key = MovementBetween(neck, voicing.ToShape()).Total();
        passing.push_back({voicing, key});
    }
    std::stable_sort(passing.begin(), passing.end(),
                     [](const Candidate& a, const Candidate& b) { return a.key < b.key; });
    std::vector<Voicing> chosen;
    chosen.reserve(passing.size());
    for (const Candidate& candidate : passing)
        chosen.push_back(candidate.voicing);
    return chosen;
}
