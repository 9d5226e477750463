// The synthesiser library, loaded when the first note is played: a program that stays silent
// starts no slower and takes no more memory than one without sound.
#pragma once

#include <fluidsynth.h>

// Its functions, as its own headers declare them.
struct FluidSynthLibrary {
    decltype(&::new_fluid_settings) new_fluid_settings;
    decltype(&::delete_fluid_settings) delete_fluid_settings;
    decltype(&::fluid_settings_setstr) fluid_settings_setstr;
    decltype(&::fluid_settings_setint) fluid_settings_setint;
    decltype(&::fluid_settings_setnum) fluid_settings_setnum;
    decltype(&::fluid_settings_getnum) fluid_settings_getnum;
    decltype(&::new_fluid_synth) new_fluid_synth;
    decltype(&::delete_fluid_synth) delete_fluid_synth;
    decltype(&::fluid_synth_sfload) fluid_synth_sfload;
    decltype(&::fluid_synth_set_channel_type) fluid_synth_set_channel_type;
    decltype(&::fluid_synth_noteon) fluid_synth_noteon;
    decltype(&::fluid_synth_noteoff) fluid_synth_noteoff;
    decltype(&::fluid_synth_cc) fluid_synth_cc;
    decltype(&::fluid_synth_get_cc) fluid_synth_get_cc;
    decltype(&::fluid_synth_program_change) fluid_synth_program_change;
    decltype(&::fluid_synth_channel_pressure) fluid_synth_channel_pressure;
    decltype(&::fluid_synth_key_pressure) fluid_synth_key_pressure;
    decltype(&::fluid_synth_pitch_bend) fluid_synth_pitch_bend;
    decltype(&::fluid_synth_pitch_wheel_sens) fluid_synth_pitch_wheel_sens;
    decltype(&::fluid_synth_all_notes_off) fluid_synth_all_notes_off;
    decltype(&::fluid_synth_all_sounds_off) fluid_synth_all_sounds_off;
    decltype(&::fluid_synth_write_float) fluid_synth_write_float;
    decltype(&::new_fluid_audio_driver2) new_fluid_audio_driver2;
    decltype(&::delete_fluid_audio_driver) delete_fluid_audio_driver;
    decltype(&::fluid_set_log_function) fluid_set_log_function;
};

// The library with its messages switched off; null where it is not installed.
// Loaded by the first call and kept.
const FluidSynthLibrary* LoadFluidSynth();
