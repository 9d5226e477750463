// player FOLDER FILE HOW: plays a file a few times as the program does; says each time whether
// it sounds. HOW is a number of notes; "rests" for notes far apart, where it also says whether
// the device is kept between; "asks" for notes that nobody waits
// for, the second one behind the end of the input.
#include "sound/device.h"
#include "sound/leftbehind.h"
#include "sound/midiapi.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <thread>

namespace {

// Until the sound room's thread has come so far.
void Until(const std::function<bool()>& done) {
    while (!done()) {
        QCoreApplication::processEvents();
        std::this_thread::yield();
    }
}

void Play(MidiAPI& midi, const QString& file) {
    midi.PlayMidiFile(file);
    Until([&midi] { return !midi.Waiting(); });
    std::puts(midi.MidiOpen() && midi.HoldsDevice() ? "sounds" : "silent");
}

void PlayInTurn(MidiAPI& midi, const QString& file, int notes) {
    for (int note = 0; note < notes; ++note) {
        Play(midi, file);
        if (note % 2 == 0) // Otherwise the next note ends it.
            midi.CloseMidiFile();
    }
}

void PlayWithRests(MidiAPI& midi, const QString& file) {
    for (int note = 0; note < 3; ++note) {
        Play(midi, file);
        midi.PlayMidiFile(file + QStringLiteral(".gone")); // The last note has no file.
        midi.CloseMidiFile();
        Until([&midi] { return !midi.HoldsDevice(); });
        std::puts("let go");
    }
}

void Ask(MidiAPI& midi, const QString& file) {
    midi.PlayMidiFile(file);
    while (std::getchar() != EOF) {
    }
    for (int note = 0; note < 20; ++note) {
        midi.PlayMidiFile(file);
        std::puts(midi.HoldsDevice() ? "sounds" : "silent");
    }
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    if (argc != 4)
        return 2;
    const QString file = QFile::decodeName(argv[2]);
    const QByteArray how(argv[3]);
    {
        MidiAPI midi(QFile::decodeName(argv[1]), std::make_unique<Device>(),
                     how == "rests" ? 0 : 8);
        if (how == "rests")
            PlayWithRests(midi, file);
        else if (how == "asks")
            Ask(midi, file);
        else
            PlayInTurn(midi, file, how.toInt());
    }
    std::puts(SoundLeftBehind() ? "left behind" : "ended");
    std::fflush(stdout);
    if (SoundLeftBehind())
        std::_Exit(EXIT_SUCCESS);
}
