// Note names to positions and sound numbers, over every string and name.
#include "core/notes.h"
#include "settings/soundnumbers.h"

#include <QTest>

class SoundNumbersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Positions();
    void NearestNote();
    void KnownNumbers_data();
    void KnownNumbers();
};

void SoundNumbersTest::Positions() {
    for (int note = 0; note < notesPerOctave; ++note)
        QCOMPARE(static_cast<int>(NoteIndexOf(NoteName(note))), 13 + note);
    QCOMPARE(static_cast<int>(NoteIndexOf(u"B")), 24); // Not 12.
    for (const QStringView name : {u"H", u"c", u"Db", u"", u" C"})
        QCOMPARE(static_cast<int>(NoteIndexOf(name)), 0);
}

void SoundNumbersTest::NearestNote() {
    const std::array<std::pair<int, int>, 6> standard{
        {{4, 20}, {11, 25}, {7, 29}, {2, 34}, {9, 39}, {4, 44}}};
    for (quint8 string = 1; string <= 6; ++string)
        for (int note = 0; note < notesPerOctave; ++note) {
            const auto [open, number] = standard[string - 1U];
            const int up = (note - open + 12) % 12;
            QCOMPARE(static_cast<int>(SoundNumberFor(string, NoteName(note))),
                     up <= 6 ? number - up : number + 12 - up);
        }
}

void SoundNumbersTest::KnownNumbers_data() {
    QTest::addColumn<int>("string");
    QTest::addColumn<QString>("note");
    QTest::addColumn<int>("number");
    QTest::newRow("string 3 to A") << 3 << QStringLiteral("A") << 27;
    QTest::newRow("string 3 to F") << 3 << QStringLiteral("F") << 31;
    QTest::newRow("six semitones go up") << 3 << QStringLiteral("C#") << 23;
    QTest::newRow("string 1 to D") << 1 << QStringLiteral("D") << 22;
    QTest::newRow("string 6 to D") << 6 << QStringLiteral("D") << 46;
    QTest::newRow("there is no string 0") << 0 << QStringLiteral("E") << 0;
    QTest::newRow("there is no string 7") << 7 << QStringLiteral("E") << 0;
}

void SoundNumbersTest::KnownNumbers() {
    QFETCH(const int, string);
    QFETCH(const QString, note);
    QFETCH(const int, number);
    QCOMPARE(static_cast<int>(SoundNumberFor(static_cast<quint8>(string), note)), number);
}

QTEST_APPLESS_MAIN(SoundNumbersTest)
#include "soundnumbers_test.moc"
