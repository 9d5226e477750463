// The key that stops playback, in the windows beside the main one that have no commands of
// their own.
#pragma once

#include <QObject>

#include <functional>

class StopKey : public QObject {
public:
    // Watches the application while it lives.
    explicit StopKey(std::function<void()> stop);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void()> m_stop;
};
