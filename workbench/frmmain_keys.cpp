// Keys in the main window: what they do that no control does.
#include "core/numbers.h"
#include "workbench/frmmain.h"
#include "workbench/keytable.h"

#include <QLineEdit>

namespace {

void StepRow(ListBox& list, int step, int rows) {
    const int row = list.Row() + step;
    if (row >= 0 && row < rows)
        list.SelectRow(row);
}

} // namespace

const KeyCommand* frmMain::CommandOfKey(int key, int shift) const {
    // A text field takes back what was typed in it.
    if (key == Qt::Key_Z && qobject_cast<QLineEdit*>(focusWidget()) != nullptr)
        return nullptr;
    return FindCommand(key, shift);
}

bool frmMain::Form_KeyDown(int key, int shift) {
    const bool arrow = IsArrow(key);
    if (arrow) // The lists must not react to it as well.
        panel->picStrings->setFocus();
    const KeyCommand* command = CommandOfKey(key, shift);
    if (command == nullptr)
        return arrow;
    command->run(*this);
    return true;
}

void frmMain::GoToFind() {
    activateWindow(); // The key may have been pressed in another one.
    txtFind->setFocus();
    txtFind->selectAll();
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
