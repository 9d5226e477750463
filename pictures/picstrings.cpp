#include "pictures/picstrings.h"

#include "controls/colours.h"
#include "pictures/fretboardlayout.h"
#include "pictures/neckpainting.h"

#include <QEvent>
#include <QPainter>

PicStrings::PicStrings(QWidget* parent)
    : TwipPicture(QStringLiteral("picStrings"), FretboardLayout::size, -1, parent) {}

void PicStrings::Show(const FretboardView& view) {
    if (view == m_view)
        return;
    if (view.thinStringAtBottom != m_view.thinStringAtBottom || view.layout != m_view.layout)
        m_neck = {};
    m_view = view;
    update();
}

void PicStrings::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange)
        m_neck = {}; // It ends in the colour around it.
    TwipPicture::changeEvent(event);
}

void PicStrings::paintEvent(QPaintEvent*) {
    const QSize pixels = PixelSize();
    if (m_neck.size() != pixels) {
        m_neck = QPixmap(pixels);
        m_neck.setDevicePixelRatio(devicePixelRatio());
        m_neck.fill(
            Colours::plate.Now()); // The neck ends somewhere within the last row of pixels.
        QPainter painter(&m_neck);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(Scale(), Scale());
        PaintNeck(painter, m_view.layout, m_view.thinStringAtBottom);
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_neck);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    m_rings.Paint(painter, m_view, Scale());
    painter.scale(Scale(), Scale());
    PaintMarks(painter, m_view);
    painter.restore();
    QRectF focus = FocusPlace();
    if (FocusPart() == stringCount) // The barre is taken hold of anywhere in its column.
        focus = {focus.left(), 0, focus.width(), FretboardLayout::size.height()};
    QPainterPath area;
    area.addRect(focus);
    PaintFocus(painter, area);
}
