#include "controls/picturelabel.h"

#include <QPainter>

PictureLabel::PictureLabel(const QString& name, Icon icon, QWidget* parent)
    : QLabel(parent), m_picture(MakeIcon(icon)) {
    setObjectName(name);
    setMouseTracking(true);
}

void PictureLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    m_picture.paint(&painter, rect());
}
