// Seeing in the main window: the state, written into the controls.
#include "controls/colours.h"
#include "controls/handle.h"
#include "controls/labellook.h"
#include "music/shape.h"
#include "pictures/partnames.h"
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
    ShowRows();
    ShowVoicings();
    ShowHint();
    panel->picStrings->TellParts();
    panel->picKeyboard->TellParts();
    lblChord->setText(m_workbench.ChordName());
    lblChord->setToolTip(m_workbench.ChordHint());
    lblKeys->setText(m_workbench.MarkedNames());
    const Phrase rootMissing{QStringLiteral("Ни одна струна не даёт основного тона аккорда."),
                             QStringLiteral("No string sounds the root of the chord.")};
    const bool warn = m_workbench.Missing().rootMissing;
    lblNoS->setText(m_workbench.Missing().text);
    SetTextColour(lblNoS, warn ? Colours::mark : Colours::normalText);
    lblNoS->setAutoFillBackground(!lblNoS->text().trimmed().isEmpty());
    lblNoS->setToolTip(warn ? rootMissing.In(m_state.InterfaceTongue()) : QString());
    Q_EMIT StateShown();
}

void frmMain::ShowRows() {
    lstBase->ShowRow(m_workbench.RootRow());
    lstType->ShowRow(m_workbench.TypeRow());
    lstLad->ShowRow(m_workbench.ScaleRow());
    lstBarre->ShowRow(m_workbench.BarreStringsRow());
    lstLadBarre->ShowRow(m_workbench.BarreFretRow());
}

void frmMain::ShowInstruments() {
    FretboardView board = ViewOfFretboard(m_workbench, m_state);
    board.soundingRows = m_playback.SoundingRows();
    // A press there would take hold of the barre, should it have come there meanwhile.
    if (m_pointed && !IsOnBarre(board.layout.MarkCentre(m_pointed->row, m_pointed->fret).x())) {
        board.pointed = m_pointed;
        if (const auto note = m_workbench.NoteAt(m_pointed->row, m_pointed->fret))
            board.pointedNote = NoteName(*note).toString();
    }
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
    panel->ShowHint(Hint());
}

void frmMain::ShowNotice(const Phrase& notice) {
    m_notice = notice.In(m_state.InterfaceTongue());
    ShowHint();
    QAccessibleEvent alert(panel->lblHint, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

QString frmMain::Hint() {
    if (m_chordPointed && lblChord->IsCut())
        return lblChord->text();
    const Tongue tongue = m_state.InterfaceTongue();
    const auto marked = m_workbench.Keys().Marked();
    if (m_pointed) {
        const auto note = m_workbench.NoteAt(m_pointed->row, m_pointed->fret);
        const int string = StringOfRow(m_pointed->row, m_state.ThinStringAtBottom);
        return note ? WithHelp(CrossingHint(string, m_pointed->fret, *note, marked, tongue))
                    : WithHelp({});
    }
    const auto& keyboard = *panel->picKeyboard;
    if (!m_pointedKey && m_restsOn != nullptr)
        return WithHelp({});
    if (!m_pointedKey && !m_notice.isEmpty())
        return m_notice;
    if (m_pointedKey || keyboard.hasFocus())
        return WithHelp(KeyHint(m_pointedKey.value_or(keyboard.FocusPart()), marked, tongue));
    if (panel->picStrings->hasFocus()) {
        const auto focus = static_cast<std::size_t>(panel->picStrings->FocusPart());
        const QString part = panel->picStrings->Parts().parts[focus].name;
        return part.left(1).toUpper() + part.mid(1);
    }
    return {};
}

QString frmMain::WithHelp(const QString& hint) const {
    if (m_restsOn == nullptr)
        return hint;
    const QString& help = m_restsOn->accessibleName();
    return hint.isEmpty() ? help : hint + QStringLiteral(". ") + help;
}
