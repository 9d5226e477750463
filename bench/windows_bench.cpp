// Opening the settings dialog and the help, and the sheet's long texts.
#include "controls/application.h"
#include "diagrams/frmdiags.h"
#include "diagrams/printlibrary.h"
#include "diagrams/sheetexport.h"
#include "diagrams/sheetfile.h"
#include "diagrams/sheetpainting.h"
#include "info/frmhelp.h"
#include "settings/frmsettings.h"
#include "support/recordingsound.h"
#include "voicings/frmvoicings.h"

#include <QScrollBar>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace {

void OpenSettings(benchmark::State& state) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("tunings.dat")));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write the benchmark's file");
    for (qint64 i = 36; i < state.range(0); ++i)
        file.write("Tuning" + QByteArray::number(i) + "\r\nE,B,G,D,A,E\r\n");
    file.close();
    AppState shared;
    shared.AppPath = folder.path() + u'/';
    shared.Tunings.AppendDataFile(file.fileName());
    HandClock clock;
    RecordingPlayer midi(clock);
    for (auto _ : state) {
        frmSettings dialog(shared, midi, clock, [](const Settings&) {});
        dialog.Form_Load();
        dialog.show();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(OpenSettings)->Arg(36)->Arg(10'000)->Unit(benchmark::kMillisecond);

// At the English heading, which is in the middle of the text.
void OpenHelp(benchmark::State& state) {
    AppState shared;
    shared.AppPath = QStringLiteral(PROGRAM_FOLDER "/");
    shared.LanguageFile = shared.AppPath + QStringLiteral("english.lng");
    for (auto _ : state) {
        frmHelp help(shared, [] { return ChordRows{12, 50}; });
        help.show();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(OpenHelp)->Unit(benchmark::kMillisecond);

// A seventh chord in an open tuning, which has the most voicings of all.
void OpenVoicings(benchmark::State& state) {
    ChordToPlay playing{{{0, 4, 7, 10}, 0, {}}, QStringLiteral("C7")};
    int string = 0;
    for (const PitchClass note : {4, 0, 7, 0, 7, 0}) {
        ++string;
        playing.chord.tuning[static_cast<std::size_t>(string - 1)] = StringTunedTo(string, note);
    }
    const Voicings found = FindVoicings(playing.chord.notes, 0, playing.chord.tuning);
    AppState shared;
    for (auto _ : state) {
        frmVoicings window(shared);
        window.show();
        window.ShowState(playing, found, {}, {});
        QCoreApplication::processEvents();
    }
}
BENCHMARK(OpenVoicings)->Unit(benchmark::kMillisecond);

// A page on in the same list, to the end of the paint.
void ScrollVoicings(benchmark::State& state) {
    ChordToPlay playing{{{0, 4, 7, 10}, 0, {}}, QStringLiteral("C7")};
    for (int string = 1; string <= stringCount; ++string)
        playing.chord.tuning[static_cast<std::size_t>(string - 1)] =
            OpenString{standardPitches[static_cast<std::size_t>(string - 1)] % notesPerOctave,
                       standardPitches[static_cast<std::size_t>(string - 1)]};
    const Voicings found = FindVoicings(playing.chord.notes, 0, playing.chord.tuning);
    AppState shared;
    frmVoicings window(shared);
    window.show();
    window.ShowState(playing, found, {}, {});
    QScrollBar* bar = window.lstVoicings->verticalScrollBar();
    QCoreApplication::processEvents();
    for (auto _ : state) {
        bar->setValue(bar->value() < bar->maximum() ? bar->value() + bar->pageStep() : 0);
        QCoreApplication::processEvents();
    }
}
BENCHMARK(ScrollVoicings)->Unit(benchmark::kMillisecond);

void OpenLongestSheet(benchmark::State& state) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("s.txt")));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write the benchmark's file");
    file.write(
        QByteArray("Am - 011000 and a line of a song\r\n").repeated(1500).left(longestSheet));
    file.close();
    AppState shared;
    frmDiags sheet(shared, [] { return BoardFingering{}; });
    sheet.show();
    for (auto _ : state) {
        sheet.txtMain->setPlainText(ReadSheet(file.fileName()));
        QCoreApplication::processEvents();
    }
}
BENCHMARK(OpenLongestSheet)->Unit(benchmark::kMillisecond);

void WriteThousandCodes(benchmark::State& state) {
    AppState shared;
    frmDiags sheet(shared, [] { return BoardFingering{QStringLiteral("Am"), 5, {}}; });
    for (int i = 0; i < 1000; ++i)
        sheet.cmdAdd_Click();
    sheet.show();
    for (auto _ : state) {
        sheet.txtMain->clear();
        sheet.cmdMake_Click();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(WriteThousandCodes)->Unit(benchmark::kMillisecond);

// A hundred codes in the text, and one more letter before them.
void PreviewAfterAKey(benchmark::State& state) {
    AppState shared;
    frmDiags sheet(shared, [] { return BoardFingering{}; });
    sheet.resize(1200, 800);
    sheet.show();
    sheet.txtMain->setPlainText(
        QStringLiteral("Am - 012200 F - 112331 Bm - Б2/001220 C - 010230 ").repeated(25));
    QCoreApplication::processEvents();
    for (auto _ : state) {
        sheet.txtMain->insertPlainText(QStringLiteral("x"));
        QCoreApplication::processEvents();
    }
}
BENCHMARK(PreviewAfterAKey)->Unit(benchmark::kMillisecond);

void PdfOfThousandDiagrams(benchmark::State& state) {
    const QString text =
        QStringLiteral("Am - 012200 F - 112331 Bm - Б2/001220 C - 010230 ").repeated(250);
    const Printing& printing = LoadPrinting(QStringLiteral(TONVIK_PRINT_FOLDER));
    const QSizeF paper = PaperOfLocale();
    for (auto _ : state) {
        const auto pages = LayOutSheet(ReadSheetText(text, {}), {paper, false, FontWidths()});
        benchmark::DoNotOptimize(printing.Pdf(Painted(pages, paper), QString()));
    }
}
BENCHMARK(PdfOfThousandDiagrams)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Application application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
