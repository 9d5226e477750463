#include "workbench/commandkeys.h"

#include "controls/application.h"
#include "workbench/keytable.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

int ModifierMask(Qt::KeyboardModifiers modifiers) {
    return (modifiers.testFlag(Qt::ShiftModifier) ? shiftKey : none) |
           (modifiers.testFlag(Qt::ControlModifier) ? ctrlKey : none) |
           (modifiers.testFlag(Qt::AltModifier) ? altKey : none);
}

bool IsPopup(const QWidget* window) {
    return window->windowType() == Qt::Popup;
}

// The window that an open list or menu belongs to; null where nobody knows.
const QWidget* OwnerOf(const QWidget* popup) {
    while (popup != nullptr && IsPopup(popup)) {
        const QWidget* control = popup->parentWidget();
        if (control == nullptr)
            control = popup->focusProxy(); // The text box of a completer's list.
        popup = control != nullptr ? control->window() : nullptr;
    }
    return popup;
}

void ClosePopups() {
    while (QWidget* popup = QApplication::activePopupWidget())
        if (!popup->close())
            return;
}

} // namespace

CommandKeys::CommandKeys(const QWidget& window, Answers answers)
    : m_window(window), m_answers(std::move(answers)) {
    qApp->installEventFilter(this);
}

bool CommandKeys::eventFilter(QObject* watched, QEvent* event) {
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::KeyPress || widget == nullptr)
        return false;
    const QWidget* owner = OwnerOf(widget->window());
    const bool inPopup = IsPopup(widget->window());
    const auto* press = static_cast<QKeyEvent*>(event);
    if (owner == &m_window)
        return Press(*press, inPopup);
    const bool plainArrow =
        IsArrow(press->key()) && ModifierMask(press->modifiers()) == KeyModifier::none;
    return owner != nullptr && owner == m_beside && !plainArrow && Command(*press) != nullptr &&
           Press(*press, inPopup);
}

const KeyCommand* CommandKeys::Command(const QKeyEvent& press) const {
    return m_answers.command(press.key(), ModifierMask(press.modifiers()));
}

bool CommandKeys::Press(const QKeyEvent& press, bool inPopup) const {
    const KeyCommand* command = Command(press);
    if (inPopup && command == nullptr)
        return false; // An open list or menu keeps its own keys.
    if (inPopup)
        ClosePopups();
    if (press.isAutoRepeat() && command != nullptr && command->held == Held::OnePress)
        return true;
    bool handled = true;
    Application::Guard(
        [&] { handled = m_answers.press(press.key(), ModifierMask(press.modifiers())); });
    return handled;
}

std::function<void()> CommandKeys::CommandOf(const QKeyEvent& press) const {
    if (Command(press) == nullptr)
        return {};
    return [this, key = press.key(), shift = ModifierMask(press.modifiers())] {
        m_answers.press(key, shift);
    };
}
