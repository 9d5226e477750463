// Every voicing of a chord with its fingers, ranked.
#include "core/chordtypes.h"
#include "core/tunings.h"
#include "music/spelling.h"
#include "music/voicings.h"

#include <QStringList>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <ctime>

namespace {

Tuning TunedTo(const QStringList& names) {
    Tuning tuning;
    for (int string = 1; string <= stringCount; ++string)
        tuning[static_cast<std::size_t>(string - 1)] =
            StringTunedTo(string, SemitoneOf(names[string - 1]).value());
    return tuning;
}

Tuning Standard() {
    return TunedTo(QStringLiteral("E,B,G,D,A,E").split(u','));
}

void FindOne(benchmark::State& state, NoteSet notes) {
    const Tuning tuning = Standard();
    for (auto _ : state)
        benchmark::DoNotOptimize(FindVoicings(notes, 0, tuning));
}
BENCHMARK_CAPTURE(FindOne, C, NoteSet({0, 4, 7}))->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(FindOne, C7, NoteSet({0, 4, 7, 10}))->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(FindOne, C9, NoteSet({0, 2, 4, 7, 10}))->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(FindOne, C13, NoteSet({0, 2, 4, 7, 9, 10}))->Unit(benchmark::kMicrosecond);

// Every chord in every tuning, each once a round: of the medians, in microseconds of processor
// time, the median and the worst.
void FindAll(benchmark::State& state) {
    struct Task {
        NoteSet notes;
        PitchClass root;
        Tuning tuning;
        std::vector<double> times;
    };
    std::vector<Task> tasks;
    const TextTable types = BuiltInChordTypes();
    const TextTable tunings = BuiltInTunings();
    for (int tuning = 1; tuning <= tunings.Count(); ++tuning)
        for (int type = 1; type <= types.Count(); ++type)
            for (PitchClass root = 0; root < notesPerOctave; ++root) {
                NoteSet notes;
                for (const int key : ChordKeys(root, types.Field(ChordType::Structure, type)))
                    notes.Add(key);
                tasks.push_back({notes,
                                 root,
                                 TunedTo(tunings.Field(TuningDef::Notes, tuning).split(u',')),
                                 {}});
            }
    for (auto _ : state)
        for (Task& task : tasks) {
            const std::clock_t start = std::clock();
            benchmark::DoNotOptimize(FindVoicings(task.notes, task.root, task.tuning));
            task.times.push_back(1e6 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
        }
    std::vector<double> medians;
    for (Task& task : tasks) {
        const auto middle = task.times.begin() + static_cast<std::ptrdiff_t>(task.times.size() / 2);
        std::nth_element(task.times.begin(), middle, task.times.end());
        medians.push_back(*middle);
    }
    std::sort(medians.begin(), medians.end());
    state.counters["median"] = medians[medians.size() / 2];
    state.counters["worst"] = medians.back();
}
BENCHMARK(FindAll)->Unit(benchmark::kMillisecond)->Iterations(9);

} // namespace

BENCHMARK_MAIN();
