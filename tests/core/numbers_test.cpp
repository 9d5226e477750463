// Numbers that begin a text, and their way to whole numbers.
#include "core/numbers.h"
#include "core/runtimeerror.h"

#include <QTest>

#include <limits>

class NumbersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void LeadingNumbers_data();
    void LeadingNumbers();
    void ANumberIsNamedAsItWasTyped_data();
    void ANumberIsNamedAsItWasTyped();
    void SixteenBits();
};

void NumbersTest::LeadingNumbers_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("number");
    QTest::newRow("empty") << QString() << 0.0;
    QTest::newRow("no number") << QStringLiteral("abc") << 0.0;
    QTest::newRow("fraction") << QStringLiteral("3.7") << 3.7;
    QTest::newRow("number and text") << QStringLiteral("  12 frets") << 12.0;
    QTest::newRow("negative") << QStringLiteral("-5x") << -5.0;
    QTest::newRow("signed") << QStringLiteral("+5") << 5.0;
    QTest::newRow("two signs are no number") << QStringLiteral("+-5") << 0.0;
    QTest::newRow("a sign alone") << QStringLiteral("-") << 0.0;
    QTest::newRow("too near 0") << QStringLiteral("1e-999 frets") << 0.0;
    QTest::newRow("too large") << QStringLiteral("-1e999") << std::numeric_limits<double>::lowest();
    QTest::newRow("exponent") << QStringLiteral("1e9") << 1e9;
    QTest::newRow("large") << QStringLiteral("99999999999") << 99999999999.0;
    QTest::newRow("infinity is a word") << QStringLiteral("inf") << 0.0;
    QTest::newRow("not a number is a word") << QStringLiteral("-nan") << 0.0;
    QTest::newRow("other digits are no number") << QStringLiteral("٣") << 0.0;
}

void NumbersTest::LeadingNumbers() {
    QFETCH(const QString, text);
    QFETCH(const double, number);
    QCOMPARE(LeadingNumber(text), number);
}

void NumbersTest::ANumberIsNamedAsItWasTyped_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("russian");
    QTest::addColumn<QString>("english");
    const auto number = [](const char* rule, const QString& text, const QString& shown) {
        QTest::newRow(rule) << text << shown << shown;
    };
    number("digits", QStringLiteral(" 40000 "), QStringLiteral("40000"));
    number("a number and text", QStringLiteral("7th"), QStringLiteral("7"));
    number("an exponent", QStringLiteral("-1e6"), QStringLiteral("-1e6"));
    number("beyond any number", QStringLiteral("1e999"), QStringLiteral("1e999"));
    QTest::newRow("a text without a number")
        << QStringLiteral(" abc 7") << QStringLiteral("«abc 7»") << QStringLiteral("\"abc 7\"");
    QTest::newRow("nothing") << QString() << QStringLiteral("«»") << QStringLiteral("\"\"");
    QTest::newRow("a sign alone") << QStringLiteral("-") << QStringLiteral("«-»")
                                  << QStringLiteral("\"-\"");
}

void NumbersTest::ANumberIsNamedAsItWasTyped() {
    QFETCH(const QString, text);
    QFETCH(const QString, russian);
    QFETCH(const QString, english);
    QCOMPARE(AsTyped(text).russian, russian);
    QCOMPARE(AsTyped(text).english, english);
}

void NumbersTest::SixteenBits() {
    QCOMPARE(ToInteger16(2.5), 2);
    QCOMPARE(ToInteger16(3.5), 4);
    QCOMPARE(ToInteger16(-0.5), 0);
    QCOMPARE(ToInteger16(32767), 32767);
    QVERIFY_THROWS_EXCEPTION(RunTimeError, ToInteger16(32768));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, ToInteger16(LeadingNumber(u"1e999")));
}

QTEST_GUILESS_MAIN(NumbersTest)
#include "numbers_test.moc"
