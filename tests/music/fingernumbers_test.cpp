// Which finger holds what.
#include "music/fingernumbers.h"

#include <QTest>

class FingerNumbersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void UsualFingers_data();
    void UsualFingers();
    void NoHand_data();
    void NoHand();
    void Barres_data();
    void Barres();
    void Packed();
};

void FingerNumbersTest::UsualFingers_data() {
    QTest::addColumn<QString>("frets");
    QTest::addColumn<QString>("fingers");
    const auto row = [](const char* what, const char* frets, const char* fingers) {
        QTest::newRow(what) << QString::fromLatin1(frets) << QString::fromLatin1(fingers);
    };
    row("nothing to hold", "xx000x", "000000");
    row("one finger a fret", "x32010", "032010");
    row("two on one fret: the lower finger on the thicker string", "022000", "012000");
    row("three on one fret below an open string", "x02220", "001230");
    row("the little finger where the ring finger can't be", "x32310", "032410");
    row("a barre of the index finger", "133211", "134211");
    row("the index finger over two strings side by side", "x3211x", "032110");
    row("two fingers rather than one over a string between them", "xx0232", "000132");
    row("a barre over four strings", "x24442", "012341");
    row("a barre with three fingers above", "x35543", "013421");
    row("all at one fret", "222222", "111111");
    row("far up the neck", "(12)(14)(14)(13)(12)(12)", "134211");
    row("none lies flat where a thinner string rings open", "022200", "012300");
    row("the ring finger lies over four strings", "x13333", "013333");
}

void FingerNumbersTest::UsualFingers() {
    QFETCH(QString, frets);
    const Shape held = WithFingers(*ReadShape(frets));
    QCOMPARE(FretsText(held), frets);
    QTEST(FingersText(held), "fingers");
}

void FingerNumbersTest::NoHand_data() {
    QTest::addColumn<QString>("frets");
    const auto row = [](const char* what, const char* frets) {
        QTest::newRow(what) << QString::fromLatin1(frets);
    };
    row("five fingers", "12345x");
    row("an open string parts the barre", "230321");
    row("too far apart", "1xxxx6");
    row("five frets", "123450");
    row("a lower fret parts the barre", "242434");
}

void FingerNumbersTest::NoHand() {
    QFETCH(QString, frets);
    Shape shape = *ReadShape(frets);
    QVERIFY(!FindFingers(shape));
    shape.fingers.fill(4);
    shape.barres.push_back({});
    QCOMPARE(WithFingers(shape), *ReadShape(frets));
}

void FingerNumbersTest::Barres_data() {
    QTest::addColumn<QString>("frets");
    QTest::addColumn<std::vector<ShapeBarre>>("barres");
    const auto row = [](const char* frets, const std::vector<ShapeBarre>& barres) {
        QTest::newRow(frets) << QString::fromLatin1(frets) << barres;
    };
    row("x32010", {});
    row("133211", {{1, 1, 6, 1}});
    row("x13333", {{3, 1, 4, 3}});
    row("113311", {{1, 1, 6, 1}});
    row("335533", {{3, 1, 6, 1}});
}

void FingerNumbersTest::Barres() {
    QFETCH(QString, frets);
    QTEST(WithFingers(*ReadShape(frets)).barres, "barres");
}

void FingerNumbersTest::Packed() {
    FingerNumbers numbers;
    for (int string = 1; string <= stringCount; ++string)
        numbers.Set(string, string % 5);
    numbers.Set(6, 4);
    for (int string = 1; string < stringCount; ++string)
        QCOMPARE(numbers.Of(string), string % 5);
    QCOMPARE(numbers.Of(6), 4);
    QCOMPARE(FingerNumbers(numbers.Bits()).Of(6), 4);
}

QTEST_APPLESS_MAIN(FingerNumbersTest)
#include "fingernumbers_test.moc"
