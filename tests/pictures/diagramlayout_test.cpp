// Where strings, frets, dots and bars lie on a chord diagram.
#include "pictures/diagramlayout.h"

#include <QTest>

class DiagramLayoutTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Positions_data();
    void Positions();
    void BarresCount();
    void StringsLieSixAtTheLeft();
    void LeftHandedIsMirrored();
    void DotsLieBetweenTheirLines();
    void BarsSpanTheirStrings();
    void NothingLeavesTheDiagram();
    void NamesTakeRoom();
};

namespace {

Diagram Shown(const char* frets, bool leftHanded = false) {
    const auto shape = ReadShape(QString::fromLatin1(frets));
    if (!shape)
        qFatal("%s is no shape", frets);
    return {QStringLiteral("C"), *shape, leftHanded};
}

} // namespace

void DiagramLayoutTest::Positions_data() {
    QTest::addColumn<QByteArray>("frets");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("rows");
    const auto row = [](const char* rule, const char* frets, int first, int rows) {
        QTest::newRow(rule) << QByteArray(frets) << first << rows;
    };
    row("all strings open: the nut", "000000", 1, 4);
    row("all strings muted: the nut", "xxxxxx", 1, 4);
    row("down to the fourth fret: the nut", "x24432", 1, 4);
    row("beyond the fourth: from the lowest fret", "577655", 5, 4);
    row("open strings do not count", "0(12)(14)(14)00", 12, 4);
    row("five frets from the nut: a row more", "x15000", 1, 5);
    row("a long reach: as many rows", "2(15)0000", 2, 14);
    row("one far fret", "000(20)00", 20, 4);
}

void DiagramLayoutTest::Positions() {
    QFETCH(const QByteArray, frets);
    const DiagramLayout layout(Shown(frets.constData()));
    QTEST(layout.FirstFret(), "first");
    QTEST(layout.Rows(), "rows");
    QCOMPARE(layout.HasNut(), layout.FirstFret() == 1);
}

void DiagramLayoutTest::BarresCount() {
    Diagram diagram = Shown("000000");
    diagram.shape.barres = {{7, 1, 6, 1}};
    const DiagramLayout layout(diagram);
    QCOMPARE(layout.FirstFret(), 7);
}

void DiagramLayoutTest::StringsLieSixAtTheLeft() {
    const DiagramLayout layout(Shown("x32010"));
    QCOMPARE(layout.StringX(6), layout.Grid().left());
    QCOMPARE(layout.StringX(1), layout.Grid().right());
    for (int string = 1; string < stringCount; ++string)
        QVERIFY(layout.StringX(string + 1) < layout.StringX(string));
}

void DiagramLayoutTest::LeftHandedIsMirrored() {
    const DiagramLayout right(Shown("577655"));
    const DiagramLayout left(Shown("577655", true));
    const double width = right.Size().width();
    for (int string = 1; string <= stringCount; ++string) {
        QCOMPARE(left.StringX(string), width - right.StringX(string));
        QCOMPARE(left.DotCentre(string, 6).y(), right.DotCentre(string, 6).y());
    }
    QCOMPARE(left.PositionRect().right(), width - right.PositionRect().left());
}

void DiagramLayoutTest::DotsLieBetweenTheirLines() {
    const DiagramLayout layout(Shown("577655"));
    for (int fret = 5; fret <= 8; ++fret) {
        const QPointF dot = layout.DotCentre(3, fret);
        QCOMPARE(dot.x(), layout.StringX(3));
        QCOMPARE(dot.y(), (layout.LineY(fret - 5) + layout.LineY(fret - 4)) / 2);
    }
    QCOMPARE(layout.LineY(layout.Rows()), layout.Grid().bottom());
}

void DiagramLayoutTest::BarsSpanTheirStrings() {
    for (const bool leftHanded : {false, true}) {
        const DiagramLayout layout(Shown("577655", leftHanded));
        const QRectF bar = layout.BarreRect({5, 2, 5, 1});
        for (int string = 1; string <= stringCount; ++string)
            QCOMPARE(bar.contains(layout.DotCentre(string, 5)), string >= 2 && string <= 5);
        QVERIFY(!bar.contains(layout.DotCentre(3, 6)));
    }
}

void DiagramLayoutTest::NothingLeavesTheDiagram() {
    for (const char* frets : {"x32010", "577655", "1(20)0000"}) {
        const DiagramLayout layout(Shown(frets));
        const QRectF all(QPointF(0, 0), layout.Size());
        QVERIFY(all.contains(layout.BarreRect({layout.FirstFret(), 1, 6, 0})));
        QVERIFY(all.contains(layout.PositionRect()));
        QVERIFY(all.contains(layout.NutRect()));
        for (int string = 1; string <= stringCount; ++string) {
            QVERIFY(all.contains(layout.SignRect(string)));
            QVERIFY(all.contains(layout.FingerRect(string)));
            QVERIFY(!layout.SignRect(string).intersects(layout.NameRect()));
            QVERIFY(!layout.SignRect(string).intersects(layout.NutRect()));
            QVERIFY(!layout.DotRect(string, layout.FirstFret()).intersects(layout.PositionRect()));
        }
    }
}

void DiagramLayoutTest::NamesTakeRoom() {
    Diagram diagram = Shown("x32010");
    const DiagramLayout named(diagram);
    diagram.name.clear();
    const DiagramLayout nameless(diagram);
    const double room = named.NameRect().height();
    QVERIFY(room > 0);
    QCOMPARE(named.Size().height(), nameless.Size().height() + room);
    QCOMPARE(named.DotCentre(2, 1), nameless.DotCentre(2, 1) + QPointF(0, room));
}

QTEST_APPLESS_MAIN(DiagramLayoutTest)
#include "diagramlayout_test.moc"
