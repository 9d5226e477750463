// The clock by which the program waits.
#include "sound/eventclock.h"

#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

class EventClockTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AWaitEndsWhenItsMomentHasCome();
    void EventsComeInMeanwhile();
    void AMomentThatIsPastIsNotWaitedFor();
};

void EventClockTest::AWaitEndsWhenItsMomentHasCome() {
    EventClock clock;
    const double until = clock.Now() + 0.05;
    clock.WaitUntil(until);
    QVERIFY(clock.Now() >= until);
}

void EventClockTest::EventsComeInMeanwhile() {
    EventClock clock;
    bool came = false;
    QTimer::singleShot(0, this, [&came] { came = true; });
    clock.WaitUntil(clock.Now() + 0.05);
    QVERIFY(came);
}

void EventClockTest::AMomentThatIsPastIsNotWaitedFor() {
    EventClock clock;
    bool came = false;
    QTimer::singleShot(0, this, [&came] { came = true; });
    clock.WaitUntil(clock.Now() - 5);
    QVERIFY(!came);
}

QTEST_GUILESS_MAIN(EventClockTest)
#include "eventclock_test.moc"
