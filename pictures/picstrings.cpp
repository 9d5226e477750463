#include "pictures/picstrings.h"

#include "pictures/neckpainting.h"

#include <QPainter>

PicStrings::PicStrings(QWidget* parent)
    : TwipPicture(QStringLiteral("picStrings"), FretboardLayout::size, -1, parent) {}

void PicStrings::Show(const FretboardView& view) {
    if (view == m_view)
        return;
    if (view.thinStringAtBottom != m_view.thinStringAtBottom)
        m_neck = {};
    m_view = view;
    update();
}

void PicStrings::paintEvent(QPaintEvent*) {
    const QSize pixels = size() * devicePixelRatio();
    if (m_neck.size() != pixels) {
        m_neck = QPixmap(pixels);
        m_neck.setDevicePixelRatio(devicePixelRatio());
        QPainter painter(&m_neck);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(Scale(), Scale());
        PaintNeck(painter, m_view.thinStringAtBottom);
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_neck);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(Scale(), Scale());
    PaintMarks(painter, m_view);
    painter.restore();
    if (FocusPart() < stringCount)
        PaintFocus(painter, FretboardLayout::RowRect(stringCount - 1 - FocusPart()));
    else if (m_view.barre)
        // Around the bar, whose own area is a mark.
        PaintFocus(painter, FretboardLayout::BarreRect(*m_view.barre).adjusted(-75, -75, 75, 75));
    else
        PaintFocus(painter, {});
}
