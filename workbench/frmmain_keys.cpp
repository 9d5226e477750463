// The main window's key table, ahead of whichever control has the focus.
#include "workbench/frmmain.h"

#include "controls/application.h"
#include "core/numbers.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>

namespace {

int ModifierMask(Qt::KeyboardModifiers modifiers) {
    return (modifiers.testFlag(Qt::ShiftModifier) ? shiftKey : none) |
           (modifiers.testFlag(Qt::ControlModifier) ? ctrlKey : none) |
           (modifiers.testFlag(Qt::AltModifier) ? altKey : none);
}

bool IsArrow(int key) {
    return key == Qt::Key_Down || key == Qt::Key_Up || key == Qt::Key_Left || key == Qt::Key_Right;
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

// For every window, as open lists and menus are windows of their own.
bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    const auto* widget = qobject_cast<QWidget*>(watched);
    const QWidget* owner = widget == nullptr ? nullptr : OwnerOf(widget->window());
    if (owner != nullptr && owner == m_beside && event->type() == QEvent::KeyPress) {
        const auto* press = static_cast<QKeyEvent*>(event);
        const int shift = ModifierMask(press->modifiers());
        const bool plainArrow = IsArrow(press->key()) && shift == none;
        return !plainArrow && FindCommand(press->key(), shift) != nullptr &&
               KeyPressed(*press, IsPopup(widget->window()));
    }
    if (owner != this)
        return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress)
        return KeyPressed(*static_cast<QKeyEvent*>(event), IsPopup(widget->window()));
    if (event->type() == QEvent::ToolTip)
        if (const auto* picture = qobject_cast<TwipPicture*>(watched)) {
            RestOn(picture);
            return true;
        }
    if (watched == lblChord && (event->type() == QEvent::Enter || event->type() == QEvent::Leave)) {
        m_chordPointed = event->type() == QEvent::Enter;
        ShowHint();
    }
    return QWidget::eventFilter(watched, event);
}

bool frmMain::KeyPressed(const QKeyEvent& press, bool inPopup) {
    const int shift = ModifierMask(press.modifiers());
    const KeyCommand* command = FindCommand(press.key(), shift);
    if (inPopup && command == nullptr)
        return false; // An open list or menu keeps its own keys.
    if (inPopup)
        ClosePopups();
    if (press.isAutoRepeat() && command != nullptr && command->held == Held::OnePress)
        return true;
    bool handled = true;
    Application::Guard([&] { handled = Form_KeyDown(press.key(), shift); });
    return handled;
}

std::span<const KeyCommand> frmMain::KeyTable() {
    using Command = KeyCommand;
    static constexpr std::array commands{
        Command{Qt::Key_F1, any, [](frmMain& window) { Q_EMIT window.HelpAsked(false); }},
        Command{Qt::Key_F2, any, [](frmMain& window) { window.cmdMakeBarre_Click(); }},
        Command{Qt::Key_F3, shiftKey, [](frmMain& window) { window.cmdFindChord_Click(); }},
        Command{Qt::Key_F3, any, [](frmMain& window) { window.cmdFind_Click(); }},
        Command{Qt::Key_F4, any, [](frmMain& window) { window.cmdFindNew_Click(); }},
        Command{Qt::Key_F5, any, [](frmMain& window) { window.GoldButton1_Click(); },
                Held::OnePress},
        Command{Qt::Key_F6, any, [](frmMain& window) { window.GoldButton2_Click(); },
                Held::OnePress},
        Command{Qt::Key_Return, ctrlKey, [](frmMain& window) { window.cmdStrum_Click(); },
                Held::OnePress},
        Command{Qt::Key_Enter, ctrlKey, [](frmMain& window) { window.cmdStrum_Click(); },
                Held::OnePress},
        Command{Qt::Key_F7, any, [](frmMain& window) { window.GoldButton3_Click(); }},
        Command{Qt::Key_F8, any, [](frmMain& window) { window.Command1_Click(); }},
        Command{Qt::Key_F9, any, [](frmMain& window) { window.Command2_Click(); }},
        Command{Qt::Key_F10, any, [](frmMain& window) { Q_EMIT window.SettingsAsked(); }},
        Command{Qt::Key_F11, any, [](frmMain& window) { window.cmdVoicings_Click(); }},
        Command{Qt::Key_F12, any, [](frmMain& window) { window.cmdRings_Click(); }},
        Command{Qt::Key_F, ctrlKey, [](frmMain& window) { window.GoToFind(); }},
        Command{Qt::Key_Z, ctrlKey, [](frmMain& window) { window.Undo(); }},
        Command{Qt::Key_Z, ctrlKey | shiftKey, [](frmMain& window) { window.Redo(); }},
        Command{Qt::Key_PageDown, ctrlKey, [](frmMain& window) { window.StepVoicing(1); }},
        Command{Qt::Key_PageUp, ctrlKey, [](frmMain& window) { window.StepVoicing(-1); }},
        Command{Qt::Key_D, ctrlKey, [](frmMain& window) { Q_EMIT window.AddToSheetAsked(); }},
        Command{Qt::Key_Down, ctrlKey, [](frmMain& window) { window.StepRoot(1); }},
        Command{Qt::Key_Up, ctrlKey, [](frmMain& window) { window.StepRoot(-1); }},
        Command{Qt::Key_Down, altKey, [](frmMain& window) { window.StepType(1); }},
        Command{Qt::Key_Up, altKey, [](frmMain& window) { window.StepType(-1); }},
        Command{Qt::Key_Down, shiftKey, [](frmMain& window) { window.StepString(-1); }},
        Command{Qt::Key_Up, shiftKey, [](frmMain& window) { window.StepString(1); }},
        Command{Qt::Key_Left, shiftKey, [](frmMain& window) { window.StepBarre(-1); }},
        Command{Qt::Key_Right, shiftKey, [](frmMain& window) { window.StepBarre(1); }},
    };
    return commands;
}

// The first row that fits is run.
const KeyCommand* frmMain::FindCommand(int key, int shift) const {
    // A text field takes back what was typed in it.
    if (key == Qt::Key_Z && qobject_cast<QLineEdit*>(focusWidget()) != nullptr)
        return nullptr;
    const auto table = KeyTable();
    const auto command =
        std::find_if(table.begin(), table.end(), [key, shift](const KeyCommand& row) {
            return row.key == key && (row.shift == shift || row.shift == any);
        });
    return command != table.end() ? &*command : nullptr;
}

bool frmMain::Form_KeyDown(int key, int shift) {
    const bool arrow = IsArrow(key);
    if (arrow) // The lists must not react to it as well.
        panel->picStrings->setFocus();
    const KeyCommand* command = FindCommand(key, shift);
    if (command == nullptr)
        return arrow;
    command->run(*this);
    return true;
}

std::function<void()> frmMain::CommandOf(const QKeyEvent& press) {
    const int key = press.key();
    const int shift = ModifierMask(press.modifiers());
    if (FindCommand(key, shift) == nullptr)
        return {};
    return [=, this] { Form_KeyDown(key, shift); };
}

void frmMain::GoToFind() {
    activateWindow(); // The key may have been pressed in another one.
    txtFind->setFocus();
    txtFind->selectAll();
}

void frmMain::StepRow(ListBox& list, int step, int rows) {
    const int row = list.Row() + step;
    if (row >= 0 && row < rows)
        list.SelectRow(row);
}

void frmMain::StepRoot(int step) {
    StepRow(*lstBase, step, notesPerOctave);
}

void frmMain::StepType(int step) {
    StepRow(*lstType, step, lstType->RowCount());
}

void frmMain::StepString(int step) {
    const double number = LeadingNumber(txtStr->text());
    if (step < 0 ? number >= 2 : number <= stringCount - 1)
        txtStr->setText(QString::number(number + step, 'g', 15));
}

void frmMain::StepBarre(int step) {
    const int row = lstLadBarre->currentIndex() + step;
    if (row >= 0 && row < barreFrets)
        lstLadBarre->SelectRow(row);
}
