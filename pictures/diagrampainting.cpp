#include "pictures/diagrampainting.h"

#include "controls/colours.h"

#include <QFontMetricsF>
#include <QPainter>

namespace {

constexpr double lineWidth = 12;
constexpr double signWidth = 16;
constexpr int nameSize = 230;
constexpr int smallestNameSize = 120;
constexpr int positionSize = 125;
constexpr double numberOfDot = 0.78; // A number's height in its dot.
constexpr int footSize = 120;

// Sizes are twips like all the rest: the same letters at every scale, without hinting.
QFont FontOfSize(const QPainter& painter, int size, bool bold) {
    QFont font = painter.font();
    font.setPixelSize(size);
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

void PaintName(QPainter& painter, const DiagramLayout& layout, const QString& name) {
    const QRectF place = layout.NameRect();
    QFont font = FontOfSize(painter, nameSize, true);
    const double width = QFontMetricsF(font).horizontalAdvance(name);
    if (width > place.width())
        font.setPixelSize(
            std::max(smallestNameSize, static_cast<int>(nameSize * place.width() / width)));
    painter.setFont(font);
    painter.drawText(place, Qt::AlignCenter,
                     QFontMetricsF(font).elidedText(name, Qt::ElideRight, place.width()));
}

void PaintGrid(QPainter& painter, const DiagramLayout& layout, const DiagramColours& colours) {
    const QRectF grid = layout.Grid();
    painter.setPen(QPen(colours.lines, lineWidth, Qt::SolidLine, Qt::SquareCap));
    for (int row = 0; row <= layout.Rows(); ++row)
        painter.drawLine(QPointF(grid.left(), layout.LineY(row)),
                         QPointF(grid.right(), layout.LineY(row)));
    for (int string = 1; string <= stringCount; ++string)
        painter.drawLine(QPointF(layout.StringX(string), grid.top()),
                         QPointF(layout.StringX(string), grid.bottom()));
    if (layout.HasNut()) {
        const QRectF nut = layout.NutRect().adjusted(-lineWidth / 2, 0, lineWidth / 2, 0);
        painter.fillRect(nut, colours.ink);
        return;
    }
    painter.setPen(colours.ink);
    painter.setFont(FontOfSize(painter, positionSize, false));
    const bool numberAtLeft = layout.PositionRect().left() < grid.left();
    const int side = numberAtLeft ? Qt::AlignRight : Qt::AlignLeft;
    painter.drawText(layout.PositionRect(), side | Qt::AlignVCenter | Qt::TextDontClip,
                     QString::number(layout.FirstFret()));
}

void PaintSign(QPainter& painter, const QRectF& place, bool muted) {
    if (muted) {
        painter.drawLine(place.topLeft(), place.bottomRight());
        painter.drawLine(place.topRight(), place.bottomLeft());
    } else {
        painter.drawEllipse(place);
    }
}

void PaintSigns(QPainter& painter, const DiagramLayout& layout, const Shape& shape,
                const QColor& ink) {
    painter.setPen(QPen(ink, signWidth, Qt::SolidLine, Qt::FlatCap));
    painter.setBrush(Qt::NoBrush);
    for (int string = 1; string <= stringCount; ++string)
        if (shape.Fret(string) <= 0)
            PaintSign(painter, layout.SignRect(string), !shape.Sounds(string));
}

void PaintFingers(QPainter& painter, const DiagramLayout& layout, const Shape& shape,
                  const DiagramColours& colours) {
    const bool inDots = layout.FingersInDots();
    const int size = inDots ? static_cast<int>(layout.DotSize() * numberOfDot) : footSize;
    painter.setFont(FontOfSize(painter, size, inDots));
    painter.setPen(inDots ? colours.dotText : colours.ink);
    for (int string = 1; string <= stringCount; ++string) {
        const int fret = shape.Fret(string);
        if (fret >= 1 && shape.Finger(string) > 0)
            painter.drawText(inDots ? layout.DotRect(string, fret) : layout.FingerRect(string),
                             Qt::AlignCenter, QString::number(shape.Finger(string)));
    }
}

void PaintHand(QPainter& painter, const DiagramLayout& layout, const Shape& shape,
               const QColor& ink) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    for (const ShapeBarre& barre : shape.barres) {
        const QRectF bar = layout.BarreRect(barre);
        painter.drawRoundedRect(bar, bar.height() / 2, bar.height() / 2);
    }
    for (int string = 1; string <= stringCount; ++string)
        if (const int fret = shape.Fret(string); fret >= 1)
            painter.drawEllipse(layout.DotRect(string, fret));
}

} // namespace

DiagramColours ScreenDiagramColours() {
    return {Colours::text, Colours::quietText, Colours::field};
}

DiagramColours PaperDiagramColours() {
    return {Qt::black, Qt::black, Qt::white};
}

QRectF DiagramPlace(const QRectF& place, const Diagram& diagram) {
    const QSizeF size = DiagramLayout::Size(!diagram.name.isEmpty());
    QRectF filled(QPointF(0, 0), size.scaled(place.size(), Qt::KeepAspectRatio));
    filled.moveCenter(place.center());
    return filled;
}

void PaintDiagram(QPainter& painter, const QRectF& place, const Diagram& diagram,
                  const DiagramColours& colours) {
    const DiagramLayout layout(diagram);
    const QRectF filled = DiagramPlace(place, diagram);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(filled.topLeft());
    painter.scale(filled.width() / layout.Size().width(), filled.height() / layout.Size().height());
    painter.setPen(colours.ink);
    if (!diagram.name.isEmpty())
        PaintName(painter, layout, diagram.name);
    PaintGrid(painter, layout, colours);
    PaintSigns(painter, layout, diagram.shape, colours.ink);
    PaintHand(painter, layout, diagram.shape, colours.ink);
    PaintFingers(painter, layout, diagram.shape, colours);
    painter.restore();
}
