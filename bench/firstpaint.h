// Ends the process after a window's first complete paint; prints the microseconds from the
// moment in the environment's START (seconds since 1970) to that, and the resident kilobytes.
#pragma once

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <cstdio>

class FirstPaint : public QObject {
public:
    explicit FirstPaint(QWidget* window) { window->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            QTimer::singleShot(0, this, &FirstPaint::Finish);
        return false;
    }

private:
    static void Finish() {
        const std::chrono::duration<double, std::micro> now =
            std::chrono::system_clock::now().time_since_epoch();
        std::printf("%.0f ", now.count() - qgetenv("START").toDouble() * 1e6);
        QFile status(QStringLiteral("/proc/self/status"));
        if (status.open(QIODevice::ReadOnly))
            for (const QByteArray& line : status.readAll().split('\n'))
                if (line.startsWith("VmRSS"))
                    std::printf("%d\n", line.simplified().split(' ').value(1).toInt());
        QCoreApplication::quit();
    }
};
