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
    decltype(&::new_fluid_synth) new_fluid_synth;
    decltype(&::delete_fluid_synth) delete_fluid_synth;
    decltype(&::fluid_synth_sfload) fluid_synth_sfload;
    decltype(&::fluid_synth_all_notes_off) fluid_synth_all_notes_off;
    decltype(&::fluid_synth_write_float) fluid_synth_write_float;
    decltype(&::new_fluid_audio_driver) new_fluid_audio_driver;
    decltype(&::delete_fluid_audio_driver) delete_fluid_audio_driver;
    decltype(&::new_fluid_player) new_fluid_player;
    decltype(&::delete_fluid_player) delete_fluid_player;
    decltype(&::fluid_player_add_mem) fluid_player_add_mem;
    decltype(&::fluid_player_play) fluid_player_play;
    decltype(&::fluid_player_stop) fluid_player_stop;
    decltype(&::fluid_set_log_function) fluid_set_log_function;
};

// The library with its messages switched off; null where it is not installed.
// Loaded by the first call and kept.
const FluidSynthLibrary* LoadFluidSynth();
