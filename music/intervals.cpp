#include "music/intervals.h"

#include "music/notespelling.h"

namespace {

struct Interval {
    int letters; // From the lower note's letter to the upper one's.
    bool flat;   // Whether a lower note between C and D, or G and A, is better a flat.
    QStringView russian;
    QStringView english;
};

// By semitones within the octave. A tritone's upper note is written as it would be by itself.
constexpr std::array<Interval, notesPerOctave> intervals{{
    {0, true, u"октава", u"octave"},
    {1, false, u"малая секунда", u"minor second"},
    {1, true, u"большая секунда", u"major second"},
    {2, false, u"малая терция", u"minor third"},
    {2, true, u"большая терция", u"major third"},
    {3, true, u"чистая кварта", u"perfect fourth"},
    {-1, true, u"тритон", u"tritone"},
    {4, true, u"чистая квинта", u"perfect fifth"},
    {5, false, u"малая секста", u"minor sixth"},
    {5, true, u"большая секста", u"major sixth"},
    {6, false, u"малая септима", u"minor seventh"},
    {6, true, u"большая септима", u"major seventh"},
}};

const Interval& IntervalOf(int semitones) {
    return intervals[static_cast<std::size_t>(semitones % notesPerOctave)];
}

} // namespace

QString IntervalName(PitchClass lower, int semitones) {
    const Interval& interval = IntervalOf(semitones);
    const QString lowerName = RootName(lower, interval.flat ? NoteSet{0, 4} : NoteSet{0, 3});
    const QString upperName = interval.letters < 0
                                  ? RootName((lower + semitones) % notesPerOctave, {})
                                  : NoteAbove(lowerName, lower, interval.letters, semitones);
    return lowerName + u'–' + upperName;
}

Phrase IntervalWord(int semitones) {
    const Interval& interval = IntervalOf(semitones);
    Phrase word{interval.russian.toString(), interval.english.toString()};
    if (semitones <= notesPerOctave)
        return word;
    return {word.russian + QStringLiteral(" через октаву"),
            QStringLiteral("compound ") + word.english};
}
