#include "music/fingering.h"

#include <algorithm>
#include <bitset>

namespace {

constexpr int searchBound = 20; // Farther than any fret that a search can find.

using ChordNotes = std::bitset<notesPerOctave>;

ChordNotes NotesOf(const std::vector<int>& keys) {
    ChordNotes notes;
    for (const int key : keys)
        notes.set(static_cast<std::size_t>(key % notesPerOctave));
    return notes;
}

bool Sounds(const ChordNotes& notes, int semitone) {
    return notes.test(static_cast<std::size_t>(semitone % notesPerOctave));
}

int LowestFret(const ChordNotes& notes, PitchClass start, int countedFrom) {
    for (int step = 0; step <= notesPerOctave; ++step)
        if (Sounds(notes, start + step) && countedFrom + step < searchBound)
            return countedFrom + step;
    return searchBound;
}

} // namespace

RowNotes OpenNotes(const SixTexts& stringNotes) {
    RowNotes notes;
    std::transform(stringNotes.begin(), stringNotes.end(), notes.begin(),
                   [](const QString& name) { return SemitoneOf(name); });
    return notes;
}

RowNotes StartingNotes(const RowNotes& open, std::optional<Barre> barre) {
    RowNotes notes = open;
    if (barre)
        for (auto& note : notes)
            if (note)
                note = (*note + barre->fret) % notesPerOctave;
    return notes;
}

Fingering PlaceFingers(const RowNotes& open, const std::vector<int>& markedKeys,
                       std::optional<Barre> barre) {
    const ChordNotes chord = NotesOf(markedKeys);
    const RowNotes starts = StartingNotes(open, barre);
    Fingering fingering;
    for (int row = 0; row < stringCount; ++row) {
        const auto start = starts[static_cast<std::size_t>(row)];
        RowFingering& laid = fingering[static_cast<std::size_t>(row)];
        laid.note = start;
        if (!start)
            continue;
        if (Sounds(chord, *start)) {
            laid.fret = 0;
            continue;
        }
        const int countedFrom = barre && barre->Covers(row) ? barre->fret : 0;
        laid.fret = laid.mark = LowestFret(chord, *start, countedFrom);
        laid.note = (*start + *laid.fret - countedFrom) % notesPerOctave;
    }
    return fingering;
}

int NextFret(PitchClass open, const std::vector<int>& markedKeys, int current, int automatic) {
    const ChordNotes chord = NotesOf(markedKeys);
    for (int fret = std::max(0, current + 1); fret <= notesPerOctave; ++fret)
        if (Sounds(chord, open + fret))
            return fret;
    return automatic;
}

MissingNotes FindMissingNotes(const std::vector<int>& markedKeys, const RowNotes& sounding) {
    ChordNotes heard;
    for (const auto note : sounding)
        if (note)
            heard.set(static_cast<std::size_t>(*note));
    MissingNotes missing;
    for (const int key : markedKeys) {
        if (!Sounds(heard, key))
            missing.text += NoteName(key);
        missing.text += u' ';
    }
    missing.rootMissing = !markedKeys.empty() && !Sounds(heard, markedKeys.front());
    return missing;
}
