// Where a window opens beside what is to be seen meanwhile.
#include "controls/placing.h"

#include <QScreen>
#include <QTest>
#include <QWidget>

class PlacingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void PlacesBeside_data() {
        QTest::addColumn<QRect>("seen");
        QTest::addColumn<QRect>("place");
        // The screen is 1000 x 600, the window 400 x 300, 300 x 200 at least.
        QTest::newRow("right of it") << QRect(0, 50, 600, 500) << QRect(600, 50, 400, 300);
        QTest::newRow("narrower where it must be")
            << QRect(0, 0, 650, 600) << QRect(650, 0, 350, 300);
        QTest::newRow("left of it") << QRect(500, 0, 500, 600) << QRect(100, 0, 400, 300);
        QTest::newRow("below it, no lower than the screen")
            << QRect(0, 0, 1000, 350) << QRect(0, 350, 400, 250);
        QTest::newRow("above it") << QRect(0, 300, 1000, 300) << QRect(0, 0, 400, 300);
        QTest::newRow("no room anywhere") << QRect(200, 150, 600, 300) << QRect();
        QTest::newRow("what is seen reaches out of the screen")
            << QRect(-50, 400, 500, 500) << QRect(450, 300, 400, 300);
    }
    void PlacesBeside() {
        QFETCH(const QRect, seen);
        QFETCH(const QRect, place);
        const auto found = PlaceBeside(seen, {400, 300}, {300, 200}, {0, 0, 1000, 600});
        QCOMPARE(found.value_or(QRect()), place);
    }

    void TheFirstThatLeavesRoomIsLeftFree() {
        QWidget window;
        window.setMinimumSize(200, 100);
        const QRect screen = window.screen()->availableGeometry();
        const QRect half = screen.adjusted(0, 0, -screen.width() / 2, 0);
        OpenBeside(window, {screen, half});
        QVERIFY(!window.geometry().intersects(half));
        QVERIFY(screen.contains(window.geometry()));
        const QRect before = window.geometry();
        OpenBeside(window, {screen}); // No room at all.
        QCOMPARE(window.geometry(), before);
    }

    void AControlOnTheScreen() {
        QWidget window;
        QWidget control(&window);
        window.move(30, 40);
        control.setGeometry(5, 6, 70, 80);
        QCOMPARE(OnScreen(control), QRect(window.pos() + QPoint(5, 6), QSize(70, 80)));
    }
};

QTEST_MAIN(PlacingTest)
#include "placing_test.moc"
