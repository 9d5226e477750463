#include "music/names.h"

#include "music/intervals.h"
#include "music/namecosts.h"
#include "music/notespelling.h"

#include <algorithm>

namespace {

PitchClass PitchClassOf(int pitch) {
    return (pitch % notesPerOctave + notesPerOctave) % notesPerOctave;
}

struct Sounding {
    NoteSet notes;
    PitchClass bass = 0;
    bool bassDoubled = false; // By another string, in whatever octave.
};

Sounding SoundingOf(std::span<const int> pitches) {
    Sounding sounding;
    sounding.bass = PitchClassOf(*std::min_element(pitches.begin(), pitches.end()));
    int basses = 0;
    for (const int pitch : pitches) {
        sounding.notes.Add(pitch);
        basses += PitchClassOf(pitch) == sounding.bass ? 1 : 0;
    }
    sounding.bassDoubled = basses > 1;
    return sounding;
}

struct Candidate {
    PitchClass root = 0;
    const NamedType* type = nullptr;
    int cost = 0;
};

// A type of two notes, a fifth above all, is a chord; any other two notes are an interval.
bool IsChord(const NamedType& type, const Sounding& sounding) {
    return sounding.notes.Count() > 2 || type.notes.Count() == 2;
}

// Above the bass: of equally good names the one over the nearest root comes first.
int RootOverBass(const Candidate& candidate, PitchClass bass) {
    return PitchClassOf(candidate.root - bass);
}

std::vector<Candidate> Candidates(const NameIndex& index, const Sounding& sounding) {
    std::vector<Candidate> candidates;
    const auto add = [&](PitchClass root, NoteSet notes, bool foreignBass) {
        const int bass = PitchClassOf(sounding.bass - root);
        for (const NameIndex::Fit& fit : index.Fits(notes)) {
            const NoteSet& type = fit.type->notes;
            if (foreignBass && (type.Count() == 2 || type.Contains(bass)))
                continue;
            if (IsChord(*fit.type, sounding))
                candidates.push_back({root, fit.type, fit.cost + BassCost(type, bass)});
        }
    };
    NoteSet aboveBass = sounding.notes;
    aboveBass.Remove(sounding.bass);
    for (PitchClass root = 0; root < notesPerOctave; ++root) {
        add(root, sounding.notes.Over(root), false);
        if (!sounding.bassDoubled)
            add(root, aboveBass.Over(root), true);
    }
    std::stable_sort(
        candidates.begin(), candidates.end(), [&](const Candidate& a, const Candidate& b) {
            return a.cost != b.cost
                       ? a.cost < b.cost
                       : RootOverBass(a, sounding.bass) < RootOverBass(b, sounding.bass);
        });
    return candidates;
}

PlayersName ChordName(const NamedType& type, PitchClass root, PitchClass bass) {
    PlayersName name{ChordText(type, root, bass), {}, std::nullopt};
    if (type.entry != 0)
        name.chord = {root, type.entry};
    return name;
}

PlayersName IntervalOf(std::span<const int> pitches) {
    const int lowest = *std::min_element(pitches.begin(), pitches.end());
    int semitones = 0;
    for (const int pitch : pitches)
        if (PitchClassOf(pitch - lowest) != 0 && (semitones == 0 || pitch - lowest < semitones))
            semitones = pitch - lowest;
    return {IntervalName(PitchClassOf(lowest), semitones), IntervalWord(semitones), std::nullopt};
}

void Add(std::vector<PlayersName>& names, const PlayersName& name) {
    if (std::none_of(names.begin(), names.end(),
                     [&](const PlayersName& other) { return other.text == name.text; }))
        names.push_back(name);
}

} // namespace

QString ChordText(const NamedType& type, PitchClass root, PitchClass bass) {
    QString text = RootName(root, type.notes) + type.suffix;
    if (bass == root)
        return text;
    const int interval = PitchClassOf(bass - root);
    return text + u'/' +
           (type.notes.Contains(interval) ? ChordNoteName(root, type.notes, interval)
                                          : RootName(bass, type.notes));
}

std::vector<int> SoundingPitches(const Shape& shape, const Tuning& tuning) {
    std::vector<int> pitches;
    for (int string = 1; string <= stringCount; ++string)
        if (const auto& open = tuning[static_cast<std::size_t>(string - 1)];
            open && shape.Sounds(string))
            pitches.push_back(open->midi + shape.Fret(string));
    return pitches;
}

PlayersNames::PlayersNames(const TextTable& chordTypes)
    : m_chordTypes(chordTypes), m_index(chordTypes) {}

std::vector<PlayersName> PlayersNames::Of(std::span<const int> pitches,
                                          std::optional<CatalogueChord> chosen) const {
    std::vector<PlayersName> names;
    if (pitches.empty())
        return names;
    const Sounding sounding = SoundingOf(pitches);
    if (sounding.notes.Count() == 1)
        return {{RootName(sounding.bass, sounding.notes), {}, std::nullopt}};
    if (chosen) {
        const NamedType type = NamedTypeOf(m_chordTypes, chosen->entry);
        if (OmissionCost(type.notes, sounding.notes.Over(chosen->root)) && IsChord(type, sounding))
            names.push_back(ChordName(type, chosen->root, sounding.bass));
    }
    const std::vector<Candidate> candidates = Candidates(m_index, sounding);
    for (const Candidate& candidate : candidates)
        if (candidate.cost <= std::min(candidates.front().cost + dearerThanBest, dearestName))
            Add(names, ChordName(*candidate.type, candidate.root, sounding.bass));
    if (names.empty() && sounding.notes.Count() == 2)
        names.push_back(IntervalOf(pitches));
    return names;
}
