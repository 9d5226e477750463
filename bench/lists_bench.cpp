// The lists of the windows with a million rows: paging, jumping and searching by a letter,
// from the key to the end of the paint.
#include "controls/application.h"
#include "settings/frmsettings.h"
#include "support/mainwindow.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include <memory>

namespace {

constexpr int records = 1'000'000;

void Append(TextTable& table, const QByteArray& name, const QByteArray& restOfRecord) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("records.dat")));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write the benchmark's file");
    for (int i = 0; i < records; ++i)
        file.write(name + QByteArray::number(i) + "\r\n" + restOfRecord + "\r\n");
    file.close();
    table.AppendDataFile(file.fileName());
}

// The main window and the settings dialog over catalogues of a million records. The scales
// have Russian names, which are not the same bytes in memory as in the file.
struct Windows {
    Windows() {
        Append(main.state.ChordTypes, "Chord", "alt, other\r\nsfx\r\n43");
        Append(main.state.Scales, "\xCB\xE0\xE4", "1,3,5,6,8,10,12");
        Append(main.state.Tunings, "Tuning", "E,B,G,D,A,E");
        main.window.ShowTypes();
        main.window.ShowScales();
        main.window.SelectDefaults();
        settings.Form_Load();
        settings.Options[2]->click();
        settings.show();
        QCoreApplication::processEvents();
    }

    ListBox* List(int number) {
        return std::array{main.window.lstType, main.window.lstLad,
                          settings.lstTunings}[static_cast<std::size_t>(number)];
    }

    MainWindow main;
    frmSettings settings{main.state, main.midi, main.clock, [](const Settings&) {}};
};

std::unique_ptr<Windows> shown; // As long as the application lives.

void PressAndPaint(ListBox* list, Qt::Key key) {
    QTest::keyClick(list, key);
    QCoreApplication::processEvents();
}

void PageDown(benchmark::State& state) {
    ListBox* list = shown->List(static_cast<int>(state.range(0)));
    list->SelectRow(0);
    QCoreApplication::processEvents();
    for (auto _ : state)
        PressAndPaint(list, Qt::Key_PageDown);
}
BENCHMARK(PageDown)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

void EndAndHome(benchmark::State& state) {
    ListBox* list = shown->List(static_cast<int>(state.range(0)));
    Qt::Key key = Qt::Key_End;
    for (auto _ : state) {
        PressAndPaint(list, key);
        key = key == Qt::Key_End ? Qt::Key_Home : Qt::Key_End;
    }
}
BENCHMARK(EndAndHome)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

// No row begins with the letter, so every row is looked at.
void SearchByLetter(benchmark::State& state) {
    ListBox* list = shown->List(static_cast<int>(state.range(0)));
    list->SelectRow(0);
    for (auto _ : state)
        PressAndPaint(list, Qt::Key_Q);
}
BENCHMARK(SearchByLetter)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Application application(argc, argv);
    benchmark::Initialize(&argc, argv);
    shown = std::make_unique<Windows>();
    benchmark::RunSpecifiedBenchmarks();
    shown.reset();
    return 0;
}
