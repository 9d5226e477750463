#include "controls/faces.h"

#include "controls/colours.h"
#include "controls/lengths.h"

#include <algorithm>
#include <cmath>

namespace {

QColor LineOf(bool enabled) {
    return enabled ? Colours::edge.Now() : Colours::line.Now();
}

QColor SignOf(bool enabled) {
    return enabled ? Colours::selection.Now() : Colours::mutedText.Now();
}

// The largest square in the middle, on whole pixels.
QRectF Square(const QRectF& rect) {
    const double side = std::min(rect.width(), rect.height());
    return {std::round(rect.center().x() - side / 2), std::round(rect.center().y() - side / 2),
            side, side};
}

} // namespace

void PaintFace(QPainter& painter, const QRectF& rect, const QColor& fill, const QPen& line) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(line);
    painter.setBrush(fill);
    painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), Lengths::corner, Lengths::corner);
    painter.restore();
}

void PaintArrow(QPainter& painter, const QRectF& rect, bool up, bool enabled) {
    constexpr double half = 3.5; // Of its base, in pixels.
    const double tip = up ? -half / 2 : half / 2;
    const QPointF middle = rect.center();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(enabled ? Colours::text.Now() : Colours::mutedText.Now());
    painter.drawPolygon(QPolygonF(
        {middle + QPointF(-half, -tip), middle + QPointF(half, -tip), middle + QPointF(0, tip)}));
    painter.restore();
}

void PaintCheck(QPainter& painter, const QRectF& rect, Qt::CheckState state, bool enabled) {
    const QRectF box = Square(rect);
    PaintFace(painter, box, Colours::field, LineOf(enabled));
    if (state == Qt::Unchecked)
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        QPen(SignOf(enabled), box.width() / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&box](double x, double y) {
        return box.topLeft() + QPointF(x, y) * box.width();
    };
    painter.drawPolyline(state == Qt::Checked
                             ? QPolygonF({at(0.25, 0.52), at(0.43, 0.7), at(0.76, 0.3)})
                             : QPolygonF({at(0.28, 0.5), at(0.72, 0.5)}));
    painter.restore();
}

void PaintOption(QPainter& painter, const QRectF& rect, bool on, bool enabled) {
    const QRectF disc = Square(rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(LineOf(enabled));
    painter.setBrush(Colours::field);
    painter.drawEllipse(disc);
    if (on) {
        const double rim = disc.width() * 0.27;
        painter.setPen(Qt::NoPen);
        painter.setBrush(SignOf(enabled));
        painter.drawEllipse(disc.adjusted(rim, rim, -rim, -rim));
    }
    painter.restore();
}
