// Ends the process after a window's first complete paint and prints its resident memory.
#pragma once

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QTimer>
#include <QWidget>

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
        QFile status(QStringLiteral("/proc/self/status"));
        if (status.open(QIODevice::ReadOnly))
            for (const QByteArray& line : status.readAll().split('\n'))
                if (line.startsWith("VmRSS"))
                    std::puts(line.constData());
        QCoreApplication::quit();
    }
};
