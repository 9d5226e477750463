// The workbench's computations and its window, from a click to the end of the paint.
#include "controls/application.h"
#include "core/chordtypes.h"
#include "support/mainwindow.h"
#include "workbench/spelling.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace {

void SpellAndFinger(benchmark::State& state) {
    AppState shared;
    LayStrings(shared, standardStrings, true);
    Workbench bench(shared);
    bench.ChooseRoot(0, QStringLiteral("C"));
    int type = 0;
    for (auto _ : state) {
        bench.ChooseType(type);
        type = (type + 1) % 50;
    }
}
BENCHMARK(SpellAndFinger);

// Processor time; the window is painted without a screen.
void ChordChangeToPaint(benchmark::State& state) {
    MainWindow main;
    main.window.resize(main.window.minimumSize());
    QCoreApplication::processEvents();
    int type = 0;
    for (auto _ : state) {
        main.window.lstType->SelectRow(type);
        QCoreApplication::processEvents();
        type = (type + 1) % 50;
    }
}
BENCHMARK(ChordChangeToPaint);

void ScaleChangeToPaint(benchmark::State& state) {
    MainWindow main;
    main.window.resize(main.window.minimumSize());
    QCoreApplication::processEvents();
    int scale = 0;
    for (auto _ : state) {
        main.window.lstLad->SelectRow(scale);
        QCoreApplication::processEvents();
        scale = (scale + 1) % 66;
    }
}
BENCHMARK(ScaleChangeToPaint);

QString ChordsFile(const QTemporaryDir& folder, qint64 records) {
    QFile file(folder.filePath(QStringLiteral("chords.dat")));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write the benchmark's file");
    for (qint64 i = 0; i < records; ++i)
        file.write("Name" + QByteArray::number(i) + "\r\nalt, other\r\nsfx\r\n43\r\n");
    return file.fileName();
}

void ReadCatalogue(benchmark::State& state) {
    const QTemporaryDir folder;
    const QString path = ChordsFile(folder, state.range(0));
    for (auto _ : state) {
        TextTable types = BuiltInChordTypes();
        types.AppendDataFile(path);
        benchmark::DoNotOptimize(types.Count());
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(ReadCatalogue)->Arg(50)->Arg(10'000)->Arg(1'000'000)->Complexity(benchmark::oN);

void Recognise(benchmark::State& state) {
    const QTemporaryDir folder;
    TextTable types = BuiltInChordTypes();
    types.AppendDataFile(ChordsFile(folder, state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(NameChord({0, 1, 2, 3}, types)); // In no entry.
}
BENCHMARK(Recognise)->Arg(50)->Arg(10'000)->Arg(1'000'000);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Application application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
