// What the hand held last, from which its next movement counts.
#include "withbench.h"

class HandShapeTest : public QObject, private WithBench {
    Q_OBJECT

private Q_SLOTS:
    void init() { SetUp(); }

    void NothingBeforeTheFirstChord() { QCOMPARE(Hand(), QStringLiteral("032010")); }

    void AChosenChordLeavesTheHandWhereItWas() {
        m_bench->LayShape(*ReadShape(u"x35553"));
        QCOMPARE(Hand(), QStringLiteral("x35553"));
        m_bench->ChooseRoot(9, QStringLiteral("A"));
        QVERIFY(Neck() != QStringLiteral("x35553"));
        QCOMPARE(Hand(), QStringLiteral("x35553"));
        m_bench->ChooseType(1); // And so do several of them.
        QCOMPARE(Hand(), QStringLiteral("x35553"));
        m_bench->ChooseScale(0, QStringLiteral("Harmonic Minor"));
        QCOMPARE(Hand(), QStringLiteral("x35553"));
    }

    void WhatIsClickedTogetherIsTheHands() {
        m_bench->ChooseType(1);
        m_bench->PressString(5, 8);
        QCOMPARE(Hand(), Neck());
        const QString clicked = Neck();
        m_bench->ChooseRoot(9, QStringLiteral("A"));
        QCOMPARE(Hand(), clicked);
    }

    void TheShapeThatTheChordPlacedMayBeLaidToo() {
        m_bench->LayShape(*ReadShape(u"x35553"));
        m_bench->ChooseType(0);
        QCOMPARE(Hand(), QStringLiteral("x35553"));
        m_bench->LayShape(*ReadShape(u"032010"));
        QCOMPARE(Hand(), QStringLiteral("032010"));
        m_bench->ChooseType(1);
        QCOMPARE(Hand(), QStringLiteral("032010"));
    }

    void FingersThatWereAskedForAreTheHands() {
        m_bench->LayShape(*ReadShape(u"x35553"));
        m_bench->ChooseType(1);
        m_bench->SwitchBarre();
        QCOMPARE(Hand(), Neck());
    }

private:
    QString Hand() const { return FretsText(m_bench->HandShape()); }
    QString Neck() const { return FretsText(m_bench->NeckShape()); }
};

QTEST_APPLESS_MAIN(HandShapeTest)
#include "handshape_test.moc"
