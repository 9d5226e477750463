#include "sound/eventclock.h"

#include <QEventLoop>
#include <QTimer>

#include <chrono>
#include <cmath>

double EventClock::Now() const {
    using Seconds = std::chrono::duration<double>;
    return Seconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

void EventClock::WaitUntil(double seconds) {
    const double left = seconds - Now();
    if (left <= 0)
        return;
    QEventLoop loop;
    QTimer timer;
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    timer.start(static_cast<int>(std::ceil(left * 1000)));
    loop.exec();
}
