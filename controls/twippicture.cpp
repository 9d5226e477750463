#include "controls/twippicture.h"

#include <QMouseEvent>

TwipPicture::TwipPicture(const QString& name, QSizeF size, QWidget* parent)
    : QWidget(parent), m_size(size) {
    setObjectName(name);
    setMouseTracking(true);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

double TwipPicture::Scale() const {
    return width() / m_size.width();
}

QPointF TwipPicture::ToTwips(QPointF pixels) const {
    return pixels / Scale();
}

QRectF TwipPicture::ToPixels(const QRectF& twips) const {
    return {twips.topLeft() * Scale(), twips.size() * Scale()};
}

void TwipPicture::mousePressEvent(QMouseEvent* event) {
    Q_EMIT MouseDown(event->button(), ToTwips(event->position()));
}

void TwipPicture::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
}

void TwipPicture::mouseMoveEvent(QMouseEvent* event) {
    Q_EMIT MouseMove(ToTwips(event->position()));
}

void TwipPicture::mouseReleaseEvent(QMouseEvent*) {
    Q_EMIT MouseUp();
}
