#include "diagrams/sheetexport.h"

#include "core/datafile.h"
#include "core/runtimeerror.h"
#include "diagrams/sheetpainting.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QLocale>
#include <QPainter>

namespace {

constexpr double pixelsPerTwip = 2.0 / 20;
constexpr double twipsPerPoint = 20;

// All that is to be written is made before the first file is replaced.
void Write(const QStringList& paths, const QList<QByteArray>& files) {
    for (qsizetype i = 0; i < paths.size(); ++i)
        if (files[i].isEmpty())
            throw RunTimeError({QStringLiteral("Не удаётся подготовить файл «%1».").arg(paths[i]),
                                QStringLiteral("The file “%1” cannot be made.").arg(paths[i])});
    for (qsizetype i = 0; i < paths.size(); ++i)
        if (const auto failure = ReplaceFile(paths[i], files[i]))
            throw RunTimeError(*failure);
}

QByteArray PngOf(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, "PNG") ? bytes : QByteArray();
}

} // namespace

QSizeF PaperOfLocale() {
    constexpr QSizeF letter(612, 792);
    constexpr QSizeF a4(595, 842);
    const bool imperial = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return (imperial ? letter : a4) * twipsPerPoint;
}

PaintedPages Painted(const std::vector<SheetPage>& pages, QSizeF paper) {
    return {paper, static_cast<int>(pages.size()), [&pages](QPainter& painter, int page) {
                PaintPage(painter, pages[static_cast<std::size_t>(page)]);
            }};
}

QImage PageImage(const SheetPage& page, QSizeF paper) {
    QImage image((paper * pixelsPerTwip).toSize(), QImage::Format_RGB32);
    constexpr double inchesPerMetre = 1 / 0.0254;
    const int dotsPerMetre = qRound(144 * inchesPerMetre);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixelsPerTwip, pixelsPerTwip);
    PaintPage(painter, page);
    return image;
}

QStringList PageFiles(const QString& path, int pages) {
    const QFileInfo file(path);
    const QString suffix = file.suffix().isEmpty() ? QString() : u'.' + file.suffix();
    const QString stem = path.chopped(suffix.size());
    QStringList files(path);
    for (int page = 2; page <= pages; ++page)
        files += stem + u'-' + QString::number(page) + suffix;
    return files;
}

void ExportPdf(const QString& path, const PaintedPages& pages, const QString& title,
               const Printing& printing) {
    Write({path}, {printing.Pdf(pages, title)});
}

void ExportSvg(const QString& path, const PaintedPages& pages, const QString& title,
               const Printing& printing) {
    QList<QByteArray> files;
    for (int page = 0; page < pages.count; ++page)
        files += printing.Svg(pages, page, title);
    Write(PageFiles(path, pages.count), files);
}

void WriteImage(const QString& path, const QImage& image) {
    Write({path}, {PngOf(image)});
}

void ExportPng(const QString& path, const std::vector<SheetPage>& pages, QSizeF paper) {
    QList<QByteArray> files;
    for (const SheetPage& page : pages)
        files += PngOf(PageImage(page, paper));
    Write(PageFiles(path, static_cast<int>(pages.size())), files);
}
