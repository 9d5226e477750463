// How long the first note takes to start, how long a later one does, and whether memory
// grows over 10,000 notes. Run beside a sound server; without one, notes are silent.
#include "workbench/midiapi.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

int ResidentKilobytes() {
    QFile status(QStringLiteral("/proc/self/statm"));
    return status.open(QIODevice::ReadOnly) ? status.readAll().split(' ').value(1).toInt() * 4 : 0;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: sound_notes PROGRAM-FOLDER/\n", stderr);
        return 1;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    MidiAPI midi(folder);
    const QString file = folder + QStringLiteral("sounds/strings/20.mid");
    QElapsedTimer timer;
    timer.start();
    midi.PlayMidiFile(file);
    std::printf("first note: %.1f ms, sounding: %s\n",
                static_cast<double>(timer.nsecsElapsed()) / 1e6, midi.MidiOpen() ? "yes" : "no");
    std::vector<double> later;
    int before = 0;
    for (int note = 0; note < 10'000; ++note) {
        if (note == 1000)
            before = ResidentKilobytes();
        timer.restart();
        midi.PlayMidiFile(file);
        later.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(later.begin(), later.end());
    std::printf("later notes: median %.2f ms, longest %.2f ms\n", later[later.size() / 2],
                later.back());
    std::printf("memory after 1,000 notes %d kB, after 10,000 %d kB\n", before,
                ResidentKilobytes());
    return 0;
}
