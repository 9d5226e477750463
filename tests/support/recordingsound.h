// A player that writes down what it is asked for, and a clock moved by hand: a wait returns
// at once, at the moment that was waited for.
#pragma once

#include "sound/sound.h"

#include <QDir>
#include <QStringList>

#include <functional>

class HandClock : public Clock {
public:
    double Now() const override { return now; }
    void WaitUntil(double seconds) override {
        if (onWait)
            onWait();
        now = std::max(now, seconds) + late;
    }

    double now = 100;
    double late = 0;              // How long after the moment a wait comes back.
    std::function<void()> onWait; // Events that come in during a wait.
};

class RecordingPlayer : public MidiPlayer {
public:
    explicit RecordingPlayer(const HandClock& clock) : m_clock(clock) {}

    void PlayMidiFile(const QString& fileName) override {
        played += QDir::fromNativeSeparators(fileName).section(QStringLiteral("sounds/"), 1);
        times += m_clock.now;
    }
    void CloseMidiFile() override { ++closed; }

    QStringList played;
    QList<double> times;
    int closed = 0;

private:
    const HandClock& m_clock;
};
