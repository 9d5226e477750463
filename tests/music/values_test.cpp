// The values that travel: note sets, shapes, tuned strings.
#include "core/settings.h"
#include "music/noteset.h"
#include "music/shape.h"
#include "music/strings.h"

#include <QTest>

class ValuesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void SetsOfNotes();
    void Rotation();
    void Rotation_data();
    void ShapeTexts_data();
    void ShapeTexts();
    void NoShapes_data();
    void NoShapes();
    void RowsAndStrings();
    void TunedStrings_data();
    void TunedStrings();
    void TuningOfTheNeck();
};

void ValuesTest::SetsOfNotes() {
    const NoteSet major{0, 4, 7};
    QCOMPARE(major.Count(), 3);
    QVERIFY(major.Contains(16) && major.Contains(-5) && !major.Contains(3));
    QVERIFY(NoteSet({0, 7}).IsSubsetOf(major));
    QVERIFY(!NoteSet({0, 3}).IsSubsetOf(major));
    QCOMPARE(major - NoteSet{4}, NoteSet({0, 7}));
    QCOMPARE(major | NoteSet{10}, NoteSet({0, 4, 7, 10}));
    QCOMPARE(major & NoteSet({4, 5}), NoteSet{4});
    NoteSet notes = major;
    notes.Remove(12);
    QCOMPARE(notes, NoteSet({4, 7}));
    QVERIFY(NoteSet().Empty() && !notes.Empty());
    QCOMPARE(NoteSet::OfBits(0xFFFF).Count(), notesPerOctave);
}

void ValuesTest::Rotation_data() {
    QTest::addColumn<int>("by");
    for (const int by : {-13, -12, -1, 0, 1, 11, 12, 25})
        QTest::addRow("by %d", by) << by;
}

void ValuesTest::Rotation() {
    QFETCH(int, by);
    const NoteSet seventh{0, 4, 7, 10};
    QCOMPARE(seventh.Raised(by), NoteSet({by, 4 + by, 7 + by, 10 + by}));
    QCOMPARE(seventh.Raised(by).Over(by), seventh);
}

void ValuesTest::ShapeTexts_data() {
    QTest::addColumn<QString>("text");
    for (const char* text : {"x32010", "xxxxxx", "000000", "(10)(12)(12)x(10)x", "9(11)(11)(10)99"})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void ValuesTest::ShapeTexts() {
    QFETCH(QString, text);
    const auto shape = ReadShape(text);
    QVERIFY(shape);
    QCOMPARE(FretsText(*shape), text);
    QCOMPARE(FingersText(*shape), QStringLiteral("000000"));
}

void ValuesTest::NoShapes_data() {
    QTest::addColumn<QString>("text");
    for (const char* text : {"", "x3201", "x320100", "x3201-", "(10", "(1)00000", "(100)00000",
                             "()00000", "x32010 ", "X32010", "(ab)00000"})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void ValuesTest::NoShapes() {
    QFETCH(QString, text);
    QVERIFY(!ReadShape(text));
}

void ValuesTest::RowsAndStrings() {
    QCOMPARE(StringOfRow(0, true), 1);
    QCOMPARE(StringOfRow(0, false), 6);
    for (const bool thinAtBottom : {true, false})
        for (int row = 0; row < stringCount; ++row)
            QCOMPARE(RowOfString(StringOfRow(row, thinAtBottom), thinAtBottom), row);
    QCOMPARE(ReadShape(u"x32010")->Fret(5), 3);
    QVERIFY(!ReadShape(u"x32010")->Sounds(6));
}

void ValuesTest::TunedStrings_data() {
    QTest::addColumn<int>("string");
    QTest::addColumn<QString>("note");
    QTest::addColumn<QString>("soundNumber");
    QTest::addColumn<int>("midi");
    const auto row = [](const char* what, int string, const char* note, const char* number,
                        int midi) {
        QTest::newRow(what) << string << QString::fromLatin1(note) << QString::fromLatin1(number)
                            << midi;
    };
    row("standard: the thick string", 6, "E", "44", 40);
    row("drop D: two semitones lower", 6, "D", "46", 38);
    row("an octave's shift is kept", 1, "E", "32", 52);
    row("the note rules, the number says how high", 1, "F", "20", 65);
    row("a tritone goes up", 1, "A#", "20", 70);
    row("without digits: the nearest to the standard string", 6, "D", "abc", 38);
    row("an empty number as well", 6, "F", "", 41);
    row("beyond 127", 1, "E", "-1e9", 64);
    row("below 0", 1, "E", "85", 64);
    row("the number's beginning counts", 1, "E", "20 frets", 64);
}

void ValuesTest::TunedStrings() {
    QFETCH(int, string);
    QFETCH(QString, note);
    QFETCH(QString, soundNumber);
    const auto tuned = TunedString(string, note, soundNumber);
    QVERIFY(tuned);
    QTEST(tuned->midi, "midi");
    QVERIFY(!TunedString(string, QStringLiteral("H"), soundNumber));
}

void ValuesTest::TuningOfTheNeck() {
    AppState state;
    for (const bool thinAtBottom : {true, false}) {
        LayStrings(state, standardStrings, thinAtBottom);
        const Tuning tuning = TuningOf(state);
        for (std::size_t string = 0; string < stringCount; ++string)
            QCOMPARE(tuning[string]->midi, standardPitches[string]);
    }
    state.StringNotes[0] = QStringLiteral("H");
    QVERIFY(!TuningOf(state)[5]);
}

QTEST_APPLESS_MAIN(ValuesTest)
#include "values_test.moc"
