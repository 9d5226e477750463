// The sheet's pages as files, by the library that prints.
#include "diagrams/sheetexport.h"

#include "core/runtimeerror.h"
#include "diagrams/printlibrary.h"
#include "diagrams/sheetpainting.h"
#include "support/testfolder.h"
#include "svgdots.h"

#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

constexpr QSizeF paper(11900, 16840);

class SheetExportTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EveryDotIsInTheSvg_data();
    void EveryDotIsInTheSvg();
    void SvgIsWellFormed();
    void SvgNamesLettersThatEveryReaderHas();
    void APageAFile();
    void PdfHasItsPagesAndFonts();
    void PngHasTwoPixelsToAPoint();
    void TheSameBytesTwice();
    void TheSamePagesInTwoRuns();
    void FileNames_data();
    void FileNames();
    void WhereNothingCanBeWritten();
    void OldFilesStayWhereWritingFails();
    void WithoutTheLibrary();

public:
    // A song of two pages in each format.
    static int ExportAll(const QString& path) {
        const QString song =
            QStringLiteral("{title: Песня}\n[Am]x [F]y\n{define: F frets 1 3 3 2 1 1}\n"
                           "Am - 012200 F - Б1/001220 \n{soc}\n[C]Привет\n{eoc}\n{np}\nnext");
        const auto pages = LayOutSheet(ReadSheetText(song, {}), {paper, false, FontWidths()});
        const PaintedPages painted = Painted(pages, paper);
        ExportPdf(path + QStringLiteral(".pdf"), painted, QString(), Library());
        ExportSvg(path + QStringLiteral(".svg"), painted, QString(), Library());
        ExportPng(path + QStringLiteral(".png"), pages, paper);
        return 0;
    }

private:
    static const Printing& Library() { return LoadPrinting(QStringLiteral(TONVIK_PRINT_FOLDER)); }
    void Export(const QString& text, bool leftHanded = false);
    QByteArray Bytes(const QString& name) const { return m_folder.Bytes(name); }

    TestFolder m_folder;
    std::vector<SheetPage> m_pages;
    PaintedPages m_painted;
};

namespace {

// A library that makes nothing.
class NoPrinting : public Printing {
    QByteArray Pdf(const PaintedPages&, const QString&) const override { return {}; }
    QByteArray Svg(const PaintedPages&, int, const QString&) const override { return {}; }
    bool Preview(QWidget*, const QString&, QSizeF,
                 const std::function<PaintedPages(QSizeF paper)>&) const override {
        return false;
    }
};

QByteArray WithoutDates(QByteArray pdf) {
    for (const QByteArray& key : {QByteArray("/CreationDate"), QByteArray("/ModDate")})
        for (qsizetype at = pdf.indexOf(key); at >= 0; at = pdf.indexOf(key, at + 1))
            pdf.remove(at + key.size(), pdf.indexOf('\n', at) - at - key.size());
    return pdf;
}

} // namespace

void SheetExportTest::Export(const QString& text, bool leftHanded) {
    m_pages = LayOutSheet(ReadSheetText(text, {}), {paper, leftHanded, FontWidths()});
    m_painted = Painted(m_pages, paper);
}

void SheetExportTest::EveryDotIsInTheSvg_data() {
    QTest::addColumn<bool>("leftHanded");
    QTest::newRow("right-handed") << false;
    QTest::newRow("left-handed") << true;
}

void SheetExportTest::EveryDotIsInTheSvg() {
    QFETCH(const bool, leftHanded);
    Export(QStringLiteral("Am - 012200 F - 112331 Am - Б5/000220 X - 0000020 "
                          "Y - 10121212110 <&/ - 320033 \n{define: Q frets x 1 3 x 15 0}"),
           leftHanded);
    ExportSvg(m_folder.Path(QStringLiteral("s.svg")), m_painted, QString(), Library());
    QList<QRectF> dots = DotsOfSvg(Bytes(QStringLiteral("s.svg")));
    QCOMPARE(m_pages.at(0).diagrams.size(), 7U);
    for (const PlacedDiagram& placed : m_pages[0].diagrams) {
        const DiagramLayout layout(placed.diagram);
        for (int string = 1; string <= stringCount; ++string) {
            const int fret = placed.diagram.shape.Fret(string);
            if (fret < 1)
                continue;
            const QPointF expected = placed.place.topLeft() + layout.DotCentre(string, fret);
            const auto found = std::find_if(dots.begin(), dots.end(), [&](const QRectF& dot) {
                return QLineF(dot.center(), expected).length() < 5;
            });
            QVERIFY2(
                found != dots.end(),
                qPrintable(QStringLiteral("%1, string %2").arg(placed.diagram.name).arg(string)));
            dots.erase(found);
        }
    }
    QVERIFY(dots.isEmpty()); // And none that is no finger.
}

void SheetExportTest::SvgIsWellFormed() {
    Export(QStringLiteral("{title: a < b & \"c\" / d}\n[A<&/]x\001\uFFFF\nC<&/\002 - 000000"));
    ExportSvg(m_folder.Path(QStringLiteral("s.svg")), m_painted, QStringLiteral("<&/>"), Library());
    QXmlStreamReader xml(Bytes(QStringLiteral("s.svg")));
    QString texts;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isCharacters())
            texts += xml.text();
        if (xml.isStartElement() && xml.name() == u"svg")
            QCOMPARE(xml.attributes().value(QStringLiteral("viewBox")),
                     QStringLiteral("0 0 11900 16840"));
    }
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QVERIFY(texts.contains(QStringLiteral("a < b & \"c\" / d")));
    QVERIFY(texts.contains(QStringLiteral("C<&/")));
}

void SheetExportTest::SvgNamesLettersThatEveryReaderHas() {
    Export(QStringLiteral("Am - 011000\n{sot}\n--0--\n{eot}"));
    ExportSvg(m_folder.Path(QStringLiteral("s.svg")), m_painted, QString(), Library());
    const QString svg = QString::fromUtf8(Bytes(QStringLiteral("s.svg")));
    static const QRegularExpression family(QStringLiteral("font-family=\"([^\"]*)\""));
    QStringList kinds;
    for (auto found = family.globalMatch(svg); found.hasNext();)
        kinds += found.next().captured(1).section(QStringLiteral(", "), -1);
    kinds.removeDuplicates();
    kinds.sort();
    QCOMPARE(kinds, (QStringList{QStringLiteral("monospace"), QStringLiteral("sans-serif")}));
}

void SheetExportTest::APageAFile() {
    Export(QStringLiteral("one\n{np}\ntwo\n{np}\nthree"));
    ExportSvg(m_folder.Path(QStringLiteral("p.svg")), m_painted, QString(), Library());
    ExportPng(m_folder.Path(QStringLiteral("p.png")), m_pages, paper);
    for (const char* name : {"p.svg", "p-2.svg", "p-3.svg", "p.png", "p-2.png", "p-3.png"})
        QVERIFY2(!Bytes(QString::fromLatin1(name)).isEmpty(), name);
    QVERIFY(Bytes(QStringLiteral("p-2.svg")).contains("two"));
    QVERIFY(Bytes(QStringLiteral("p-4.svg")).isEmpty());
}

void SheetExportTest::PdfHasItsPagesAndFonts() {
    Export(QStringLiteral("Am - 011000\nПривет\n{np}\ntwo"));
    const QString path = m_folder.Path(QStringLiteral("s.pdf"));
    ExportPdf(path, m_painted, QStringLiteral("Song"), Library());
    QVERIFY(!QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty());
    const auto told = [&path](const QString& tool, const QStringList& arguments) {
        QProcess process;
        process.start(tool, arguments);
        process.waitForFinished();
        return QString::fromUtf8(process.readAllStandardOutput());
    };
    const QString pages = told(QStringLiteral("pdftotext"), {path, QStringLiteral("-")});
    QCOMPARE(pages.count(u'\f'), 2);
    QVERIFY2(pages.contains(QStringLiteral("Привет")), qPrintable(pages));
    QVERIFY(pages.section(u'\f', 0, 0).trimmed().endsWith(u'1')); // The pages' numbers.
    QVERIFY(pages.section(u'\f', 1, 1).trimmed().endsWith(u'2'));
    const QString about = told(QStringLiteral("pdfinfo"), {path});
    QVERIFY2(about.contains(QStringLiteral("595 x 842 pts (A4)")), qPrintable(about));
    QVERIFY(about.contains(QStringLiteral("Song")));
    const QStringList fonts =
        told(QStringLiteral("pdffonts"), {path}).split(u'\n', Qt::SkipEmptyParts).mid(2);
    QVERIFY(!fonts.isEmpty());
    for (const QString& font : fonts) // The columns "emb" and "sub".
        QVERIFY2(font.contains(QRegularExpression(QStringLiteral("  yes (yes|no ) "))),
                 qPrintable(font));
}

void SheetExportTest::PngHasTwoPixelsToAPoint() {
    Export(QStringLiteral("Am - 012200"));
    ExportPng(m_folder.Path(QStringLiteral("s.png")), m_pages, paper);
    const QImage image(m_folder.Path(QStringLiteral("s.png")));
    QCOMPARE(image.size(), QSize(1190, 1684));
    const PlacedDiagram& placed = m_pages.at(0).diagrams.at(0);
    const DiagramLayout layout(placed.diagram);
    const auto at = [&](QPointF place) {
        return image.pixelColor(((placed.place.topLeft() + place) / 10).toPoint());
    };
    QCOMPARE(at(layout.DotCentre(2, 1)), QColor(Qt::black));
    QCOMPARE(image.pixelColor(5, 5), QColor(Qt::white));
}

void SheetExportTest::TheSameBytesTwice() {
    Export(QStringLiteral("{title: A}\n[C]Привет\nAm - 011000 ").repeated(40));
    const auto bytes = [this](const QString& name) {
        ExportPdf(m_folder.Path(name + QStringLiteral(".pdf")), m_painted, name.left(1), Library());
        ExportSvg(m_folder.Path(name + QStringLiteral(".svg")), m_painted, name.left(1), Library());
        ExportPng(m_folder.Path(name + QStringLiteral(".png")), m_pages, paper);
        return QList<QByteArray>{WithoutDates(Bytes(name + QStringLiteral(".pdf"))),
                                 Bytes(name + QStringLiteral(".svg")),
                                 Bytes(name + QStringLiteral(".png"))};
    };
    const auto first = bytes(QStringLiteral("x1"));
    QVERIFY(first[0].size() > 1000);
    QCOMPARE(bytes(QStringLiteral("x2")), first);
}

void SheetExportTest::TheSamePagesInTwoRuns() {
    const auto run = [this](const QString& name) {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(),
                      {QStringLiteral("--export"), m_folder.Path(name)});
        process.waitForFinished();
        const QString pdf = name + QStringLiteral(".pdf");
        process.start(QStringLiteral("pdftoppm"), {QStringLiteral("-r"), QStringLiteral("60"),
                                                   m_folder.Path(pdf), m_folder.Path(pdf)});
        process.waitForFinished();
        return QList<QByteArray>{
            Bytes(pdf + QStringLiteral("-1.ppm")), Bytes(pdf + QStringLiteral("-2.ppm")),
            Bytes(name + QStringLiteral(".svg")),  Bytes(name + QStringLiteral("-2.svg")),
            Bytes(name + QStringLiteral(".png")),  Bytes(name + QStringLiteral("-2.png"))};
    };
    const auto first = run(QStringLiteral("y1"));
    for (const QByteArray& page : first)
        QVERIFY(page.size() > 1000);
    QVERIFY(first[0] != first[1]);
    QVERIFY(run(QStringLiteral("y2")) == first);
}

void SheetExportTest::FileNames_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("second");
    const auto row = [](const char* rule, const char* path, const char* second) {
        QTest::newRow(rule) << QString::fromLatin1(path) << QString::fromLatin1(second);
    };
    row("before the suffix", "/a/song.svg", "/a/song-2.svg");
    row("only the last suffix", "/a/song.v1.svg", "/a/song.v1-2.svg");
    row("no suffix", "/a.b/song", "/a.b/song-2");
}

void SheetExportTest::FileNames() {
    QFETCH(const QString, path);
    QCOMPARE(PageFiles(path, 1), QStringList(path));
    QCOMPARE(PageFiles(path, 3).size(), 3);
    QTEST(PageFiles(path, 3).at(1), "second");
}

void SheetExportTest::WhereNothingCanBeWritten() {
    Export(QStringLiteral("Am - 011000"));
    const QString gone = m_folder.Path(QStringLiteral("gone/s"));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, ExportPdf(gone, m_painted, QString(), Library()));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, ExportSvg(gone, m_painted, QString(), Library()));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, ExportPng(gone, m_pages, paper));
}

void SheetExportTest::OldFilesStayWhereWritingFails() {
    Export(QStringLiteral("Am - 011000"));
    QVERIFY(m_folder.Write(QStringLiteral("old.svg"), "old"));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, ExportSvg(m_folder.Path(QStringLiteral("old.svg")),
                                                     m_painted, QString(), NoPrinting()));
    QCOMPARE(Bytes(QStringLiteral("old.svg")), QByteArray("old"));
}

void SheetExportTest::WithoutTheLibrary() {
    QProcess process; // In this process it may have been loaded already.
    process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--no-library")});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 3);
    const QString said = QString::fromUtf8(process.readAllStandardOutput());
    QVERIFY2(said.contains(QStringLiteral("Printing and writing PDF and SVG are not available")),
             qPrintable(said));
}

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    if (QCoreApplication::arguments().contains(QStringLiteral("--no-library"))) {
        try {
            LoadPrinting(QStringLiteral("/nowhere/"));
        } catch (const RunTimeError& error) {
            std::fputs(qPrintable(error.What().english), stdout);
            return 3;
        }
        return 0;
    }
    if (const qsizetype given = QCoreApplication::arguments().indexOf(QStringLiteral("--export"));
        given > 0)
        return SheetExportTest::ExportAll(QCoreApplication::arguments().at(given + 1));
    SheetExportTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "sheetexport_test.moc"
