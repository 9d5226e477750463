#include "sound/device.h"

#include <QtGlobal>

#include <array>
#include <utility>

namespace {

// The desktop's sound server first; never JACK, which would start by itself.
#ifdef Q_OS_LINUX
constexpr std::array drivers{"pulseaudio", "pipewire", "alsa"};
#else
constexpr std::array drivers{""};
#endif

} // namespace

Device::~Device() {
    Device::Close();
}

bool Device::Open(Render render) {
    const FluidSynthLibrary* library = LoadFluidSynth();
    if (library == nullptr)
        return false;
    m_render = std::move(render);
    m_settings = library->new_fluid_settings();
    // Some 25 ms at a time: below, a busy machine is late and the sound has gaps.
    library->fluid_settings_setint(m_settings, "audio.period-size", 1024);
    library->fluid_settings_setint(m_settings, "audio.periods", 2);
    library->fluid_settings_setint(m_settings, "audio.realtime-prio", 0);
    m_asked = Clock::now();
    for (const char* driver : drivers) {
        if (*driver != '\0')
            library->fluid_settings_setstr(m_settings, "audio.driver", driver);
        m_driver = library->new_fluid_audio_driver2(m_settings, &Ask, this);
        if (m_driver != nullptr)
            return true;
    }
    Close();
    return false;
}

void Device::Close() {
    if (m_driver != nullptr)
        LoadFluidSynth()->delete_fluid_audio_driver(std::exchange(m_driver, nullptr));
    if (m_settings != nullptr)
        LoadFluidSynth()->delete_fluid_settings(std::exchange(m_settings, nullptr));
    m_render = nullptr;
}

// A server that is merely late asks again within its buffer's length, a few hundredths.
bool Device::Lost() const {
    return Clock::now() - m_asked.load() > std::chrono::milliseconds(500);
}

int Device::Ask(void* device, int frames, int, float*[], int outputs, float* output[]) {
    auto& self = *static_cast<Device*>(device);
    self.m_asked = Clock::now();
    if (outputs < 2)
        return FLUID_FAILED;
    self.m_render(output[0], output[1], frames);
    return FLUID_OK;
}
