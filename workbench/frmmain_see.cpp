// Seeing in the main window: the state, written into the controls.
#include "controls/handle.h"
#include "workbench/frmmain.h"
#include "workbench/views.h"

void frmMain::ConnectSee() {
    m_fretboardCommands = {.press =
                               [this](int row, std::optional<int> fret) {
                                   DoQuietly([&] { m_workbench.PressString(row, fret); });
                               },
                           .nextNote = [this](int row) { Label6_MouseDown(row, Qt::LeftButton); },
                           .mute = [this](int row) { Label6_MouseDown(row, Qt::RightButton); },
                           .switchBarre = [this] { cmdMakeBarre_Click(); },
                           .moveBarre = [this](int fret) { lstLadBarre->SelectRow(fret - 1); },
                           .clear = [this] { DoQuietly([&] { m_workbench.ClearFretboard(); }); },
                           .copyDiagram = [this] { Q_EMIT CopyAsked(NeckDiagram()); },
                           .saveDiagram = [this] { Q_EMIT SaveAsked(NeckDiagram()); }};
    m_keyboardCommands = {.toggle = [this](int key) { Do([&] { m_workbench.ToggleKey(key); }); },
                          .clear = [this] { Do([&] { m_workbench.ClearKeyMarks(); }); }};
    panel->picStrings->SetParts(
        [this] { return FretboardParts(m_workbench, m_state, m_fretboardCommands); });
    panel->picKeyboard->SetParts([this] {
        return KeyboardParts(m_workbench, m_state.InterfaceTongue(), m_keyboardCommands);
    });
    Handle(panel->picStrings, &TwipPicture::FocusMoved, this, &frmMain::ShowHint);
    Handle(panel->picKeyboard, &TwipPicture::FocusMoved, this, &frmMain::ShowHint);
    Handle(cmdFindChord, &GoldButton::Click, this, &frmMain::cmdFindChord_Click);
}

void frmMain::cmdFindChord_Click() {
    Do([&] { m_workbench.FindChord(); });
}

void frmMain::ShowState() {
    // What is dragged is that barre, not one that is set later.
    BarreDragging = BarreDragging && m_workbench.ShownBarre();
    ShowInstruments();
    ShowLabels();
    ShowNames();
    ChooseGroup::ShowRows(m_workbench);
    TryGroup::ShowRows(m_workbench);
    ShowVoicings();
    ShowHint();
    panel->picStrings->TellParts();
    panel->picKeyboard->TellParts();
    lblChord->setText(m_workbench.ChordName());
    lblChord->setToolTip(m_workbench.ChordHint());
    lblKeys->setText(m_workbench.MarkedNames());
    ShowTuning(m_state);
    ShowMissing(m_workbench.Missing(), m_state.InterfaceTongue());
    Q_EMIT StateShown();
}

void frmMain::ShowInstruments() {
    FretboardView board = ViewOfFretboard(m_workbench, m_state);
    board.soundingRows = m_playback.SoundingRows();
    board.chosenRow = RowOfSearch(txtStr->text());
    ShowPointed(board, m_pointed, m_workbench);
    panel->picStrings->Show(board);
    KeyboardView keyboard = ViewOfKeyboard(m_workbench);
    keyboard.soundingKey = m_playback.SoundingKey();
    panel->picKeyboard->Show(keyboard);
}

void frmMain::ShowLabels() {
    LabelsView labels = ViewOfLabels(m_workbench, m_state);
    if (m_fretLabelLit)
        labels.litFret = LastFretLabel + 1;
    if (m_stringLabelLit)
        labels.litRow = LastStringLabel;
    panel->ShowLabels(labels);
}

void frmMain::ShowHint() {
    panel->ShowHint(HintAt(m_pointed, *this, m_workbench, m_state, m_notice));
}

void frmMain::ShowNotice(const Phrase& notice) {
    m_notice = notice.In(m_state.InterfaceTongue());
    ShowHint();
    QAccessibleEvent alert(panel->lblHint, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}
