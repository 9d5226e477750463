#include "diagrams/singlediagram.h"

#include "diagrams/exportdialog.h"
#include "diagrams/printlibrary.h"
#include "diagrams/sheetexport.h"
#include "pictures/diagrampainting.h"

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QMimeData>
#include <QPainter>

namespace {

constexpr double air = 100; // Around the diagram, in twips.
constexpr double pixelsPerTwip = 4.0 / 20;

QSizeF PictureSize(const Diagram& diagram) {
    return DiagramLayout(diagram).Size() + QSizeF(2 * air, 2 * air);
}

void Paint(QPainter& painter, const Diagram& diagram) {
    painter.fillRect(QRectF(QPointF(0, 0), PictureSize(diagram)), Qt::white);
    PaintDiagram(painter, QRectF(QPointF(air, air), DiagramLayout(diagram).Size()), diagram,
                 PaperDiagramColours());
}

} // namespace

QImage DiagramImage(const Diagram& diagram) {
    QImage image((PictureSize(diagram) * pixelsPerTwip).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(pixelsPerTwip, pixelsPerTwip);
    Paint(painter, diagram);
    return image;
}

void CopyDiagram(const Diagram& diagram) {
    auto* data = new QMimeData;
    data->setImageData(DiagramImage(diagram));
    data->setText(FretsText(diagram.shape));
    QApplication::clipboard()->setMimeData(data);
}

QString SaveDiagram(QWidget* owner, const QString& title, const Diagram& diagram,
                    const QString& programFolder) {
    const ExportChoice choice =
        AskForExport(owner, title, {ExportFormat::Svg, ExportFormat::Png}, {});
    if (choice.path.isEmpty())
        return {};
    if (choice.format == ExportFormat::Png) {
        WriteImage(choice.path, DiagramImage(diagram));
        return choice.path;
    }
    const PaintedPages picture{PictureSize(diagram), 1,
                               [&diagram](QPainter& painter, int) { Paint(painter, diagram); }};
    ExportSvg(choice.path, picture, diagram.name, LoadPrinting(programFolder));
    return choice.path;
}
