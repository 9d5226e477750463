#include "music/notespelling.h"

namespace {

constexpr int lettersPerOctave = 7;
constexpr QStringView letters = u"CDEFGAB";
constexpr std::array<int, lettersPerOctave> naturals{0, 2, 4, 5, 7, 9, 11};

constexpr std::array<QStringView, notesPerOctave> plainNames{
    u"C", u"Db", u"D", u"Eb", u"E", u"F", u"F#", u"G", u"Ab", u"A", u"Bb", u"B"};

bool HasMinorThird(NoteSet chord) {
    return chord.Contains(3) && !chord.Contains(4);
}

// How many letters above the root a chord note stands: a ninth one, a third two.
int LettersAbove(NoteSet chord, int interval) {
    constexpr std::array<int, notesPerOctave> usual{0, 1, 1, 2, 2, 3, 4, 4, 4, 5, 6, 6};
    constexpr NoteSet diminishedSeventh{0, 3, 6, 9};
    if (interval == 3 && chord.Contains(4))
        return 1; // A raised ninth beside the major third.
    if (interval == 6 && chord.Contains(7))
        return 3; // A raised eleventh,
    if (interval == 8 && chord.Contains(7))
        return 5; // or a lowered thirteenth, beside the fifth.
    if (interval == 9 && chord == diminishedSeventh)
        return 6;
    return usual[static_cast<std::size_t>(interval)];
}

} // namespace

QString RootName(PitchClass root, NoteSet chord) {
    const bool sharp = HasMinorThird(chord) && (root == 1 || root == 8);
    return (sharp ? NoteName(root) : plainNames[static_cast<std::size_t>(root)]).toString();
}

QString ChordNoteName(PitchClass root, NoteSet chord, int interval) {
    return NoteAbove(RootName(root, chord), root, LettersAbove(chord, interval), interval);
}

QString NoteAbove(const QString& note, PitchClass pitch, int lettersUp, int semitones) {
    const auto letter = (letters.indexOf(note.front()) + lettersUp) % lettersPerOctave;
    const int wanted = (pitch + semitones) % notesPerOctave;
    const int half = notesPerOctave / 2;
    const int sign = (wanted - naturals[static_cast<std::size_t>(letter)] + half + notesPerOctave) %
                         notesPerOctave -
                     half;
    switch (sign) {
    case 0:
        return letters[letter];
    case 1:
        return letters[letter] + QStringLiteral("#");
    case -1:
        return letters[letter] + QStringLiteral("b");
    default:
        return plainNames[static_cast<std::size_t>(wanted)].toString();
    }
}
