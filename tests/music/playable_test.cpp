// The set of playable voicings, against all frets of all strings.
#include "music/chords.h"
#include "music/playable.h"

#include <QTest>

#include <algorithm>

namespace {

// The rules once more, as plainly as they are said.
class PlainRules {
public:
    PlainRules(NoteSet intervals, PitchClass root, const Tuning& tuning, const VoicingRules& rules)
        : m_intervals(intervals), m_root(root), m_tuning(tuning), m_rules(rules) {}

    std::vector<PackedFrets> All() {
        Try(stringCount, {});
        return m_found;
    }

private:
    void Try(int string, Shape shape) {
        if (string == 0) {
            if (IsPlayable(shape)) {
                PackedFrets frets;
                for (int each = 1; each <= stringCount; ++each)
                    frets.Set(each, shape.Fret(each));
                m_found.push_back(frets);
            }
            return;
        }
        for (int fret = Shape::muted; fret <= 15; ++fret) {
            const auto& open = m_tuning[static_cast<std::size_t>(string - 1)];
            if (fret != Shape::muted && !(open && m_intervals.Contains(open->note + fret - m_root)))
                continue;
            shape.frets[static_cast<std::size_t>(string - 1)] = static_cast<std::int8_t>(fret);
            if (Span(shape) <= m_rules.span)
                Try(string - 1, shape);
        }
    }

    static int Span(const Shape& shape) {
        int lowest = 99;
        int highest = 0;
        for (const int fret : shape.frets)
            if (fret > 0) {
                lowest = std::min(lowest, fret);
                highest = std::max(highest, fret);
            }
        return std::max(0, highest - lowest);
    }

    bool IsPlayable(const Shape& shape) const {
        std::vector<int> sounding;
        NoteSet notes;
        for (int string = 1; string <= stringCount; ++string) {
            if (!shape.Sounds(string))
                continue;
            sounding.push_back(string);
            notes.Add(m_tuning[static_cast<std::size_t>(string - 1)]->note + shape.Fret(string) -
                      m_root);
        }
        const auto count = static_cast<int>(sounding.size());
        if (count < m_rules.leastStrings)
            return false;
        if (sounding.back() - sounding.front() + 1 - count > m_rules.innerMutes)
            return false;
        return HasItsNotes(notes) && FourFingersHold(shape, {}, stringCount);
    }

    bool HasItsNotes(NoteSet notes) const {
        int missing = 0;
        const int size = m_intervals.Count();
        for (int interval = 0; interval < notesPerOctave; ++interval) {
            if (!m_intervals.Contains(interval) || notes.Contains(interval))
                continue;
            const bool fifth = interval == 7 && size >= 4 && m_intervals != NoteSet({0, 2, 5, 7});
            const bool ninth = interval == 2 && size >= 6;
            const bool third = interval == 4 && m_intervals == NoteSet({0, 2, 4, 5, 7, 10});
            if (interval == 0)
                return false;
            if (!fifth && !ninth && !third)
                ++missing;
        }
        return missing <= m_rules.omitted;
    }

    // Whether any of the four fingers on each stopped string makes a hand.
    static bool FourFingersHold(const Shape& shape, std::array<int, stringCount + 1> fingers,
                                int string) {
        if (string == 0)
            return true;
        if (shape.Fret(string) <= 0)
            return FourFingersHold(shape, fingers, string - 1);
        for (int finger = 1; finger <= 4; ++finger) {
            fingers[static_cast<std::size_t>(string)] = finger;
            if (Agrees(shape, fingers, string) && FourFingersHold(shape, fingers, string - 1))
                return true;
        }
        return false;
    }

    // Whether the finger on the string goes with those on the thicker ones.
    static bool Agrees(const Shape& shape, const std::array<int, stringCount + 1>& fingers,
                       int string) {
        const int finger = fingers[static_cast<std::size_t>(string)];
        const int fret = shape.Fret(string);
        for (int thicker = string + 1; thicker <= stringCount; ++thicker) {
            const int other = fingers[static_cast<std::size_t>(thicker)];
            const int otherFret = shape.Fret(thicker);
            if (other == 0)
                continue;
            if (other == finger) {
                if (otherFret != fret)
                    return false;
                for (int between = string + 1; between < thicker; ++between)
                    if (shape.Sounds(between) && shape.Fret(between) < fret)
                        return false;
            } else if (other < finger ? otherFret > fret : otherFret <= fret) {
                return false;
            }
        }
        return true;
    }

    NoteSet m_intervals;
    PitchClass m_root;
    const Tuning& m_tuning;
    VoicingRules m_rules;
    std::vector<PackedFrets> m_found;
};

QString Texts(const std::vector<PackedFrets>& all) {
    QStringList texts;
    for (const PackedFrets frets : all)
        texts.append(FretsText(frets.ToShape()));
    return texts.join(u' ');
}

} // namespace

class PlayableTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EveryShapeOnce_data();
    void EveryShapeOnce();
    void Omittable_data();
    void Omittable();
    void NothingToPlay();
};

void PlayableTest::EveryShapeOnce_data() {
    QTest::addColumn<QString>("tuning");
    QTest::addColumn<QString>("chord");
    QTest::addColumn<int>("step");
    const char* standard = "E,A,D,G,B,E";
    const auto row = [](const char* what, const char* tuning, const char* chord, int step = 0) {
        QTest::newRow(what) << QString::fromLatin1(tuning) << QString::fromLatin1(chord) << step;
    };
    row("three notes", standard, "C maj");
    row("open strings", standard, "E min");
    row("four notes: the fifth may be left out", standard, "G 7");
    row("four notes without a fifth", standard, "F# aug");
    row("a sus4 with its ninth keeps its fifth", standard, "D 9sus4");
    row("five notes", standard, "A# 9");
    row("six notes: the ninth may be left out", standard, "C 13");
    row("an eleventh: so may the third", standard, "D 11");
    row("three notes, one tuned in unison", "D,A,D,D,A,D", "D sus4");
    row("strings lower than the thicker ones", "G,A,C,D,E,G", "C 6add9");
    row("an open chord", "C,G,C,G,C,E", "C 7");
    row("a string without a note", "E,A,?,G,B,E", "C maj");
    row("no note at all", "?,?,?,?,?,?", "C maj");
    row("one more note omitted", "D,A,D,D,A,D", "C maj9", 1);
    row("two more", "D,A,D,D,A,D", "C mmaj13", 2);
    row("a span of four", "D,A,D,D,A,D", "F 7b9", 3);
    row("two strings", "E,?,?,B,?,?", "C maj", 4);
}

void PlayableTest::EveryShapeOnce() {
    QFETCH(QString, tuning);
    QFETCH(QString, chord);
    QFETCH(int, step);
    const NamedChord named(chord);
    const NoteSet intervals = named.notes.Over(named.root);
    const VoicingRules rules{
        .omitted = std::min(step, 2), .span = step >= 3 ? 4 : 3, .leastStrings = step >= 4 ? 2 : 3};
    const Tuning tuned = TunedTo(tuning);
    const auto found = PlayableVoicings(intervals, named.root, tuned, rules);
    const auto expected = PlainRules(intervals, named.root, tuned, rules).All();
    QCOMPARE(Texts(found), Texts(expected)); // The order is promised, too.
    QCOMPARE(found.empty(), tuned[5] == std::nullopt);
}

void PlayableTest::Omittable_data() {
    QTest::addColumn<QString>("chord");
    QTest::addColumn<unsigned>("notes");
    const auto row = [](const char* chord, NoteSet notes) {
        QTest::newRow(chord) << QString::fromLatin1(chord) << notes.Bits();
    };
    row("C maj", {});
    row("C 7", {7});
    row("C 7b5", {});
    row("C 9sus4", {});
    row("C 9", {7});
    row("C 11", {2, 4, 7});
    row("C m11", {2, 7});
    row("C 13", {2, 7});
}

void PlayableTest::Omittable() {
    QFETCH(QString, chord);
    const NamedChord named(chord);
    QTEST(OmittableNotes(named.notes.Over(named.root)).Bits(), "notes");
}

void PlayableTest::NothingToPlay() {
    QVERIFY(PlayableVoicings({}, 0, StandardTuning(), {}).empty());
    QVERIFY(PlayableVoicings({4, 7}, 0, StandardTuning(), {}).empty());
    QVERIFY(PlayableVoicings(NoteSet::OfBits(0xFFF), 0, StandardTuning(), {}).empty());
}

QTEST_APPLESS_MAIN(PlayableTest)
#include "playable_test.moc"
