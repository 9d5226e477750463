#include "pictures/pickeyboard.h"

#include "pictures/keyboardlayout.h"
#include "pictures/keyboardpainting.h"

#include <QPainter>

PicKeyboard::PicKeyboard(QWidget* parent)
    : TwipPicture(QStringLiteral("picKeyboard"), KeyboardLayout::size, notesPerOctave, parent) {}

void PicKeyboard::Show(const KeyboardView& view) {
    if (view == m_view)
        return;
    m_view = view;
    m_picture = {};
    update();
}

void PicKeyboard::paintEvent(QPaintEvent*) {
    const QSize pixels = size() * devicePixelRatio();
    if (m_picture.size() != pixels) {
        m_picture = QPixmap(pixels);
        m_picture.setDevicePixelRatio(devicePixelRatio());
        QPainter painter(&m_picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(Scale(), Scale());
        PaintKeyboard(painter, m_view);
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_picture);
    PaintFocus(painter, KeyboardLayout::KeyRect(FocusPart()));
}
