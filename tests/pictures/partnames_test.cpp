// The spoken names of strings, keys and the barre, and the names of chord tones.
#include "pictures/partnames.h"

#include <QTest>

class PartNamesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Keys();
    void Strings_data();
    void Strings();
    void Barres();
    void ChordTones_data();
    void ChordTones();
    void Hints();
};

void PartNamesTest::Keys() {
    QCOMPARE(KeyPartName(0, false, Tongue::English), QStringLiteral("C, octave 1"));
    QCOMPARE(KeyPartName(13, true, Tongue::English), QStringLiteral("C sharp, octave 2, marked"));
    QCOMPARE(KeyPartName(34, true, Tongue::Russian), QStringLiteral("A диез, октава 3, отмечена"));
}

void PartNamesTest::Strings_data() {
    const QString g = QStringLiteral("G");
    const QString a = QStringLiteral("A");
    QTest::addColumn<StringLook>("look");
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("russian");
    QTest::newRow("an open string") << StringLook{3, g, g, 0, false, false} << "string 3, G, open"
                                    << "струна 3, G, открыта";
    QTest::newRow("a fretted string")
        << StringLook{3, g, a, 2, false, false} << "string 3, G, fret 2, A"
        << "струна 3, G, лад 2, A";
    QTest::newRow("a string under the barre")
        << StringLook{3, g, a, 2, true, false} << "string 3, G, under the barre, fret 2, A"
        << "струна 3, G, под барре, лад 2, A";
    QTest::newRow("a muted open string says only that")
        << StringLook{3, g, g, 0, false, true} << "string 3, G, muted"
        << "струна 3, G, заглушена";
    QTest::newRow("a muted fretted string keeps its fret")
        << StringLook{3, g, a, 2, false, true} << "string 3, G, fret 2, A, muted"
        << "струна 3, G, лад 2, A, заглушена";
    QTest::newRow("sharps are spoken")
        << StringLook{6, QStringLiteral("D#"), QStringLiteral("F#"), 3, false, false}
        << "string 6, D sharp, fret 3, F sharp"
        << "струна 6, D диез, лад 3, F диез";
    QTest::newRow("a text that is no note stays as it is")
        << StringLook{1, QStringLiteral("H#?"), QStringLiteral("H#?"), 0, false, false}
        << "string 1, H#?, open"
        << "струна 1, H#?, открыта";
}

void PartNamesTest::Strings() {
    QFETCH(StringLook, look);
    QTEST(StringPartName(look, Tongue::English), "english");
    QTEST(StringPartName(look, Tongue::Russian), "russian");
}

void PartNamesTest::Barres() {
    QCOMPARE(BarrePartName({}, true, Tongue::English), QStringLiteral("barre, off"));
    QCOMPARE(BarrePartName(Barre{5, 3}, true, Tongue::English),
             QStringLiteral("barre, fret 5, strings 1 to 4"));
    // The lowest row holds the thick string then.
    QCOMPARE(BarrePartName(Barre{5, 3}, false, Tongue::Russian),
             QStringLiteral("барре, лад 5, струны с 3 по 6"));
}

void PartNamesTest::ChordTones_data() {
    QTest::addColumn<int>("note");
    QTest::addColumn<QString>("tone");
    QTest::newRow("the lowest marked key is the root") << 9 << "root";
    QTest::newRow("a note counts in any octave") << 1 << "major third";
    QTest::newRow("up from the root, over the octave") << 4 << "fifth";
    QTest::newRow("a note that is not marked") << 0 << "not marked";
}

void PartNamesTest::ChordTones() {
    QFETCH(int, note);
    const std::vector<int> aMajor{9, 13, 16};
    QTEST(ChordTone(note, aMajor, Tongue::English), "tone");
    QCOMPARE(ChordTone(note, {}, Tongue::English), QString());
}

void PartNamesTest::Hints() {
    QCOMPARE(CrossingHint(3, 2, 9, {9, 13, 16}, Tongue::English),
             QStringLiteral("String 3, fret 2: A, root"));
    QCOMPARE(CrossingHint(3, 2, 9, {}, Tongue::Russian), QStringLiteral("Струна 3, лад 2: A"));
    QCOMPARE(KeyHint(13, {9, 13, 16}, Tongue::Russian),
             QStringLiteral("C#, октава 2, большая терция"));
    QCOMPARE(KeyHint(13, {}, Tongue::English), QStringLiteral("C#, octave 2"));
}

QTEST_APPLESS_MAIN(PartNamesTest)
#include "partnames_test.moc"
