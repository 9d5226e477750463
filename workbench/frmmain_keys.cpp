// The main window's key table, ahead of whichever control has the focus.
#include "workbench/frmmain.h"

#include "controls/application.h"
#include "core/numbers.h"

#include <QKeyEvent>

namespace {

enum Modifier { none = 0, shiftKey = 1, ctrlKey = 2, altKey = 4 };

int ModifierMask(Qt::KeyboardModifiers modifiers) {
    return (modifiers.testFlag(Qt::ShiftModifier) ? shiftKey : none) |
           (modifiers.testFlag(Qt::ControlModifier) ? ctrlKey : none) |
           (modifiers.testFlag(Qt::AltModifier) ? altKey : none);
}

} // namespace

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    // The list of an open drop-down is a window of its own and keeps its keys.
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::KeyPress && widget != nullptr && widget->window() == this) {
        const auto* press = static_cast<QKeyEvent*>(event);
        bool handled = true;
        Application::Guard(
            [&] { handled = Form_KeyDown(press->key(), ModifierMask(press->modifiers())); });
        if (handled)
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

bool frmMain::Form_KeyDown(int key, int shift) {
    switch (key) {
    case Qt::Key_F1:
        Q_EMIT HelpAsked(false);
        return true;
    case Qt::Key_F2:
        cmdMakeBarre_Click();
        return true;
    case Qt::Key_F3:
        if (shift == shiftKey)
            cmdFindChord_Click();
        else
            cmdFind_Click();
        return true;
    case Qt::Key_F4:
        cmdFindNew_Click();
        return true;
    case Qt::Key_F5:
        GoldButton1_Click();
        return true;
    case Qt::Key_F6:
        GoldButton2_Click();
        return true;
    case Qt::Key_F7:
        GoldButton3_Click();
        return true;
    case Qt::Key_F8:
        Command1_Click();
        return true;
    case Qt::Key_F9:
        Command2_Click();
        return true;
    case Qt::Key_F10:
        Q_EMIT SettingsAsked();
        return true;
    case Qt::Key_Down:
    case Qt::Key_Up:
    case Qt::Key_Left:
    case Qt::Key_Right:
        // The lists must not react to the arrow as well.
        panel->picStrings->setFocus();
        ArrowKey(key, shift);
        return true;
    default:
        return false;
    }
}

void frmMain::ArrowKey(int key, int shift) {
    const int step = key == Qt::Key_Down ? 1 : -1;
    if (key == Qt::Key_Left || key == Qt::Key_Right) {
        const int row = lstLadBarre->currentIndex() + (key == Qt::Key_Right ? 1 : -1);
        if (shift == shiftKey && row >= 0 && row < barreFrets)
            lstLadBarre->SelectRow(row);
    } else if (shift == ctrlKey) {
        StepRow(*lstBase, step, notesPerOctave);
    } else if (shift == altKey) {
        StepRow(*lstType, step, lstType->RowCount());
    } else if (shift == shiftKey) {
        StepString(-step);
    }
}

void frmMain::StepRow(ListBox& list, int step, int rows) {
    const int row = list.Row() + step;
    if (row >= 0 && row < rows)
        list.SelectRow(row);
}

void frmMain::StepString(int step) {
    const double number = LeadingNumber(txtStr->text());
    if (step < 0 ? number >= 2 : number <= stringCount - 1)
        txtStr->setText(QString::number(number + step, 'g', 15));
}
