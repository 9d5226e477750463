// What is meant by a chord that somebody types.
#include "core/chordtypes.h"
#include "music/typedchord.h"

#include <QStringList>
#include <QTest>

class TypedChordTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void First_data();
    void First();
    void Rows_data();
    void Rows();
    void Nothing_data();
    void Nothing();
    void RootAndBass();
    void NoMoreThanAsked();

private:
    const TextTable m_types = BuiltInChordTypes();
};

void TypedChordTest::First_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("offered");
    const auto row = [](const char* what, const char* typed, const char* offered) {
        QTest::newRow(what) << QString::fromUtf8(typed) << QString::fromUtf8(offered);
    };
    row("a type", "m7", "m7");
    row("the whole name before a longer one", "9", "9");
    row("the beginning of a name", "ma", "maj");
    row("an alternative name", "minor", "min (minor)");
    row("an alternative name in another case", "MAJOR S", "6 (Major Sixth)");
    row("a chord", "Am7", "Am7");
    row("a chord in small letters with a bass", "c#m7b5/g", "C#m7b5/G");
    row("a bass by its degree", "a/c#", "A/C#");
    row("a bass that is its root", "c/c", "C");
    row("a flat root", "Bb", "Bb");
    row("a flat root in small letters", "bb7", "Bb7");
    row("a sharp that players write flat", "a#", "Bb");
    row("signs of print", "B♭m", "Bbm");
    row("a letter alone, large: the root", "A", "A");
    row("a letter alone, small: types first", "a", "aug");
    row("M is major", "CM7", "Cmaj7");
    row("m is minor", "Cm7", "Cm7");
    row("min is m", "Cmin7", "Cm7");
    row("a dash is minor", "A-7", "Am7");
    row("a plus is augmented", "c+", "Caug");
    row("blanks around it", "  Am ", "Am");
    row("a bass not typed yet", "C/", "C");
}

void TypedChordTest::First() {
    QFETCH(QString, typed);
    const auto offered = MatchTypedChord(m_types, typed, 8);
    QVERIFY(!offered.empty());
    QTEST(offered.front().text, "offered");
}

void TypedChordTest::Rows_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("rows");
    const auto row = [](const char* typed, const char* rows) {
        QTest::newRow(typed) << QString::fromUtf8(typed) << QString::fromUtf8(rows);
    };
    row("dim", "dim");
    row("sus", "sus2 sus4");
    row("Csus", "Csus2 Csus4");
    row("m7", "m7 m7add11 m7add13 m7b5 m7#5 m7b9");
    row("Gm7", "Gm7 Gm7add11 Gm7add13 Gm7b5 Gm7#5 Gm7b9");
}

void TypedChordTest::Rows() {
    QFETCH(QString, typed);
    QStringList texts;
    for (const TypedChord& chord : MatchTypedChord(m_types, typed, 8))
        texts += chord.text;
    QTEST(texts.join(u' '), "rows");
}

void TypedChordTest::Nothing_data() {
    QTest::addColumn<QString>("typed");
    for (const char* typed : {"", "  ", "xyz", "Cxyz", "C/x", "C/ee", "/", "<b>"})
        QTest::newRow(typed) << QString::fromLatin1(typed);
}

void TypedChordTest::Nothing() {
    QFETCH(QString, typed);
    QVERIFY(MatchTypedChord(m_types, typed, 8).empty());
}

void TypedChordTest::RootAndBass() {
    const auto chord = MatchTypedChord(m_types, QStringLiteral("c#m7b5/g"), 1).front();
    QCOMPARE(chord.root, std::optional(1));
    QCOMPARE(chord.bass, std::optional(7));
    QCOMPARE(m_types.Field(ChordType::Name, chord.entry), QStringLiteral("m7b5"));
    const auto type = MatchTypedChord(m_types, QStringLiteral("m7b5"), 1).front();
    QVERIFY(!type.root && !type.bass);
}

void TypedChordTest::NoMoreThanAsked() {
    for (const std::size_t most : {1, 3, 8})
        QCOMPARE(MatchTypedChord(m_types, QStringLiteral("C"), most).size(), most);
}

QTEST_APPLESS_MAIN(TypedChordTest)
#include "typedchord_test.moc"
