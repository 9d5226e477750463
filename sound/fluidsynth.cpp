#include "sound/fluidsynth.h"

#include <QLibrary>
#include <QString>

#include <optional>

namespace {

// Whether every function was found.
class Resolver {
public:
    explicit Resolver(QLibrary& library) : m_library(library) {}

    template <typename Function>
    void operator()(Function& function, const char* name) {
        function = reinterpret_cast<Function>(m_library.resolve(name));
        m_complete = m_complete && function != nullptr;
    }

    bool Complete() const { return m_complete; }

private:
    QLibrary& m_library;
    bool m_complete = true;
};

std::optional<FluidSynthLibrary> Resolve(QLibrary& library) {
    FluidSynthLibrary found{};
    Resolver resolve(library);
#define TONVIK_RESOLVE(function) resolve(found.function, #function)
    TONVIK_RESOLVE(new_fluid_settings);
    TONVIK_RESOLVE(delete_fluid_settings);
    TONVIK_RESOLVE(fluid_settings_setstr);
    TONVIK_RESOLVE(fluid_settings_setint);
    TONVIK_RESOLVE(fluid_settings_setnum);
    TONVIK_RESOLVE(fluid_settings_getnum);
    TONVIK_RESOLVE(new_fluid_synth);
    TONVIK_RESOLVE(delete_fluid_synth);
    TONVIK_RESOLVE(fluid_synth_sfload);
    TONVIK_RESOLVE(fluid_synth_set_channel_type);
    TONVIK_RESOLVE(fluid_synth_noteon);
    TONVIK_RESOLVE(fluid_synth_noteoff);
    TONVIK_RESOLVE(fluid_synth_cc);
    TONVIK_RESOLVE(fluid_synth_get_cc);
    TONVIK_RESOLVE(fluid_synth_program_change);
    TONVIK_RESOLVE(fluid_synth_channel_pressure);
    TONVIK_RESOLVE(fluid_synth_key_pressure);
    TONVIK_RESOLVE(fluid_synth_pitch_bend);
    TONVIK_RESOLVE(fluid_synth_pitch_wheel_sens);
    TONVIK_RESOLVE(fluid_synth_all_notes_off);
    TONVIK_RESOLVE(fluid_synth_all_sounds_off);
    TONVIK_RESOLVE(fluid_synth_write_float);
    TONVIK_RESOLVE(new_fluid_audio_driver2);
    TONVIK_RESOLVE(delete_fluid_audio_driver);
    TONVIK_RESOLVE(fluid_set_log_function);
#undef TONVIK_RESOLVE
    return resolve.Complete() ? std::optional(found) : std::nullopt;
}

bool LoadAny(QLibrary& library) {
    for (const int version : {3, 2}) {
        library.setFileNameAndVersion(QStringLiteral("fluidsynth"), version);
        if (library.load())
            return true;
    }
    for (const auto& name : {QStringLiteral("fluidsynth"), QStringLiteral("libfluidsynth-3")}) {
        library.setFileName(name);
        if (library.load())
            return true;
    }
    return false;
}

#ifdef Q_OS_LINUX
void IgnoreAlsa(const char*, int, const char*, int, const char*, ...) {} // NOLINT(cert-dcl50-cpp)
#endif

// Sound hardware that is missing is silence, not a message on the terminal.
void SilenceMessages(const FluidSynthLibrary& synth) {
    for (const int level : {FLUID_PANIC, FLUID_ERR, FLUID_WARN, FLUID_INFO, FLUID_DBG})
        synth.fluid_set_log_function(
            level, [](int, const char*, void*) {}, nullptr);
#ifdef Q_OS_LINUX
    QLibrary alsa(QStringLiteral("asound"), 2);
    using Handler = void (*)(const char*, int, const char*, int, const char*, ...);
    using SetHandler = int (*)(Handler);
    if (const auto set = reinterpret_cast<SetHandler>(alsa.resolve("snd_lib_error_set_handler")))
        set(&IgnoreAlsa);
#endif
}

std::optional<FluidSynthLibrary> Load() {
    QLibrary library;
    if (!LoadAny(library))
        return std::nullopt;
    const auto synth = Resolve(library);
    if (synth)
        SilenceMessages(*synth);
    return synth;
}

} // namespace

const FluidSynthLibrary* LoadFluidSynth() {
    static const std::optional<FluidSynthLibrary> library = Load();
    return library ? &*library : nullptr;
}
