// How a note begins and what it costs: how long PlayMidiFile keeps its caller, in milliseconds,
// at the first note and at a thousand later ones; after how many samples a note is heard; how
// soon the first one of a session sounds, device and sound font being opened (beside a sound
// server only), in milliseconds; and how memory grows between 100 and 10,000 notes, in
// kilobytes.
#include "sound/device.h"
#include "sound/midiapi.h"
#include "tests/sound/recording.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

namespace {

int ResidentKilobytes() {
    QFile status(QStringLiteral("/proc/self/statm"));
    return status.open(QIODevice::ReadOnly) ? status.readAll().split(' ').value(1).toInt() * 4 : 0;
}

double Milliseconds(const QElapsedTimer& timer) {
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double PlayTime(MidiAPI& midi, const QString& file) {
    QElapsedTimer timer;
    timer.start();
    midi.PlayMidiFile(file);
    return Milliseconds(timer);
}

// From the call to the first sample that can be heard.
std::size_t SilentSamples(Recording& recording, const QString& file) {
    const auto call = recording.Heard().size();
    recording.Midi().PlayMidiFile(file);
    recording.WaitUntil(recording.Now() + 0.3);
    recording.Midi().CloseMidiFile();
    const auto begin = recording.Heard().begin() + static_cast<std::ptrdiff_t>(call);
    const auto heard = std::find_if(begin, recording.Heard().end(),
                                    [](float sample) { return std::abs(sample) > 1e-4F; });
    recording.WaitUntil(recording.Now() + 5); // Until it has died away.
    return static_cast<std::size_t>(heard - begin);
}

void Measure(const QString& folder, const QString& file) {
    Recording recording(folder);
    MidiAPI& midi = recording.Midi();
    std::printf("FirstCall %.3f\n", PlayTime(midi, file));
    recording.WaitUntil(5);
    std::size_t silent = 0;
    for (int key = 0; key < 36; ++key)
        silent = std::max(silent, SilentSamples(recording, folder + QStringLiteral("sounds/keys/") +
                                                               QString::number(key) +
                                                               QStringLiteral(".mid")));
    std::printf("SilentSamples %zu\n", silent);
    std::vector<double> calls;
    int before = 0;
    for (int note = 0; note < 10'000; ++note) {
        if (note == 100)
            before = ResidentKilobytes();
        calls.push_back(PlayTime(midi, file));
        recording.Pull();
    }
    std::printf("GrowthOverTenThousandNotes %d\n", ResidentKilobytes() - before);
    calls.resize(1000);
    std::sort(calls.begin(), calls.end());
    std::printf("Call %.4f\nLongestCall %.3f\n", calls[calls.size() / 2], calls.back());
}

void MeasureDevice(const QString& folder, const QString& file) {
    MidiAPI midi(folder);
    QElapsedTimer timer;
    timer.start();
    midi.PlayMidiFile(file);
    while (midi.Waiting())
        QCoreApplication::processEvents();
    if (midi.HoldsDevice())
        std::printf("FirstNote %.1f\n", Milliseconds(timer));
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
    MeasureDevice(folder, file);
    Measure(folder, file);
    return 0;
}
