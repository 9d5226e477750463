// Choosing in the main window: a root with a type or a scale, and the search for a type.
#include "controls/cataloguemodel.h"
#include "controls/handle.h"
#include "controls/plaintext.h"
#include "music/spelling.h"
#include "workbench/frmmain.h"

void frmMain::ConnectChoose() {
    Handle(lstBase, &ListBox::RowChosen, this, &frmMain::lstBase_Click);
    Handle(lstType, &ListBox::RowChosen, this, &frmMain::lstType_Click);
    Handle(lstType, &ListBox::RowDoubleClicked, this, &frmMain::lstType_DblClick);
    Handle(lstType, &ListBox::activated, this, &frmMain::lstType_DblClick);
    Handle(lstLad, &ListBox::RowChosen, this, &frmMain::lstLad_Click);
    Handle(txtFind, &QLineEdit::returnPressed, this, &frmMain::cmdFind_Click);
    Handle(cmdFind, &GoldButton::Click, this, &frmMain::cmdFind_Click);
}

void frmMain::ShowTypes() {
    lstType->setModel(new CatalogueModel(m_state.ChordTypes, lstType));
    m_names.emplace(m_state.ChordTypes);
}

void frmMain::ShowScales() {
    lstLad->setModel(new CatalogueModel(m_state.Scales, lstLad));
}

void frmMain::ShowRoots() {
    QStringList roots;
    for (int semitone = 0; semitone < notesPerOctave; ++semitone)
        roots += NoteName(semitone).toString();
    lstBase->SetTexts(roots);
}

void frmMain::lstBase_Click(int row) {
    Do([&] { m_workbench.ChooseRoot(row, lstBase->RowText(row)); });
}

void frmMain::lstType_Click(int row) {
    Do([&] { m_workbench.ChooseType(row); });
}

void frmMain::lstType_DblClick() {
    const QString names = m_workbench.AlternativeNames();
    const Phrase title{QStringLiteral("Аккорд:"), QStringLiteral("Chord:")};
    Tell(title.In(m_state.InterfaceTongue()), names, this);
}

void frmMain::lstLad_Click(int row) {
    if (row >= 0)
        Do([&] { m_workbench.ChooseScale(row, lstLad->RowText(row)); });
}

void frmMain::cmdFind_Click() {
    if (const auto row = FindChordType(m_state.ChordTypes, txtFind->text())) {
        lstType->SelectRow(*row);
    } else {
        Tell(QStringLiteral("Find"), m_state.UiText.NoSuchChordType, this);
        txtFind->AskAgain();
    }
}
