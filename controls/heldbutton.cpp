#include "controls/heldbutton.h"

#include <QMouseEvent>
#include <QWidget>

#include <utility>

HeldButton::HeldButton(QWidget* widget, std::function<void()> lost)
    : m_widget(widget), m_lost(std::move(lost)) {}

void HeldButton::Press() {
    m_window = m_widget->window();
    m_window->installEventFilter(this);
}

void HeldButton::Release() {
    if (!m_window.isNull())
        m_window->removeEventFilter(this);
    m_window.clear();
}

void HeldButton::Move(const QMouseEvent& event) {
    // Where the window system says so itself, no button is down any more.
    if (event.spontaneous() && event.buttons() == Qt::NoButton)
        Lose();
}

bool HeldButton::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_window && event->type() == QEvent::WindowBlocked)
        Lose();
    return false;
}

void HeldButton::Lose() {
    if (!IsHeld())
        return;
    Release();
    m_lost();
}
