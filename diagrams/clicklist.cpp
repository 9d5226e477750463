#include "diagrams/clicklist.h"

#include <QKeyEvent>

void ClickList::mousePressEvent(QMouseEvent* event) {
    ListBox::mousePressEvent(event);
    m_pressedRow = indexAt(event->position().toPoint()).row();
}

void ClickList::mouseReleaseEvent(QMouseEvent* event) {
    ListBox::mouseReleaseEvent(event);
    const int row = indexAt(event->position().toPoint()).row();
    if (event->button() == Qt::LeftButton && row >= 0 && row == m_pressedRow)
        Q_EMIT Clicked(row);
}

void ClickList::mouseDoubleClickEvent(QMouseEvent* event) {
    ListBox::mouseDoubleClickEvent(event);
    m_pressedRow = -1; // A double click is one click.
}

void ClickList::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && Row() >= 0)
        Q_EMIT Clicked(Row());
    else
        ListBox::keyPressEvent(event);
}
