// A chord type and a scale whose names have two million letters: chosen, shown, looked for,
// named and played, to the end of the paint.
#include "controls/application.h"
#include "support/mainwindow.h"

#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include <benchmark/benchmark.h>

#include <memory>

namespace {

constexpr int letters = 2'000'000;

void Append(TextTable& table, const QByteArray& records) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("records.dat")));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write the benchmark's file");
    file.write(records);
    file.close();
    table.AppendDataFile(file.fileName());
}

struct Window {
    Window() {
        const QByteArray endless(letters, 'W');
        const QByteArray type = "\r\n" + endless + ", found\r\n" + endless + "\r\n";
        Append(main.state.ChordTypes,
               "one" + type + "43\r\n" + "two" + type + "34\r\n" + endless + type + "44\r\n");
        Append(main.state.Scales, endless + "\r\n1,3,5\r\n" + endless + "\r\n1,4,6\r\n");
        main.window.ShowTypes();
        main.window.ShowScales();
        QCoreApplication::processEvents();
    }

    MainWindow main;
};

std::unique_ptr<Window> shown; // As long as the application lives.

void Paint() {
    QCoreApplication::processEvents();
    shown->main.window.grab();
}

void EndlessChoose(benchmark::State& state) {
    ListBox* list = shown->main.window.lstType;
    int back = 0;
    for (auto _ : state) {
        list->SelectRow(list->RowCount() - 1 - back);
        Paint();
        back = (back + 1) % 3;
    }
}
BENCHMARK(EndlessChoose)->Unit(benchmark::kMillisecond);

void EndlessScale(benchmark::State& state) {
    ListBox* list = shown->main.window.lstLad;
    int back = 0;
    for (auto _ : state) {
        list->SelectRow(list->RowCount() - 1 - back);
        Paint();
        back = 1 - back;
    }
}
BENCHMARK(EndlessScale)->Unit(benchmark::kMillisecond);

void EndlessSearch(benchmark::State& state) {
    shown->main.window.txtFind->setText(QStringLiteral("two"));
    for (auto _ : state) {
        shown->main.window.cmdFind_Click();
        Paint();
    }
}
BENCHMARK(EndlessSearch)->Unit(benchmark::kMillisecond);

void EndlessName(benchmark::State& state) {
    ListBox* list = shown->main.window.lstType;
    list->SelectRow(list->RowCount() - 1);
    for (auto _ : state) {
        shown->main.window.cmdFindChord_Click();
        Paint();
    }
}
BENCHMARK(EndlessName)->Unit(benchmark::kMillisecond);

void EndlessPlay(benchmark::State& state) {
    ListBox* list = shown->main.window.lstType;
    list->SelectRow(list->RowCount() - 1);
    for (auto _ : state) {
        shown->main.window.GoldButton2_Click();
        Paint();
    }
}
BENCHMARK(EndlessPlay)->Unit(benchmark::kMillisecond);

// The box with the other names, opened and closed.
void EndlessBox(benchmark::State& state) {
    ListBox* list = shown->main.window.lstType;
    list->SelectRow(list->RowCount() - 1);
    for (auto _ : state) {
        QTimer::singleShot(0, [] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            box->grab();
            box->button(QMessageBox::Ok)->click();
        });
        shown->main.window.lstType_DblClick();
    }
}
BENCHMARK(EndlessBox)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Application application(argc, argv);
    benchmark::Initialize(&argc, argv);
    shown = std::make_unique<Window>();
    benchmark::RunSpecifiedBenchmarks();
    shown.reset();
    return 0;
}
