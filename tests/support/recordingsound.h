// A player that writes down what it is asked for, and a clock moved by hand: a wait returns
// at once, at the moment that was waited for.
#pragma once

#include "sound/sound.h"

#include <QDir>
#include <QStringList>

#include <functional>
#include <utility>

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
        EndStrum();
        played += QDir::fromNativeSeparators(fileName).section(QStringLiteral("sounds/"), 1);
        times += m_clock.now;
    }
    void CloseMidiFile() override { ++closed; }
    void Strum(const QStringList& files) override {
        EndStrum();
        strummed.clear();
        for (const QString& file : files)
            strummed += QDir::fromNativeSeparators(file).section(QStringLiteral("sounds/"), 1);
        strumming = true;
        ++strums;
    }
    void EndStrum() override {
        if (std::exchange(strumming, false))
            StrumEnded();
    }

    bool Waking() const override { return m_clock.now < sounding; }

    QStringList played;
    QList<double> times;
    int closed = 0;
    QStringList strummed; // By the last strum.
    bool strumming = false;
    int strums = 0;
    double sounding = 0; // From when on notes begin to sound.

private:
    const HandClock& m_clock;
};
