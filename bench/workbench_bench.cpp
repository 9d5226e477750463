// The workbench's computations and its window, from a click to the end of the paint.
#include "controls/application.h"
#include "core/chordtypes.h"
#include "core/scales.h"
#include "core/tunings.h"
#include "music/names.h"
#include "music/spelling.h"
#include "music/typedchord.h"
#include "pictures/keyboardpainting.h"
#include "pictures/neckpainting.h"
#include "support/mainwindow.h"

#include <QPainter>
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
BENCHMARK(ChordChangeToPaint)->Unit(benchmark::kMicrosecond);

// Processor time from a click on the neck to the painted name of what sounds.
void ClickToName(benchmark::State& state) {
    MainWindow main;
    main.window.resize(main.window.minimumSize());
    QCoreApplication::processEvents();
    int fret = 1;
    for (auto _ : state) {
        main.Click(main.board, FretboardLayout().MarkCentre(1, fret));
        QCoreApplication::processEvents();
        fret = fret % 12 + 1;
    }
}
BENCHMARK(ClickToName)->Unit(benchmark::kMicrosecond);

// One step of a resize: layout and paint.
void ResizeStep(benchmark::State& state) {
    MainWindow main;
    const QSize smallest = main.window.minimumSizeHint();
    int step = 0;
    for (auto _ : state) {
        step = (step + 7) % 300;
        main.window.resize(smallest + QSize(step, step / 2));
        QCoreApplication::processEvents();
    }
}
BENCHMARK(ResizeStep)->Unit(benchmark::kMicrosecond);

void UndoAndRedo(benchmark::State& state) {
    MainWindow main;
    main.window.lstType->SelectRow(7);
    bool undo = true;
    for (auto _ : state) {
        if (undo)
            main.window.Undo();
        else
            main.window.Redo();
        undo = !undo;
    }
}
BENCHMARK(UndoAndRedo)->Unit(benchmark::kMicrosecond);

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
BENCHMARK(ScaleChangeToPaint)->Unit(benchmark::kMicrosecond);

// The painting alone, without what the windows keep painted, at the screen's scale.
template <typename Paint>
void PaintPicture(benchmark::State& state, const TwipPicture& picture, Paint paint) {
    QImage image(picture.size() * picture.devicePixelRatioF(), QImage::Format_ARGB32_Premultiplied);
    const double scale = picture.Scale() * picture.devicePixelRatioF();
    for (auto _ : state) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(scale, scale);
        paint(painter);
    }
}

void PaintFretboard(benchmark::State& state) {
    MainWindow main;
    main.window.resize(main.window.minimumSize());
    FretboardView view;
    for (std::size_t row = 0; row < view.marks.size(); ++row)
        view.marks[row] = main.workbench.Row(static_cast<int>(row)).mark;
    PaintPicture(state, *main.board, [&](QPainter& painter) {
        PaintNeck(painter, view.layout, true);
        PaintMarks(painter, view);
    });
}
BENCHMARK(PaintFretboard)->Unit(benchmark::kMicrosecond);

void PaintKeys(benchmark::State& state) {
    MainWindow main;
    main.window.resize(main.window.minimumSize());
    KeyboardView view;
    for (int key = 0; key < keyCount; ++key)
        view.fills[static_cast<std::size_t>(key)] = main.workbench.Keys().Fill(key);
    PaintPicture(state, *main.keyboard, [&](QPainter& painter) { PaintKeyboard(painter, view); });
}
BENCHMARK(PaintKeys)->Unit(benchmark::kMicrosecond);

QString DataFile(const QTemporaryDir& folder, qint64 records, const QByteArray& restOfRecord) {
    QFile file(folder.filePath(QStringLiteral("records.dat")));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write the benchmark's file");
    for (qint64 i = 0; i < records; ++i)
        file.write("Name" + QByteArray::number(i) + "\r\n" + restOfRecord + "\r\n");
    return file.fileName();
}

const QByteArray restOfChord("alt, other\r\nsfx\r\n43");

void ReadCatalogue(benchmark::State& state, TextTable (*builtIn)(),
                   const QByteArray& restOfRecord) {
    const QTemporaryDir folder;
    const QString path = DataFile(folder, state.range(0), restOfRecord);
    for (auto _ : state) {
        TextTable table = builtIn();
        table.AppendDataFile(path);
        benchmark::DoNotOptimize(table.Count());
    }
}

void Sizes(benchmark::internal::Benchmark* reading) {
    reading->Arg(50)->Arg(10'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);
}

BENCHMARK_CAPTURE(ReadCatalogue, chords, &BuiltInChordTypes, restOfChord)->Apply(Sizes);
BENCHMARK_CAPTURE(ReadCatalogue, scales, &BuiltInScales, "1,3,5,6,8,10,12")->Apply(Sizes);
BENCHMARK_CAPTURE(ReadCatalogue, tunings, &BuiltInTunings, "E,B,G,D,A,E")->Apply(Sizes);

void Recognise(benchmark::State& state) {
    const QTemporaryDir folder;
    TextTable types = BuiltInChordTypes();
    types.AppendDataFile(DataFile(folder, state.range(0), restOfChord));
    for (auto _ : state)
        benchmark::DoNotOptimize(NameChord({0, 1, 2, 3}, types)); // In no entry.
}
BENCHMARK(Recognise)->Apply(Sizes);

void FindByName(benchmark::State& state) {
    const QTemporaryDir folder;
    TextTable types = BuiltInChordTypes();
    types.AppendDataFile(DataFile(folder, state.range(0), restOfChord));
    for (auto _ : state)
        benchmark::DoNotOptimize(FindChordType(types, QStringLiteral("none")));
}
BENCHMARK(FindByName)->Apply(Sizes);

void OfferTypes(benchmark::State& state) {
    const QTemporaryDir folder;
    TextTable types = BuiltInChordTypes();
    types.AppendDataFile(DataFile(folder, state.range(0), restOfChord));
    for (auto _ : state)
        benchmark::DoNotOptimize(MatchTypedChord(types, QStringLiteral("Cx"), 8));
}
BENCHMARK(OfferTypes)->Apply(Sizes);

std::vector<Shape> ShapesToName() {
    std::vector<Shape> shapes;
    for (const char* frets : {"x32010", "x02213", "xx0101", "000000", "x33333", "0x2343"})
        shapes.push_back(ReadShape(QString::fromLatin1(frets)).value());
    return shapes;
}

void NameShapes(benchmark::State& state, const PlayersNames& names) {
    AppState shared;
    LayStrings(shared, standardStrings, true);
    const Tuning tuning = TuningOf(shared);
    const std::vector<Shape> shapes = ShapesToName();
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(names.Of(SoundingPitches(shapes[next], tuning)));
        next = (next + 1) % shapes.size();
    }
}

void NameShape(benchmark::State& state) {
    const TextTable types = BuiltInChordTypes();
    NameShapes(state, PlayersNames(types));
}
BENCHMARK(NameShape);

// A file with every set of notes that there is, over and over.
TextTable AllTypes(const QTemporaryDir& folder, int records) {
    QFile file(folder.filePath(QStringLiteral("records.dat")));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write the benchmark's file");
    for (int i = 0; i < records; ++i) {
        QByteArray structure;
        int step = 0;
        for (int interval = 1; interval < notesPerOctave; ++interval) {
            ++step;
            if ((i >> (interval - 1) & 1) != 0 && step < 10)
                structure += QByteArray::number(std::exchange(step, 0));
        }
        file.write("Name\r\nalt\r\nsfx\r\n" + structure + "\r\n");
    }
    file.close();
    TextTable types = BuiltInChordTypes();
    types.AppendDataFile(file.fileName());
    return types;
}

void NameShapeAmongMillion(benchmark::State& state) {
    const QTemporaryDir folder;
    const TextTable types = AllTypes(folder, 1'000'000);
    NameShapes(state, PlayersNames(types));
}
BENCHMARK(NameShapeAmongMillion);

void IndexNames(benchmark::State& state) {
    const QTemporaryDir folder;
    const TextTable types = AllTypes(folder, static_cast<int>(state.range(0)));
    for (auto _ : state) {
        const PlayersNames names(types);
        benchmark::DoNotOptimize(names.Of({}));
    }
}
BENCHMARK(IndexNames)->Apply(Sizes);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Application application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
