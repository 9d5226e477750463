#include "controls/picturelabel.h"

#include <QEvent>

PictureLabel::PictureLabel(const QString& name, Icon icon, QWidget* parent)
    : QLabel(parent), m_picture(MakeIcon(icon)) {
    setObjectName(name);
    setMouseTracking(true);
}

void PictureLabel::Draw() {
    setPixmap(m_picture.pixmap(size(), devicePixelRatio()));
}

void PictureLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    Draw();
}

void PictureLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        Draw();
}
