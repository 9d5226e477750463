#include "pictures/keyboardpainting.h"

#include "controls/colours.h"
#include "pictures/keyboardlayout.h"

#include <QPainter>

namespace {

constexpr QColor outline(0x6B, 0x60, 0x52);
constexpr QColor ivoryShade(0xD8, 0xD0, 0xC2);
constexpr QColor ebonyShine(0x5A, 0x55, 0x50);
constexpr QColor ebonyFront(0x33, 0x30, 0x2D);
constexpr QColor sounding(0xFF, 0xB0, 0x00);
constexpr double corner = 45;

bool IsMarked(const KeyboardView& view, int key) {
    return view.fills[static_cast<std::size_t>(key)] == markColour;
}

// Inside the outline, away from the middle of the key's free area.
void PaintDepth(QPainter& painter, int key, const QRectF& rect, bool marked) {
    painter.setPen(Qt::NoPen);
    if (IsBlackKey(key)) {
        const QColor shine = marked ? QColor(0xFF, 0x70, 0x60) : ebonyShine;
        painter.fillRect(QRectF(rect.left() + 30, rect.top(), 20, rect.height() - 105), shine);
        if (!marked)
            painter.fillRect(QRectF(rect.left() + 30, rect.bottom() - 105, rect.width() - 60, 75),
                             ebonyFront);
        return;
    }
    const QColor shade = marked ? QColor(0xC8, 0x00, 0x00) : ivoryShade;
    painter.fillRect(QRectF(rect.left() + 22, rect.bottom() - 50, rect.width() - 44, 35), shade);
    painter.fillRect(QRectF(rect.right() - 38, rect.top() + 15, 16, rect.height() - 50), shade);
}

void PaintName(QPainter& painter, int key, const QRectF& rect) {
    QFont font = painter.font();
    font.setPixelSize(IsBlackKey(key) ? 135 : 165);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Colours::normalText);
    const double bottom = rect.bottom() - (IsBlackKey(key) ? 60 : 55);
    painter.drawText(QRectF(rect.left(), bottom - 170, rect.width(), 170), Qt::AlignCenter,
                     NoteName(key).toString());
}

void PaintKey(QPainter& painter, const KeyboardView& view, int key) {
    const QRectF rect = view.layout.KeyRect(key);
    const bool marked = IsMarked(view, key);
    // Rounded below only: the keys come out from under the upper edge.
    const QRectF tall = rect.adjusted(7.5, -2 * corner, -7.5, -7.5);
    painter.setPen(QPen(outline, 15));
    painter.setBrush(QColor(QRgb(0xFF000000) | view.fills[static_cast<std::size_t>(key)]));
    painter.drawRoundedRect(tall, corner, corner);
    PaintDepth(painter, key, rect, marked);
    if (marked)
        PaintName(painter, key, rect);
    if (view.soundingKey == key) {
        painter.setPen(QPen(sounding, 45));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(tall.adjusted(37, 0, -37, -37), corner, corner);
    }
}

} // namespace

void PaintKeyboard(QPainter& painter, const KeyboardView& view) {
    painter.fillRect(QRectF(QPointF(0, 0), KeyboardLayout::size), Colours::window.Now());
    for (const bool black : {false, true})
        for (int key = 0; key < keyCount; ++key)
            if (IsBlackKey(key) == black)
                PaintKey(painter, view, key);
    QLinearGradient lid(0, 0, 0, 90);
    lid.setColorAt(0, QColor(0, 0, 0, 90));
    lid.setColorAt(1, QColor(0, 0, 0, 0));
    painter.fillRect(QRectF(0, 0, KeyboardLayout::size.width(), 90), lid);
}
