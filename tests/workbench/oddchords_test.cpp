// Voicings of chords and strings that nobody would think of: types of chords.dat, and strings far
// from where they belong.
#include "music/voicings.h"
#include "pictures/shapewords.h"
#include "withbench.h"

class OddChordsTest : public QObject, private WithBench {
    Q_OBJECT

private Q_SLOTS:
    void init() { SetUp(); }
    void Types_data();
    void Types();
    void SoundNumbers_data();
    void SoundNumbers();
    void StringsThatNameNoNote();
    void TheSameNoteOnAllStrings();

private:
    // The voicings of what is chosen, which sound its notes alone, the root among them.
    Voicings Found() const {
        const ChordOnStrings chord = m_bench->ToPlay().chord;
        const Voicings found = FindVoicings(chord.notes, chord.root, chord.tuning);
        for (const Voicing& voicing : found.shapes) {
            NoteSet sounding;
            for (int string = 1; string <= stringCount; ++string)
                if (const int fret = voicing.frets.Of(string); fret != Shape::muted)
                    sounding.Add(chord.tuning[static_cast<std::size_t>(string - 1)]->note + fret);
            for (const PitchClass note : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11})
                if (sounding.Contains(note) && !chord.notes.Contains(note))
                    return {};
            if (!sounding.Contains(chord.root))
                return {};
        }
        return found;
    }
    QString Line(const Voicings& found) const {
        return VoicingsInWords(static_cast<int>(found.shapes.size()), found,
                               m_bench->ToPlay().chord, Tongue::English);
    }
};

void OddChordsTest::Types_data() {
    QTest::addColumn<QByteArray>("structure");
    QTest::addColumn<bool>("playable");
    QTest::addColumn<QString>("line"); // How it begins.
    const auto row = [](const char* rule, const char* structure, bool playable, const char* line) {
        QTest::newRow(rule) << QByteArray(structure) << playable << QString::fromLatin1(line);
    };
    row("steps past the octave", "4399", true, "Ways to play it: ");
    row("the octave itself", "435", true, "Ways to play it: ");
    row("no steps: the root alone", "", true, "Ways to play it: ");
    row("a step of nothing", "0", true, "Ways to play it: ");
    row("two notes", "7", true, "Ways to play it: ");
    row("seven notes, two of them left out", "221222", true, "Ways to play it: ");
    row("ten notes, four of them left out", "111111111", true, "Ways to play it: ");
    row("eleven notes", "1111111111", false, "More notes than six strings can play: 11");
    row("twelve notes", "11111111111", false, "More notes than six strings can play: 12");
    row("letters", "abc", true, "Ways to play it: ");
}

void OddChordsTest::Types() {
    QFETCH(const QByteArray, structure);
    QFETCH(const bool, playable);
    QFETCH(const QString, line);
    AppendTypes("odd\r\n\r\nodd\r\n" + structure + "\r\n");
    m_bench->ChooseType(m_state.ChordTypes.Count() - 1);
    const Voicings found = Found();
    QCOMPARE(!found.shapes.empty(), playable);
    QVERIFY2(Line(found).startsWith(line), qPrintable(Line(found)));
    for (const Voicing& voicing : found.shapes)
        m_bench->LayShape(voicing.ToShape());
}

void OddChordsTest::SoundNumbers_data() {
    QTest::addColumn<QString>("number");
    for (const char* number : {"-43", "84", "999", "-999", "1e30", "", "abc", "20.5"})
        QTest::newRow(*number != 0 ? number : "none") << QString::fromLatin1(number);
}

void OddChordsTest::SoundNumbers() {
    QFETCH(const QString, number);
    const auto shapes = Found().shapes.size();
    QCOMPARE(shapes, 706U);
    m_state.SoundNumbers.fill(number);
    m_bench->StringsChanged();
    QCOMPARE(Found().shapes.size(), shapes); // What a hand can hold is no matter of octaves.
}

void OddChordsTest::StringsThatNameNoNote() {
    m_state.StringNotes[0] = QStringLiteral("?");
    m_bench->StringsChanged();
    const Voicings some = Found();
    QVERIFY(!some.shapes.empty());
    for (const Voicing& voicing : some.shapes)
        QVERIFY(!voicing.ToShape().Sounds(StringOfRow(0, m_state.ThinStringAtBottom)));
    m_state.StringNotes.fill(QString());
    m_bench->StringsChanged();
    const Voicings left = Found();
    QVERIFY(left.shapes.empty());
    QCOMPARE(Line(left), QStringLiteral("No string is tuned to a note."));
}

void OddChordsTest::TheSameNoteOnAllStrings() {
    m_state.StringNotes.fill(QStringLiteral("C"));
    m_bench->StringsChanged();
    const Voicings found = Found();
    QVERIFY(!found.shapes.empty());
    QVERIFY2(!Line(found).isEmpty(), qPrintable(Line(found)));
}

QTEST_APPLESS_MAIN(OddChordsTest)
#include "oddchords_test.moc"
