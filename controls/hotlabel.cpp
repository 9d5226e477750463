#include "controls/hotlabel.h"

#include <QMouseEvent>

HotLabel::HotLabel(const QString& name, QWidget* parent) : TextLabel(name, parent) {
    setAlignment(Qt::AlignCenter);
    setCursor(Qt::PointingHandCursor);
}

void HotLabel::mousePressEvent(QMouseEvent* event) {
    Q_EMIT MouseDown(event->button());
}

void HotLabel::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
}

void HotLabel::mouseMoveEvent(QMouseEvent*) {
    Q_EMIT MouseMove();
}

void HotLabel::leaveEvent(QEvent*) {
    Q_EMIT MouseLeave();
}
