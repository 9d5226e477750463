#include "pictures/pickeyboard.h"

#include "controls/colours.h"
#include "pictures/keyboardlayout.h"
#include "pictures/keyboardpainting.h"

#include <QEvent>
#include <QPainter>

namespace {

// The key without what the black keys beside it hide.
QPainterPath VisibleArea(const KeyboardLayout& layout, int key) {
    QPainterPath area;
    area.addRect(layout.KeyRect(key));
    QPainterPath above;
    for (int black = 0; black < keyCount; ++black)
        if (IsBlackKey(black) && !IsBlackKey(key))
            above.addRect(layout.KeyRect(black));
    return area.subtracted(above);
}

} // namespace

PicKeyboard::PicKeyboard(QWidget* parent)
    : TwipPicture(QStringLiteral("picKeyboard"), KeyboardLayout::size, notesPerOctave, parent) {}

void PicKeyboard::Show(const KeyboardView& view) {
    if (view == m_view)
        return;
    m_view = view;
    m_picture = {};
    update();
}

void PicKeyboard::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange)
        m_picture = {}; // It ends in the window's colour.
    TwipPicture::changeEvent(event);
}

void PicKeyboard::paintEvent(QPaintEvent*) {
    const QSize pixels = PixelSize();
    if (m_picture.size() != pixels) {
        m_picture = QPixmap(pixels);
        m_picture.setDevicePixelRatio(devicePixelRatio());
        m_picture.fill(
            Colours::window.Now()); // The keys end somewhere within the last row of pixels.
        QPainter painter(&m_picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(Scale(), Scale());
        PaintKeyboard(painter, m_view);
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_picture);
    PaintFocus(painter, VisibleArea(m_view.layout, FocusPart()));
}
