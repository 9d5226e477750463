// Shapes, movements and counts in words.
#include "pictures/shapewords.h"

#include <QTest>

class ShapeWordsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AShape_data();
    void AShape();
    void AMovement();
    void Counts_data();
    void Counts();
};

void ShapeWordsTest::AShape_data() {
    QTest::addColumn<Tongue>("tongue");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("frets");
    QTest::addColumn<QString>("words");
    QTest::newRow("English") << Tongue::English << "C"
                             << "x32010"
                             << "C, x32010: string 6 muted, string 5 third fret, ring finger, "
                                "string 4 second fret, middle finger, string 3 open, "
                                "string 2 first fret, index finger, string 1 open";
    QTest::newRow("Russian") << Tongue::Russian << "C"
                             << "xx0232"
                             << "C, xx0232: струна 6 не звучит, струна 5 не звучит, струна 4 "
                                "открыта, струна 3 второй лад, указательный палец, струна 2 третий "
                                "лад, безымянный палец, струна 1 второй лад, средний палец";
    QTest::newRow("without a name") << Tongue::English << ""
                                    << "xxx00x"
                                    << "xxx00x: string 6 muted, string 5 muted, string 4 muted, "
                                       "string 3 open, string 2 open, string 1 muted";
    QTest::newRow("beyond all words")
        << Tongue::English << ""
        << "xxxxx(25)"
        << "xxxxx(25): string 6 muted, string 5 muted, string 4 muted, string 3 muted, "
           "string 2 muted, string 1 fret 25, index finger";
}

void ShapeWordsTest::AShape() {
    QFETCH(Tongue, tongue);
    QFETCH(QString, name);
    QFETCH(QString, frets);
    QTEST(ShapeInWords(name, WithFingers(*ReadShape(frets)), tongue), "words");
}

void ShapeWordsTest::AMovement() {
    const HandMovement movement{2, 1, 5};
    QCOMPARE(MovementInWords(movement, Tongue::English),
             QStringLiteral("The hand: 2 frets and 1 string moved, 5 fingers lifted or set."));
    QCOMPARE(MovementInWords(movement, Tongue::Russian),
             QStringLiteral("Рука: 2 лада и 1 струна, поднять или поставить 5 пальцев."));
    QCOMPARE(MovementInWords({11, 21, 22}, Tongue::Russian),
             QStringLiteral("Рука: 11 ладов и 21 струна, поднять или поставить 22 пальца."));
}

void ShapeWordsTest::Counts_data() {
    QTest::addColumn<unsigned>("notes");
    QTest::addColumn<bool>("tuned");
    QTest::addColumn<int>("all");
    QTest::addColumn<int>("shown");
    QTest::addColumn<GaveWay>("gaveWay");
    QTest::addColumn<QString>("words");
    const auto row = [](const char* what, NoteSet notes, bool tuned, int all, int shown,
                        GaveWay gaveWay, const char* words) {
        QTest::newRow(what) << notes.Bits() << tuned << all << shown << gaveWay
                            << QString::fromLatin1(words);
    };
    const auto nothing = GaveWay::OnNothing;
    row("all", {0, 4, 7}, true, 5, 5, nothing, "Ways to play it: 5");
    row("filtered", {0, 4, 7}, true, 5, 2, nothing, "Shown: 2 of 5");
    row("all filtered away", {0, 4, 7}, true, 5, 0, nothing, "None of 5 fits the filters.");
    row("a rule gave way", {0, 4, 7}, true, 5, 5, GaveWay::OnOneNote,
        "Ways to play it: 5: one more note left out");
    row("no key", {}, true, 0, 0, nothing, "No chord is chosen, and no key is marked.");
    row("no string", {0, 4, 7}, false, 0, 0, nothing, "No string is tuned to a note.");
    row("too many notes", NoteSet::OfBits(0xFFF), true, 0, 0, nothing,
        "More notes than six strings can play: 12.");
    row("no hand", {0, 4, 7}, true, 0, 0, nothing, "No hand can hold this in this tuning.");
}

void ShapeWordsTest::Counts() {
    QFETCH(unsigned, notes);
    QFETCH(bool, tuned);
    QFETCH(int, all);
    QFETCH(int, shown);
    QFETCH(GaveWay, gaveWay);
    ChordOnStrings chord{NoteSet::OfBits(notes), 0, {}};
    if (tuned)
        chord.tuning.fill(OpenString{0, 48});
    const Voicings voicings{std::vector<Voicing>(static_cast<std::size_t>(all)), gaveWay};
    QTEST(VoicingsInWords(shown, voicings, chord, Tongue::English), "words");
    QVERIFY(!VoicingsInWords(shown, voicings, chord, Tongue::Russian).isEmpty());
}

QTEST_APPLESS_MAIN(ShapeWordsTest)
#include "shapewords_test.moc"
