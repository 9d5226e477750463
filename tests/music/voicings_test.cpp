// The voicings in their order, and what happens where nothing can be played.
#include "music/chords.h"
#include "music/voicings.h"

#include <QTest>

#include <algorithm>

namespace {

Voicings Find(const QString& chord, const Tuning& tuning = StandardTuning()) {
    const NamedChord named(chord);
    return FindVoicings(named.notes, named.root, tuning);
}

QStringList Texts(const Voicings& voicings) {
    QStringList texts;
    for (const Voicing& voicing : voicings.shapes)
        texts.append(FretsText(voicing.ToShape()));
    return texts;
}

} // namespace

class VoicingsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TeachersShowFirst_data();
    void TeachersShowFirst();
    void EachPlaceSoon();
    void AllAndOnce();
    void HeldAsAlways();
    void RulesGiveWay_data();
    void RulesGiveWay();
    void SpanGivesWay();
    void BassIsTheLowestPitch();
    void OddInput_data();
    void OddInput();
};

void VoicingsTest::TeachersShowFirst_data() {
    QTest::addColumn<QString>("frets");
    const auto row = [](const char* chord, const char* frets) {
        QTest::newRow(chord) << QString::fromLatin1(frets);
    };
    // The open chords of the first lessons.
    row("C maj", "x32010");
    row("D maj", "xx0232");
    row("E maj", "022100");
    row("G maj", "320003");
    row("A maj", "x02220");
    row("D min", "xx0231");
    row("E min", "022000");
    row("A min", "x02210");
    row("A 7", "x02020");
    row("B 7", "x21202");
    row("C 7", "x32310");
    row("D 7", "xx0212");
    row("E 7", "020100");
    row("G 7", "320001");
    row("D m7", "xx0211");
    row("E m7", "020000");
    row("A m7", "x02010");
    row("C maj7", "x32000");
    row("D maj7", "xx0222");
    row("E maj7", "021100");
    row("F maj7", "xx3210");
    row("G maj7", "320002");
    row("A maj7", "x02120");
    row("C add9", "x32030");
    row("D sus2", "xx0230");
    row("A sus2", "x02200");
    row("D sus4", "xx0233");
    row("E sus4", "022200");
    row("A sus4", "x02230");
    // The barre chords in the shapes of E and A.
    row("F maj", "133211");
    row("F# maj", "244322");
    row("G# maj", "466544");
    row("F min", "133111");
    row("F# min", "244222");
    row("G min", "355333");
    row("F 7", "131211");
    row("F# 7", "242322");
    row("F m7", "131111");
    row("F# m7", "242222");
    row("A# maj", "x13331");
    row("B maj", "x24442");
    row("C# min", "x46654");
    row("A# min", "x13321");
    row("B min", "x24432");
    row("C min", "x35543");
    row("A# 7", "x13131");
    row("C m7", "x35343");
}

void VoicingsTest::TeachersShowFirst() {
    QFETCH(QString, frets);
    const QStringList texts = Texts(Find(QString::fromLatin1(QTest::currentDataTag())));
    QCOMPARE(texts.value(0), frets);
}

void VoicingsTest::EachPlaceSoon() {
    // Among the first ten of a chord the hand meets more than three places of the neck.
    for (const char* chord : {"C maj", "G 7", "A min", "F# m7"}) {
        const Voicings found = Find(QString::fromLatin1(chord));
        std::vector<int> places;
        for (std::size_t i = 0; i < 10; ++i) {
            int lowest = 99;
            for (int string = 1; string <= stringCount; ++string)
                if (const int fret = found.shapes[i].frets.Of(string); fret > 0)
                    lowest = std::min(lowest, fret);
            places.push_back(lowest);
        }
        std::sort(places.begin(), places.end());
        places.erase(std::unique(places.begin(), places.end()), places.end());
        QVERIFY2(places.size() > 3, chord);
    }
}

void VoicingsTest::AllAndOnce() {
    const NamedChord named(QStringLiteral("C 13"));
    const auto playable =
        PlayableVoicings(named.notes.Over(named.root), named.root, StandardTuning(), {});
    std::vector<std::uint32_t> expected;
    for (const PackedFrets frets : playable)
        expected.push_back(frets.Bits());
    std::vector<std::uint32_t> found;
    for (const Voicing& voicing : Find(QStringLiteral("C 13")).shapes)
        found.push_back(voicing.frets.Bits());
    std::sort(found.begin(), found.end());
    QCOMPARE(found, expected); // These are ascending.
}

void VoicingsTest::HeldAsAlways() {
    // Twice, as the second search remembers what the first one found.
    for (const char* chord : {"C maj", "E 7", "G# m9", "E 7"})
        for (const Voicing& voicing : Find(QString::fromLatin1(chord)).shapes) {
            const Shape shape = voicing.ToShape();
            QCOMPARE(shape, WithFingers(voicing.frets.ToShape()));
        }
}

void VoicingsTest::RulesGiveWay_data() {
    QTest::addColumn<QString>("tuning");
    QTest::addColumn<QString>("chord");
    QTest::addColumn<GaveWay>("gaveWay");
    const auto row = [](const char* tuning, const char* chord, GaveWay gaveWay) {
        QTest::addRow("%s: %s", tuning, chord)
            << QString::fromLatin1(tuning) << QString::fromLatin1(chord) << gaveWay;
    };
    row("D,A,D,D,A,D", "D maj", GaveWay::OnNothing);
    row("D,A,D,D,A,D", "C aug", GaveWay::OnOneNote);
    row("D,A,D,D,A,D", "A 7#5b9", GaveWay::OnOneNote);
    row("E,E,E,?,?,?", "C 13", GaveWay::OnOneNote);
    row("E,E,E,?,?,?", "C 7#5b9", GaveWay::OnTwoNotes);
    row("E,?,?,B,?,?", "C maj", GaveWay::OnTheThirdString);
}

void VoicingsTest::RulesGiveWay() {
    QFETCH(QString, tuning);
    QFETCH(QString, chord);
    const Voicings found = Find(chord, TunedTo(tuning));
    QVERIFY(!found.shapes.empty());
    QTEST(found.gaveWay, "gaveWay");
}

void VoicingsTest::SpanGivesWay() {
    // The note C lies at fret 1 of a B string and at fret 5 of a G string.
    const Voicings found = FindVoicings({0}, 0, TunedTo(QStringLiteral("B,B,G,?,?,?")));
    QCOMPARE(Texts(found), QStringList(QStringLiteral("115xxx")));
    QCOMPARE(found.gaveWay, GaveWay::OnTheSpan);
}

void VoicingsTest::BassIsTheLowestPitch() {
    // String 6 an octave up: its root is no longer the bass, the fifth on string 5 is.
    Tuning tuning = StandardTuning();
    const QStringList before = Texts(Find(QStringLiteral("G maj"), tuning));
    tuning[5]->midi += notesPerOctave;
    const QStringList after = Texts(Find(QStringLiteral("G maj"), tuning));
    QVERIFY(before.indexOf(QStringLiteral("355433")) < after.indexOf(QStringLiteral("355433")));
    QCOMPARE(before.size(), after.size());
}

void VoicingsTest::OddInput_data() {
    QTest::addColumn<unsigned>("notes");
    QTest::addColumn<QString>("tuning");
    QTest::addColumn<bool>("playable");
    const auto row = [](const char* what, NoteSet notes, const char* tuning, bool playable) {
        QTest::newRow(what) << notes.Bits() << QString::fromLatin1(tuning) << playable;
    };
    const char* standard = "E,A,D,G,B,E";
    row("no note", {}, standard, false);
    row("not the root", {4, 7}, standard, false);
    row("the root alone", {0}, standard, true);
    row("two notes", {0, 7}, standard, true);
    row("all twelve notes", NoteSet::OfBits(0xFFF), standard, false);
    row("nine notes", {0, 1, 2, 3, 4, 5, 6, 7, 8}, standard, true);
    row("the same note on all strings", {0, 4, 7}, "E,E,E,E,E,E", true);
    row("strings without notes", {0, 4, 7}, "?,?,?,?,?,?", false);
    row("a single string", {0, 4, 7}, "E,?,?,?,?,?", false);
}

void VoicingsTest::OddInput() {
    QFETCH(unsigned, notes);
    QFETCH(QString, tuning);
    const Voicings found = FindVoicings(NoteSet::OfBits(notes), 0, TunedTo(tuning));
    QTEST(!found.shapes.empty(), "playable");
    for (const Voicing& voicing : found.shapes)
        QVERIFY(FindFingers(voicing.frets.ToShape()));
}

QTEST_APPLESS_MAIN(VoicingsTest)
#include "voicings_test.moc"
