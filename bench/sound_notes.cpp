// How long the first note takes to start, how long a later one does and the first after a rest,
// in milliseconds, and whether memory grows over 10,000 notes, in kilobytes. Run beside a sound
// server; says no figure where nothing sounds.
#include "sound/midiapi.h"

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
    const QCoreApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: sound_notes PROGRAM-FOLDER/\n", stderr);
        return 1;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    const QString file = folder + QStringLiteral("sounds/strings/20.mid");
    MidiAPI midi(folder, std::chrono::milliseconds(0));
    const auto playTime = [&] {
        QElapsedTimer timer;
        timer.start();
        midi.PlayMidiFile(file);
        return static_cast<double>(timer.nsecsElapsed()) / 1e6;
    };
    const double first = playTime();
    if (!midi.MidiOpen()) {
        std::fputs("Nothing sounds here.\n", stderr);
        return 0;
    }
    std::printf("FirstNote %.2f\n", first);
    std::vector<double> later;
    int before = 0;
    for (int note = 0; note < 10'000; ++note) {
        if (note == 1000)
            before = ResidentKilobytes();
        later.push_back(playTime());
    }
    std::sort(later.begin(), later.end());
    std::printf("LaterNote %.2f\nLongestLaterNote %.2f\n", later[later.size() / 2], later.back());
    std::printf("GrowthAfterNineThousandNotes %d\n", ResidentKilobytes() - before);
    midi.CloseMidiFile();
    while (midi.HoldsDevice())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    std::printf("NoteAfterARest %.2f\n", playTime());
    return 0;
}
