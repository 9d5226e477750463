#include "info/linklabel.h"

#include "controls/focusring.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

LinkLabel::LinkLabel(const QString& name, QWidget* parent) : QLabel(parent) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setMargin(4); // Room for the focus ring.
    setForegroundRole(QPalette::Link);
    QFont underlined = font();
    underlined.setUnderline(true);
    setFont(underlined);
}

void LinkLabel::mousePressEvent(QMouseEvent* event) {
    event->setAccepted(event->button() == Qt::LeftButton);
}

void LinkLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        Q_EMIT Click();
}

void LinkLabel::keyPressEvent(QKeyEvent* event) {
    const bool pressed = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                         event->key() == Qt::Key_Space;
    event->setAccepted(pressed);
    if (pressed)
        Q_EMIT Click();
}

void LinkLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (!FocusRing::IsShown(this))
        return;
    QPainter painter(this);
    FocusRing::Paint(painter, QRectF(rect()));
}
