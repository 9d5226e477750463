// Trying in the main window: other frets for a string, the barre, notes to the strings and back.
#include "controls/handle.h"
#include "workbench/frmmain.h"

void frmMain::ConnectTry() {
    Handle(VScroll3, &QScrollBar::valueChanged, this, &frmMain::VScroll3_Change);
    Handle(txtStr, &QLineEdit::textChanged, this, &frmMain::ShowInstruments);
    Handle(cmdFindNew, &GoldButton::Click, this, &frmMain::cmdFindNew_Click);
    Handle(cmdMakeBarre, &GoldButton::Click, this, &frmMain::cmdMakeBarre_Click);
    Handle(lstBarre, &DropDown::RowChosen, this, &frmMain::lstBarre_Click);
    Handle(lstLadBarre, &DropDown::RowChosen, this, &frmMain::lstLadBarre_Click);
    Handle(Command1, &GoldButton::Click, this, &frmMain::Command1_Click);
    Handle(Command2, &GoldButton::Click, this, &frmMain::Command2_Click);
}

void frmMain::VScroll3_Change(int value) {
    txtStr->setText(QString::number(value));
}

void frmMain::cmdFindNew_Click() {
    Do([&] { m_workbench.FindNextFret(txtStr->text()); });
}

void frmMain::cmdMakeBarre_Click() {
    Do([&] { m_workbench.SwitchBarre(); });
}

void frmMain::lstBarre_Click(int row) {
    Do([&] { m_workbench.ChooseBarreStrings(row); });
}

void frmMain::lstLadBarre_Click(int row) {
    Do([&] { m_workbench.ChooseBarreFret(row); });
}

void frmMain::Command1_Click() {
    Do([&] { m_workbench.PlaceFingers(); });
}

void frmMain::Command2_Click() {
    Do([&] { m_workbench.ReadFretboard(); });
}
