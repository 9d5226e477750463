// player FOLDER FILE [NOTES]: plays a file a few times as the program does; says after each start
// whether it sounds.
#include "workbench/fluidsynth.h"
#include "workbench/midiapi.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

int main(int argc, char** argv) {
    if (argc < 3)
        return 2;
    const QCoreApplication application(argc, argv);
    const int notes = argc > 3 ? QByteArray(argv[3]).toInt() : 20;
    MidiAPI midi(QFile::decodeName(argv[1]));
    for (int note = 0; note < notes; ++note) {
        midi.PlayMidiFile(QFile::decodeName(argv[2]));
        std::puts(midi.MidiOpen() ? "sounds" : "silent");
        if (note % 2 == 0) // Otherwise the next note ends it.
            midi.CloseMidiFile();
    }
    std::puts(LoadFluidSynth() != nullptr ? "library" : "no library");
}
