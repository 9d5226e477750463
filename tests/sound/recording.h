// The real player with its synthesiser and sound font, and a device that asks for samples only
// while the test waits: time is the count of rendered samples, whatever the machine does.
#pragma once

#include "sound/midiapi.h"
#include "sound/output.h"

#include <array>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <vector>

constexpr double sampleRate = 44100;

// Written by the device's thread and read by nobody meanwhile: both are the test's own.
using Samples = std::vector<float>;

class PulledOutput : public Output {
public:
    bool Open(Render render) override;
    void Close() override;
    bool Lost() const override { return false; }

    // Waits until the device is open.
    void Pull(float* left, float* right, int frames);

private:
    std::mutex m_mutex;
    std::condition_variable m_opened;
    Render m_render;
};

// Records while it waits. Nothing is to be waited for before the first note.
class Recording : public Clock {
public:
    explicit Recording(const QString& appPath);

    double Now() const override { return static_cast<double>(m_left.size()) / sampleRate; }
    void WaitUntil(double seconds) override;

    // Renders one period without recording it.
    void Pull();

    MidiAPI& Midi() { return m_midi; }

    // What was heard on the left; the sound font's two sides may be a few cents apart.
    const Samples& Heard() const { return m_left; }

    std::function<void()> onWait; // Events, which come in every few milliseconds.

private:
    PulledOutput* m_output; // The player's.
    MidiAPI m_midi;
    static constexpr int period = 256;
    std::array<float, period> m_period{};
    Samples m_left;
};
