// The desktop's sound server, or the sound card where there is none.
#pragma once

#include "sound/fluidsynth.h"
#include "sound/output.h"

#include <atomic>
#include <chrono>

class Device : public Output {
public:
    Device() = default;
    ~Device() override;
    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;

    bool Open(Render render) override;
    void Close() override;
    bool Lost() const override;

private:
    using Clock = std::chrono::steady_clock;

    static int Ask(void* device, int frames, int effects, float* effect[], int outputs,
                   float* output[]);

    Render m_render;
    fluid_settings_t* m_settings = nullptr;
    fluid_audio_driver_t* m_driver = nullptr;
    std::atomic<Clock::time_point> m_asked{}; // When it last asked for samples.
};
