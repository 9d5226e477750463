#include "pictures/partnames.h"

#include "music/shape.h"

#include <QStringList>

#include <algorithm>

namespace {

struct Interval {
    const char16_t* russian;
    const char16_t* english;
};

constexpr std::array intervals{
    Interval{u"основной тон", u"root"},
    Interval{u"малая секунда", u"minor second"},
    Interval{u"большая секунда", u"major second"},
    Interval{u"малая терция", u"minor third"},
    Interval{u"большая терция", u"major third"},
    Interval{u"кварта", u"fourth"},
    Interval{u"тритон", u"tritone"},
    Interval{u"квинта", u"fifth"},
    Interval{u"малая секста", u"minor sixth"},
    Interval{u"большая секста", u"major sixth"},
    Interval{u"малая септима", u"minor seventh"},
    Interval{u"большая септима", u"major seventh"},
};
static_assert(intervals.size() == notesPerOctave);

QString In(Tongue tongue, const char16_t* russian, const char16_t* english) {
    return QString::fromUtf16(tongue == Tongue::Russian ? russian : english);
}

QString Fret(int fret, Tongue tongue) {
    return In(tongue, u"лад %1", u"fret %1").arg(fret);
}

QString Joined(const QStringList& parts) {
    return parts.join(QStringLiteral(", "));
}

} // namespace

QString SpokenNote(const QString& name, Tongue tongue) {
    QString spoken = name;
    if (SemitoneOf(name))
        spoken.replace(u'#', In(tongue, u" диез", u" sharp"));
    return spoken;
}

QString KeyPartName(int key, bool marked, Tongue tongue) {
    QStringList parts{SpokenNote(NoteName(key).toString(), tongue),
                      In(tongue, u"октава %1", u"octave %1").arg(key / notesPerOctave + 1)};
    if (marked)
        parts += In(tongue, u"отмечена", u"marked");
    return Joined(parts);
}

QString StringPartName(const StringLook& look, Tongue tongue) {
    QStringList parts{In(tongue, u"струна %1", u"string %1").arg(look.string),
                      SpokenNote(look.openNote, tongue)};
    if (look.barred)
        parts += In(tongue, u"под барре", u"under the barre");
    if (look.fret > 0)
        parts += {Fret(look.fret, tongue), SpokenNote(look.note, tongue)};
    if (look.muted)
        parts += In(tongue, u"заглушена", u"muted");
    else if (look.fret == 0)
        parts += In(tongue, u"открыта", u"open");
    return Joined(parts);
}

QString BarrePartName(std::optional<Barre> barre, bool thinStringAtBottom, Tongue tongue) {
    QStringList parts{In(tongue, u"барре", u"barre")};
    if (!barre)
        return Joined(parts << In(tongue, u"снято", u"off"));
    const ShapeBarre span = BarreOnStrings(*barre, thinStringAtBottom);
    return Joined(parts << Fret(barre->fret, tongue)
                        << In(tongue, u"струны с %1 по %2", u"strings %1 to %2")
                               .arg(span.thinnest)
                               .arg(span.thickest));
}

QString CrossingHint(int string, int fret, PitchClass note, const std::vector<int>& markedKeys,
                     Tongue tongue) {
    QStringList sound{NoteName(note).toString()};
    sound += ChordTone(note, markedKeys, tongue);
    sound.removeAll(QString());
    return In(tongue, u"Струна %1, лад %2: ", u"String %1, fret %2: ").arg(string).arg(fret) +
           Joined(sound);
}

QString KeyHint(int key, const std::vector<int>& markedKeys, Tongue tongue) {
    QStringList sound{NoteName(key).toString(),
                      In(tongue, u"октава %1", u"octave %1").arg(key / notesPerOctave + 1)};
    sound += ChordTone(key % notesPerOctave, markedKeys, tongue);
    sound.removeAll(QString());
    return Joined(sound);
}

QString ChordTone(PitchClass note, const std::vector<int>& markedKeys, Tongue tongue) {
    if (markedKeys.empty())
        return {};
    const bool marked = std::any_of(markedKeys.begin(), markedKeys.end(),
                                    [note](int key) { return key % notesPerOctave == note; });
    if (!marked)
        return In(tongue, u"не отмечена", u"not marked");
    const int root = markedKeys.front() % notesPerOctave;
    const auto steps = static_cast<std::size_t>((note - root + notesPerOctave) % notesPerOctave);
    return In(tongue, intervals[steps].russian, intervals[steps].english);
}
