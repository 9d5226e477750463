// Plays a file a few times as the program does; says after each start whether it sounds.
#include "workbench/fluidsynth.h"
#include "workbench/midiapi.h"

#include <QFile>

#include <cstdio>

int main(int argc, char** argv) {
    if (argc < 3)
        return 2;
    MidiAPI midi(QFile::decodeName(argv[1]));
    for (int note = 0; note < 20; ++note) {
        midi.PlayMidiFile(QFile::decodeName(argv[2]));
        std::puts(midi.MidiOpen() ? "sounds" : "silent");
        if (note % 2 == 0) // Otherwise the next note ends it.
            midi.CloseMidiFile();
    }
    std::puts(LoadFluidSynth() != nullptr ? "library" : "no library");
}
