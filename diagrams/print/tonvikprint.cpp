// The library that prints: all that needs the toolkit's modules for printing and SVG.
#include "diagrams/printing.h"

#include <QBuffer>
#include <QFile>
#include <QFontInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <QSvgGenerator>

#include <algorithm>

namespace {

constexpr int twipsPerInch = 1440;
constexpr double twipsPerPoint = 20;

QPageSize PaperOf(QSizeF twips) {
    return QPageSize(twips / twipsPerPoint, QPageSize::Point, QString(), QPageSize::FuzzyMatch);
}

// Paints every page; false where the device refuses.
template <typename Device>
bool PaintAll(Device& device, const PaintedPages& pages, double unitsPerTwip) {
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    for (int page = 0; page < pages.count; ++page) {
        if (page > 0 && !device.newPage())
            return false;
        painter.save();
        painter.scale(unitsPerTwip, unitsPerTwip);
        pages.paint(painter, page);
        painter.restore();
    }
    return painter.end();
}

bool PaintOn(QPrinter& printer, const std::function<PaintedPages(QSizeF paper)>& pages) {
    const QSizeF paper = printer.paperRect(QPrinter::Point).size() * twipsPerPoint;
    return PaintAll(printer, pages(paper),
                    printer.resolution() / static_cast<double>(twipsPerInch));
}

// A PDF that was printed to is whole only with its end; the toolkit does not say. No file is
// whole, too.
bool IsWhole(const QString& path) {
    constexpr qint64 tail = 16;
    QFile file(path);
    if (path.isEmpty() || !path.endsWith(u".pdf", Qt::CaseInsensitive))
        return true;
    return file.open(QIODevice::ReadOnly) && file.seek(std::max<qint64>(0, file.size() - tail)) &&
           file.readAll().contains("%%EOF");
}

// The name of a font is known on this machine alone: others fall back to a kind of letters.
QByteArray WithFallbacks(const QByteArray& svg) {
    static const QRegularExpression family(QStringLiteral("font-family=\"([^\"]+)\""));
    QString text = QString::fromUtf8(svg);
    QStringList families;
    for (auto found = family.globalMatch(text); found.hasNext();)
        families += found.next().captured(1);
    families.removeDuplicates();
    for (const QString& name : families) {
        const QFontInfo font{QFont(name)};
        const auto kind =
            font.fixedPitch() ? QStringLiteral("monospace") : QStringLiteral("sans-serif");
        text.replace(QStringLiteral("font-family=\"%1\"").arg(name),
                     QStringLiteral("font-family=\"%1, %2\"").arg(font.family(), kind));
    }
    return text.toUtf8();
}

class ToolkitPrinting : public Printing {
public:
    QByteArray Pdf(const PaintedPages& pages, const QString& title) const override {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        writer.setTitle(title);
        writer.setCreator(QStringLiteral("Tonvik"));
        writer.setResolution(twipsPerInch);
        writer.setPageSize(PaperOf(pages.size));
        writer.setPageMargins({});
        return PaintAll(writer, pages, 1) ? bytes : QByteArray();
    }

    QByteArray Svg(const PaintedPages& pages, int page, const QString& title) const override {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QSvgGenerator generator;
        generator.setOutputDevice(&buffer);
        generator.setResolution(twipsPerInch);
        generator.setSize(pages.size.toSize());
        generator.setViewBox(QRectF(QPointF(0, 0), pages.size));
        generator.setTitle(title.toHtmlEscaped()); // Written as it stands.
        generator.setDescription(QStringLiteral("Tonvik"));
        QPainter painter;
        if (!painter.begin(&generator))
            return {};
        pages.paint(painter, page);
        return painter.end() ? WithFallbacks(bytes) : QByteArray();
    }

    bool Preview(QWidget* owner, const QString& title, QSizeF paper,
                 const std::function<PaintedPages(QSizeF paper)>& pages) const override {
        QPrinter printer(QPrinter::HighResolution);
        printer.setDocName(title);
        printer.setFullPage(true);
        printer.setPageSize(PaperOf(paper));
        QPrintPreviewDialog dialog(&printer, owner);
        dialog.setObjectName(QStringLiteral("PrintPreview"));
        bool printed = true;
        QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                         [&](QPrinter* asked) { printed = PaintOn(*asked, pages) && printed; });
        const bool asked = dialog.exec() == QDialog::Accepted;
        return printed && printer.printerState() != QPrinter::Error &&
               (!asked || IsWhole(printer.outputFileName()));
    }
};

} // namespace

extern "C" Q_DECL_EXPORT const Printing* TonvikPrinting() {
    static const ToolkitPrinting printing;
    return &printing;
}
