// Note names and the tables that lead from a place on the piano to a semitone.
#pragma once

#include <QStringView>

#include <array>
#include <optional>

constexpr int notesPerOctave = 12;
constexpr int keyCount = 36;

// A note without its octave: 0 is C, 11 is B.
using PitchClass = int;

// The names of three octaves, by semitone counted from the lowest C: sharps only, no octave mark.
constexpr std::array<QStringView, keyCount> NoteNames = [] {
    constexpr std::array<QStringView, notesPerOctave> octave{
        u"C", u"C#", u"D", u"D#", u"E", u"F", u"F#", u"G", u"G#", u"A", u"A#", u"B"};
    std::array<QStringView, keyCount> names;
    for (int semitone = 0; semitone < keyCount; ++semitone)
        names[static_cast<std::size_t>(semitone)] =
            octave[static_cast<std::size_t>(semitone % notesPerOctave)];
    return names;
}();

// The semitone of each white key of the piano, from the left.
constexpr std::array<qint16, 21> WhiteKeyNotes{0,  2,  4,  5,  7,  9,  11, 12, 14, 16, 17,
                                               19, 21, 23, 24, 26, 28, 29, 31, 33, 35};

// The semitone of each narrow zone of the piano's upper row, where the black keys lie.
// The last zone leads back to the lowest C: there is no key 36.
constexpr std::array<qint16, 63> KeyZoneNotes{
    0,  1,  1,  2,  3,  3,  4,  4,  5,  5,  6,  6,  7,  8,  8,  9,  10, 10, 11, 11, 12,
    12, 13, 13, 14, 15, 15, 16, 16, 17, 17, 18, 18, 19, 20, 20, 21, 22, 22, 23, 23, 24,
    24, 25, 25, 26, 27, 27, 28, 28, 29, 29, 30, 30, 31, 32, 32, 33, 34, 34, 35, 35, 0};

// The name of a semitone 0 to 35; a run-time error outside.
QStringView NoteName(int semitone);

// The semitone of a white key 0 to 20, or of a zone 0 to 62; a run-time error outside.
int WhiteKeyNote(int whiteKey);
int KeyZoneNote(int zone);

// The semitone 0 to 11 of a name, which is compared as text: "c" and "Db" are no notes.
std::optional<PitchClass> SemitoneOf(QStringView name);
