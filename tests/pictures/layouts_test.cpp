// Where things lie on the two pictures, and what a press there means.
#include "music/pianokeys.h"
#include "pictures/fretboardlayout.h"
#include "pictures/keyboardlayout.h"

#include <QTest>

class LayoutsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Frets();
    void Rows();
    void Marks();
    void Bars();
    void HoldOfTheBar();
    void DraggingTheBar();
    void MarksAreHitWhereTheyLie_data() { Hands(); }
    void MarksAreHitWhereTheyLie();
    void LinesAreNoFret_data() { Hands(); }
    void LinesAreNoFret();
    void DraggingFollowsTheHand_data() { Hands(); }
    void DraggingFollowsTheHand();
    void LabelsStandAtTheirPlaces_data() { Hands(); }
    void LabelsStandAtTheirPlaces();
    void TheOtherHandIsTheMirrorImage();
    void KeyRects();
    void KeysByZone();
    void KeysBelow();
    void FreeAreas();

private:
    static void Hands();
};

void LayoutsTest::Hands() {
    QTest::addColumn<bool>("leftHanded");
    QTest::newRow("nut at the left") << false;
    QTest::newRow("nut at the right") << true;
}

void LayoutsTest::Frets() {
    QCOMPARE(FretboardLayout().FretAt(1), std::optional(1));
    QCOMPARE(FretboardLayout().FretAt(479.5), std::optional(1));
    QCOMPARE(FretboardLayout().FretAt(480), std::nullopt);
    QCOMPARE(FretboardLayout().FretAt(480.5), std::optional(2));
    QCOMPARE(FretboardLayout().FretAt(7210), std::optional(16));
    QCOMPARE(FretboardLayout().FretAt(0), std::nullopt);
    QCOMPARE(FretboardLayout().FretAt(-1), std::nullopt);
}

void LayoutsTest::Rows() {
    QCOMPARE(FretboardLayout::RowAt(61), std::optional(5));
    QCOMPARE(FretboardLayout::RowAt(60), std::nullopt);
    QCOMPARE(FretboardLayout::RowAt(420), std::nullopt);
    QCOMPARE(FretboardLayout::RowAt(2174), std::optional(0));
    QCOMPARE(FretboardLayout::RowAt(2221), std::nullopt);
    for (int row = 0; row < stringCount; ++row)
        QCOMPARE(FretboardLayout::RowAt(FretboardLayout::StringY(row)), std::optional(row));
}

void LayoutsTest::Marks() {
    QCOMPARE(FretboardLayout().MarkCentre(0, 1), QPointF(247, 2040));
    QCOMPARE(FretboardLayout().MarkCentre(5, 16), QPointF(247 + 15 * 480, 240));
    QCOMPARE(FretboardLayout().MarkRect(0, 0), QRectF(247 - 127.5 - 480, 2040 - 127.5, 255, 255));
}

void LayoutsTest::Bars() {
    QCOMPARE(FretboardLayout().BarreRect({1, 5}), QRectF(119.5, 200, 255, 1960));
    QCOMPARE(FretboardLayout().BarreRect({3, 0}), QRectF(119.5 + 960, 2000, 255, 160));
}

void LayoutsTest::HoldOfTheBar() {
    QVERIFY(FretboardLayout().IsOnBarre({1, 5}, 247));
    QVERIFY(!FretboardLayout().IsOnBarre({1, 5}, 247 - 127.5));
    QVERIFY(!FretboardLayout().IsOnBarre({1, 5}, 247 + 127.5));
    QVERIFY(!FretboardLayout().IsOnBarre({2, 5}, 247));
}

void LayoutsTest::DraggingTheBar() {
    QCOMPARE(FretboardLayout().BarreStep({1, 5}, 247 + 400), 0); // The dead zone.
    QCOMPARE(FretboardLayout().BarreStep({1, 5}, 247 + 401), 1);
    QCOMPARE(FretboardLayout().BarreStep({2, 5}, 247 + 80), 0);
    QCOMPARE(FretboardLayout().BarreStep({2, 5}, 247 + 79), -1);
    QCOMPARE(FretboardLayout().BarreStep({2, 0}, 9000), 1);
}

void LayoutsTest::MarksAreHitWhereTheyLie() {
    QFETCH(bool, leftHanded);
    const FretboardLayout layout{leftHanded};
    const QRectF board(QPointF(0, 0), FretboardLayout::size);
    for (int fret = 1; fret <= 15; ++fret)
        for (int row = 0; row < stringCount; ++row) {
            const QRectF mark = layout.MarkRect(row, fret);
            QCOMPARE(mark.center(), layout.MarkCentre(row, fret));
            QVERIFY(board.contains(mark));
            for (const double x : {mark.left(), mark.center().x(), mark.right()}) {
                QCOMPARE(layout.FretAt(x), std::optional(fret));
                QCOMPARE(FretboardLayout::RowAt(mark.center().y()), std::optional(row));
            }
            QVERIFY(layout.IsOnBarre({fret, row}, mark.center().x()));
            QVERIFY(layout.BarreRect({fret, row}).contains(mark.center()));
            QVERIFY(!layout.IsOnBarre({fret, row}, layout.FretX(fret)));
        }
    QVERIFY(!board.contains(layout.MarkCentre(0, 0))); // Off the board, beside the nut.
}

void LayoutsTest::LinesAreNoFret() {
    QFETCH(bool, leftHanded);
    const FretboardLayout layout{leftHanded};
    for (int fret = 0; fret <= 15; ++fret)
        QCOMPARE(layout.FretAt(layout.FretX(fret)), std::nullopt);
    for (int fret = 1; fret <= 15; ++fret)
        QCOMPARE(layout.FretAt(layout.FretMiddle(fret)), std::optional(fret));
}

void LayoutsTest::DraggingFollowsTheHand() {
    QFETCH(bool, leftHanded);
    const FretboardLayout layout{leftHanded};
    const Barre barre{7, 5};
    QCOMPARE(layout.BarreStep(barre, layout.FretMiddle(8)), 1);
    QCOMPARE(layout.BarreStep(barre, layout.FretMiddle(6)), -1);
    QCOMPARE(layout.BarreStep(barre, layout.FretMiddle(7)), 0);
}

void LayoutsTest::LabelsStandAtTheirPlaces() {
    QFETCH(bool, leftHanded);
    const FretboardLayout layout{leftHanded};
    for (int fret = 1; fret <= 15; ++fret)
        QVERIFY(std::abs(layout.FretLabel(fret).center().x() - layout.FretMiddle(fret)) < 10);
    const double bridge = layout.FromNut(FretboardLayout::size.width());
    for (int row = 0; row < stringCount; ++row) {
        const QRectF label = layout.NoteLabel(row);
        QVERIFY(std::abs(label.center().y() - FretboardLayout::StringY(row)) < 10);
        QCOMPARE(leftHanded ? bridge - label.right() : label.left() - bridge, -15.0);
    }
}

void LayoutsTest::TheOtherHandIsTheMirrorImage() {
    const FretboardLayout right;
    const FretboardLayout left{.leftHanded = true};
    QCOMPARE(left.MarkCentre(2, 1), QPointF(7215 - 247, FretboardLayout::StringY(2)));
    QCOMPARE(left.FretX(0), 7215.0);
    QVERIFY(left.FretMiddle(1) > left.FretMiddle(2));
    QCOMPARE(left.BarreRect({3, 2}).width(), right.BarreRect({3, 2}).width());
    QCOMPARE(left.BarreRect({3, 2}).center().x(), 7215 - right.BarreRect({3, 2}).center().x());
    QVERIFY(left != right);
}

void LayoutsTest::KeyRects() {
    QCOMPARE(KeyboardLayout().KeyRect(0), QRectF(0, 0, 375, 1575));
    QCOMPARE(KeyboardLayout().KeyRect(35), QRectF(7200, 0, 375, 1575));
    const QList<double> blackLefts{240, 600, 1320, 1680, 2040};
    qsizetype black = 0;
    for (int key = 0; key < keyCount; ++key) {
        if (!IsBlackKey(key))
            continue;
        const qsizetype octave = black / 5;
        QCOMPARE(
            KeyboardLayout().KeyRect(key),
            QRectF(blackLefts[black % 5] + 2520.0 * static_cast<double>(octave), 0, 255, 1095));
        ++black;
    }
    QCOMPARE(black, 15);
}

void LayoutsTest::KeysByZone() {
    for (int zone = 0; zone < 63; ++zone)
        QCOMPARE(KeyboardLayout().KeyAt({zone * 123 + 61.0, 500}),
                 std::optional<int>(KeyZoneNotes[static_cast<std::size_t>(zone)]));
    QCOMPARE(KeyboardLayout().KeyAt({123, 500}), std::nullopt);
    QCOMPARE(KeyboardLayout().KeyAt({7700, 500}), std::optional(0)); // The last zone leads back.
    QCOMPARE(KeyboardLayout().KeyAt({7749, 500}), std::nullopt);
}

void LayoutsTest::KeysBelow() {
    QCOMPARE(KeyboardLayout().KeyAt({10, 1200}), std::optional(0));
    QCOMPARE(KeyboardLayout().KeyAt({360, 1200}), std::nullopt);
    QCOMPARE(KeyboardLayout().KeyAt({361, 1200}), std::optional(2));
    QCOMPARE(KeyboardLayout().KeyAt({7559, 1200}), std::optional(35));
    QCOMPARE(KeyboardLayout().KeyAt({7570, 1200}), std::nullopt);
    QCOMPARE(KeyboardLayout().KeyAt({10, 1095}), std::nullopt);
    QCOMPARE(KeyboardLayout().KeyAt({10, 1094.9}), std::optional(0));
}

void LayoutsTest::FreeAreas() {
    for (int key = 0; key < keyCount; ++key) {
        if (!IsBlackKey(key)) {
            const QPointF middle = KeyboardLayout().FreeArea(key).center();
            QCOMPARE(KeyboardLayout().KeyAt(middle), std::optional(key));
        }
    }
}

QTEST_APPLESS_MAIN(LayoutsTest)
#include "layouts_test.moc"
