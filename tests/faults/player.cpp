// player FOLDER FILE [NOTES | rests]: plays a file a few times as the program does; says after
// each start whether it sounds. With "rests" the notes are far apart, and it also says whether
// the device is kept between.
#include "sound/fluidsynth.h"
#include "sound/midiapi.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

namespace {

void PlayInTurn(MidiAPI& midi, const QString& file, int notes) {
    for (int note = 0; note < notes; ++note) {
        midi.PlayMidiFile(file);
        std::puts(midi.MidiOpen() ? "sounds" : "silent");
        if (note % 2 == 0) // Otherwise the next note ends it.
            midi.CloseMidiFile();
    }
}

void PlayWithRests(MidiAPI& midi, const QString& file) {
    for (int note = 0; note < 3; ++note) {
        midi.PlayMidiFile(file);
        QCoreApplication::processEvents();
        std::puts(midi.MidiOpen() && midi.HoldsDevice() ? "sounds" : "silent");
        midi.CloseMidiFile();
        QCoreApplication::processEvents();
        std::puts(midi.HoldsDevice() ? "kept" : "let go");
        midi.PlayMidiFile(file);
        midi.PlayMidiFile(file + QStringLiteral(".gone")); // The last note has no file.
        midi.CloseMidiFile();
        QCoreApplication::processEvents();
        std::puts(midi.HoldsDevice() ? "kept" : "let go");
    }
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    if (argc < 3)
        return 2;
    const QString file = QFile::decodeName(argv[2]);
    const QByteArray how(argc > 3 ? argv[3] : "20");
    const bool rests = how == "rests";
    MidiAPI midi(QFile::decodeName(argv[1]), std::chrono::seconds(rests ? 0 : 10));
    if (rests)
        PlayWithRests(midi, file);
    else
        PlayInTurn(midi, file, how.toInt());
    std::puts(LoadFluidSynth() != nullptr ? "library" : "no library");
}
