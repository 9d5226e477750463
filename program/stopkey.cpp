#include "program/stopkey.h"

#include "diagrams/frmdiags.h"
#include "info/frmhelp.h"

#include <QCoreApplication>
#include <QKeyEvent>

StopKey::StopKey(std::function<void()> stop) : m_stop(std::move(stop)) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool StopKey::eventFilter(QObject* watched, QEvent* event) {
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::KeyPress || widget == nullptr ||
        static_cast<QKeyEvent*>(event)->key() != Qt::Key_F7)
        return false;
    const QWidget* window = widget->window();
    if (qobject_cast<const frmHelp*>(window) == nullptr &&
        qobject_cast<const frmDiags*>(window) == nullptr)
        return false;
    m_stop();
    return true;
}
