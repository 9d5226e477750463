#include "controls/iconstrokes.h"

#include <QPainterPath>

QPen Line(const QColor& colour, double width) {
    return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void Fill(QPainter& painter, const QColor& colour) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
}

void Stroke(QPainter& painter, const QColor& colour) {
    painter.setPen(Line(colour));
    painter.setBrush(Qt::NoBrush);
}

void Strokes(QPainter& painter, std::initializer_list<QLineF> lines) {
    for (const QLineF& line : lines)
        painter.drawLine(line);
}

void PaintKeys(QPainter& painter, const QRectF& area) {
    Stroke(painter);
    painter.drawRoundedRect(area, 1.5, 1.5);
    const double step = area.width() / 3;
    Strokes(painter,
            {{area.left() + step, area.center().y(), area.left() + step, area.bottom()},
             {area.left() + 2 * step, area.center().y(), area.left() + 2 * step, area.bottom()}});
    Fill(painter, Colours::text);
    for (const int key : {1, 2})
        painter.drawRect(
            QRectF(area.left() + key * step - 1.3, area.top(), 2.6, area.height() * 0.58));
}

void PaintStrings(QPainter& painter, const QRectF& area) {
    Stroke(painter);
    for (const double part : {0.0, 0.5, 1.0}) {
        const double y = area.top() + part * area.height();
        painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
    }
    for (const double part : {0.12, 0.62}) {
        const double x = area.left() + part * area.width();
        painter.drawLine(QPointF(x, area.top()), QPointF(x, area.bottom()));
    }
}

void PaintTriangle(QPainter& painter, QPointF tip, double size) {
    Fill(painter);
    painter.drawPolygon(
        QPolygonF{tip, tip - QPointF(size, -size * 0.7), tip - QPointF(size, size * 0.7)});
}

void PaintArrow(QPainter& painter, QPointF from, QPointF to) {
    Stroke(painter, Colours::selection);
    painter.drawLine(from, to);
    const double down = to.y() > from.y() ? 1 : -1;
    Strokes(painter, {QLineF(to, to + QPointF(-2.6, -2.8 * down)),
                      QLineF(to, to + QPointF(2.6, -2.8 * down))});
}

void PaintSheet(QPainter& painter, const QRectF& area) {
    Stroke(painter);
    QPainterPath sheet;
    const double fold = 4;
    sheet.moveTo(area.topLeft());
    sheet.lineTo(area.right() - fold, area.top());
    sheet.lineTo(area.right(), area.top() + fold);
    sheet.lineTo(area.bottomRight());
    sheet.lineTo(area.bottomLeft());
    sheet.closeSubpath();
    painter.drawPath(sheet);
}

// Drawn, not written: a font of its own would have to be loaded for it.
void PaintQuestionMark(QPainter& painter, QPointF centre, double height) {
    painter.save();
    painter.translate(centre);
    painter.scale(height / 10, height / 10);
    QPainterPath hook(QPointF(-2.6, -2.6));
    hook.cubicTo(-2.4, -5.6, 2.7, -5.6, 2.7, -2.4);
    hook.cubicTo(2.7, -0.4, 0, -0.2, 0, 2);
    painter.setPen({Colours::selection.Now(), 1.9, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin});
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(hook);
    Fill(painter);
    painter.drawRect(QRectF(-0.95, 3.1, 1.9, 1.9));
    painter.restore();
}
