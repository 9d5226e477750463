#include "controls/icons.h"

#include "controls/iconstrokes.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>

#include <array>

namespace {

constexpr double unitSquare = 24; // Every drawing is made on a square of this side.

void PaintFindPicture(QPainter& painter) {
    Stroke(painter);
    painter.drawEllipse(QPointF(10.5, 10.5), 6, 6);
    painter.setPen(Line(Colours::selection, 2.6));
    painter.drawLine(QPointF(15.2, 15.2), QPointF(20, 20));
}

void PaintNameChord(QPainter& painter) {
    PaintKeys(painter, {2.5, 9, 13, 12.5});
    PaintQuestionMark(painter, {18.5, 8}, 8);
}

void PaintHelp(QPainter& painter) {
    Stroke(painter);
    painter.drawEllipse(QPointF(12, 12), 9, 9);
    PaintQuestionMark(painter, {12, 12}, 10);
}

void PaintSettings(QPainter& painter) {
    Stroke(painter);
    Strokes(painter, {{4, 6, 20, 6}, {4, 12, 20, 12}, {4, 18, 20, 18}});
    Fill(painter);
    for (const QPointF knob : {QPointF(9, 6), QPointF(16, 12), QPointF(7, 18)})
        painter.drawEllipse(knob, 2.6, 2.6);
}

void PaintListen(QPainter& painter) {
    Fill(painter, Colours::text);
    painter.drawPolygon(QPolygonF{{3, 9}, {7, 9}, {12, 4.5}, {12, 19.5}, {7, 15}, {3, 15}});
    Stroke(painter, Colours::selection);
    painter.drawArc(QRectF(10.5, 8, 7, 8), -60 * 16, 120 * 16);
    painter.drawArc(QRectF(10.5, 4.5, 11, 15), -60 * 16, 120 * 16);
}

void PaintClear(QPainter& painter) {
    Stroke(painter);
    Strokes(painter, {{5, 7, 19, 7}, {9.5, 7, 10, 4.5}, {10, 4.5, 14, 4.5}, {14, 4.5, 14.5, 7}});
    painter.drawPolyline(QPolygonF{{6.5, 7}, {7.5, 20}, {16.5, 20}, {17.5, 7}});
    Stroke(painter, Colours::selection);
    Strokes(painter, {{10.2, 10.5, 10.5, 16.8}, {13.8, 10.5, 13.5, 16.8}});
}

void PaintCut(QPainter& painter) {
    Stroke(painter);
    Strokes(painter, {{7, 4, 15, 16}, {17, 4, 9, 16}});
    Stroke(painter, Colours::selection);
    painter.drawEllipse(QPointF(7.2, 18.3), 2.6, 2.6);
    painter.drawEllipse(QPointF(16.8, 18.3), 2.6, 2.6);
}

void PaintCopy(QPainter& painter) {
    PaintSheet(painter, {4, 3.5, 10, 13});
    painter.setBrush(Colours::buttonFace);
    painter.drawRoundedRect(QRectF(9.5, 7.5, 10, 13), 1, 1);
    Stroke(painter, Colours::selection);
    Strokes(painter, {{12, 12, 17, 12}, {12, 16, 17, 16}});
}

void PaintPaste(QPainter& painter) {
    Stroke(painter);
    painter.drawRoundedRect(QRectF(5, 5, 14, 15.5), 1.5, 1.5);
    Fill(painter, Colours::text);
    painter.drawRoundedRect(QRectF(9, 3, 6, 4), 1, 1);
    PaintArrow(painter, {12, 9.5}, {12, 17.5});
}

void PaintOpen(QPainter& painter) {
    Stroke(painter);
    painter.drawPolyline(QPolygonF{{3.5, 19}, {3.5, 5.5}, {9, 5.5}, {11, 8}, {18, 8}, {18, 11}});
    Stroke(painter, Colours::selection);
    painter.drawPolygon(QPolygonF{{3.5, 19}, {7, 11}, {21.5, 11}, {18, 19}});
}

void PaintSave(QPainter& painter) {
    Stroke(painter);
    painter.drawPolygon(QPolygonF{{4, 4}, {17, 4}, {20, 7}, {20, 20}, {4, 20}});
    painter.drawRect(QRectF(8, 4, 7, 5));
    Stroke(painter, Colours::selection);
    painter.drawRect(QRectF(7.5, 12.5, 9, 7.5));
}

void PaintPlusOrMinus(QPainter& painter, bool plus) {
    PaintSheet(painter, {4, 3.5, 12, 16});
    Fill(painter);
    painter.drawEllipse(QPointF(16.5, 16.5), 5.5, 5.5);
    painter.setPen(Line(Colours::selectionText, 1.9));
    painter.drawLine(QPointF(13.7, 16.5), QPointF(19.3, 16.5));
    if (plus)
        painter.drawLine(QPointF(16.5, 13.7), QPointF(16.5, 19.3));
}

void PaintDashes(QPainter& painter) {
    Stroke(painter);
    QPen pen = Line(Colours::text, 1.3);
    pen.setDashPattern({2.2, 2.0});
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(pen);
    for (int line = 0; line < 6; ++line)
        painter.drawLine(QPointF(3, 4 + 3.2 * line), QPointF(21, 4 + 3.2 * line));
}

// Four small diagrams, each with a finger elsewhere.
void PaintVoicings(QPainter& painter) {
    constexpr std::array fingers{QPointF(3.4, 6.8), QPointF(20.6, 3.8), QPointF(6.2, 20.2),
                                 QPointF(17.8, 17.2)};
    for (const double x : {3.4, 15.0})
        for (const double y : {2.4, 13.6}) {
            painter.setPen(Line(Colours::text, 1.1));
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(QRectF(x, y, 5.6, 8));
            painter.drawLine(QPointF(x, y + 4), QPointF(x + 5.6, y + 4));
            painter.drawLine(QPointF(x + 2.8, y), QPointF(x + 2.8, y + 8));
        }
    Fill(painter);
    for (const QPointF& finger : fingers)
        painter.drawEllipse(finger, 1.9, 1.9);
}

void PaintSideArrow(QPainter& painter, QPointF from, QPointF to) {
    Stroke(painter, Colours::selection);
    painter.drawLine(from, to);
    const double back = to.x() > from.x() ? -2.8 : 2.8;
    Strokes(painter, {QLineF(to, to + QPointF(back, -2.6)), QLineF(to, to + QPointF(back, 2.6))});
}

// A printer with a sheet coming out of it.
void PaintPrinter(QPainter& painter) {
    Stroke(painter);
    Strokes(painter, {{7, 8.5, 7, 3}, {7, 3, 17, 3}, {17, 3, 17, 8.5}});
    painter.drawRoundedRect(QRectF(3, 8.5, 18, 8.5), 1.5, 1.5);
    Stroke(painter, Colours::selection);
    painter.drawRect(QRectF(7, 14, 10, 7));
}

void Paint(QPainter& painter, Icon icon) {
    switch (icon) {
    case Icon::Find:
        return PaintFindPicture(painter);
    case Icon::NameChord:
        return PaintNameChord(painter);
    case Icon::PlayKeys:
        PaintKeys(painter, {2.5, 5, 11, 14});
        return PaintTriangle(painter, {22.5, 12}, 6.5);
    case Icon::PlayStrings:
        PaintStrings(painter, {2, 6, 12, 12});
        return PaintTriangle(painter, {22.5, 12}, 6.5);
    case Icon::Strum:
        PaintStrings(painter, {2, 6, 12, 12});
        PaintArrow(painter, {8, 2.5}, {8, 21.5});
        return PaintTriangle(painter, {22.5, 12}, 6.5);
    case Icon::Rings:
        PaintStrings(painter, {2, 6, 20, 12});
        Fill(painter);
        painter.drawRect(QRectF(3.5, 15, 6, 6));
        return painter.drawEllipse(QRectF(14.5, 3, 6, 6));
    case Icon::LayFingers:
        PaintStrings(painter, {2.5, 3, 19, 9});
        Fill(painter);
        painter.drawEllipse(QPointF(10, 7.5), 2.5, 2.5);
        return PaintArrow(painter, {12, 22.5}, {12, 15.5});
    case Icon::ReadFingers:
        PaintKeys(painter, {3.5, 10.5, 17, 11.5});
        return PaintArrow(painter, {12, 1.5}, {12, 8});
    case Icon::Diagrams:
        PaintSheet(painter, {4.5, 3, 15, 18});
        Stroke(painter, Colours::selection);
        return Strokes(painter, {{8, 9, 12, 9}, {8, 13, 16, 13}, {8, 17, 16, 17}});
    case Icon::Voicings:
        return PaintVoicings(painter);
    case Icon::Settings:
        return PaintSettings(painter);
    case Icon::Help:
        return PaintHelp(painter);
    case Icon::Listen:
        return PaintListen(painter);
    case Icon::Add:
        return PaintPlusOrMinus(painter, true);
    case Icon::Remove:
        return PaintPlusOrMinus(painter, false);
    case Icon::Clear:
        return PaintClear(painter);
    case Icon::WriteList:
        Stroke(painter);
        Strokes(painter, {{3, 6, 10, 6}, {3, 12, 10, 12}, {3, 18, 10, 18}});
        PaintSheet(painter, {15, 4, 7, 16});
        Stroke(painter, Colours::selection);
        return Strokes(painter, {{11.5, 12, 18.5, 12}, {18.5, 12, 16, 9.5}, {18.5, 12, 16, 14.5}});
    case Icon::Cut:
        return PaintCut(painter);
    case Icon::Copy:
        return PaintCopy(painter);
    case Icon::Paste:
        return PaintPaste(painter);
    case Icon::Open:
        return PaintOpen(painter);
    case Icon::Save:
        return PaintSave(painter);
    case Icon::Dashes:
        return PaintDashes(painter);
    case Icon::Import:
        PaintSheet(painter, {3.5, 3, 12, 18});
        return PaintSideArrow(painter, {22, 12}, {9, 12});
    case Icon::Export:
        PaintSheet(painter, {3.5, 3, 12, 18});
        return PaintSideArrow(painter, {9.5, 12}, {22, 12});
    case Icon::Print:
        return PaintPrinter(painter);
    }
}

class Engine : public QIconEngine {
public:
    explicit Engine(Icon icon) : m_icon(icon) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setOpacity(mode == QIcon::Disabled ? 0.4 : 1);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / unitSquare, rect.height() / unitSquare);
        Paint(*painter, m_icon);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    bool isNull() override { return false; }

    QIconEngine* clone() const override { return new Engine(m_icon); }

private:
    Icon m_icon;
};

} // namespace

QIcon MakeIcon(Icon icon) {
    return QIcon(new Engine(icon));
}
