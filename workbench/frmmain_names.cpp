// Names in the main window: what the strings sound, what somebody types, and the rings that show
// where its notes lie.
#include "controls/handle.h"
#include "workbench/frmmain.h"
#include "workbench/typecompleter.h"

void frmMain::ConnectNames() {
    Handle(lblSounds, &ChoiceLabel::Chosen, this, &frmMain::lblSounds_Click);
    Handle(cmdRings, &GoldButton::Click, this, &frmMain::cmdRings_Click);
    auto* completer =
        new TypeCompleter(txtFind, m_state.ChordTypes, [this](const QKeyEvent& press) {
            return m_commandKeys.CommandOf(press);
        });
    Handle(completer, &TypeCompleter::Chosen, this, &frmMain::txtFind_Chosen);
}

void frmMain::ShowNames() {
    m_sounding = m_names ? m_workbench.NamesOfHand(*m_names) : std::vector<PlayersName>();
    std::vector<ChoiceLabel::Choice> choices;
    for (const PlayersName& name : m_sounding)
        choices.push_back({name.text, name.chord.has_value()});
    lblSounds->Show(choices);
    lblSounds->setToolTip(
        m_sounding.empty() ? QString() : m_sounding.front().word.In(m_state.InterfaceTongue()));
    cmdRings->setChecked(m_workbench.RingsShown());
}

void frmMain::lblSounds_Click(int name) {
    const auto chord = m_sounding.at(static_cast<std::size_t>(name)).chord;
    if (chord)
        Do([&] { m_workbench.ChooseNameOfHand(chord->root, chord->entry - 1); });
}

void frmMain::cmdRings_Click() {
    m_workbench.SwitchRings(); // A look and no step: there is nothing to undo.
    ShowState();
}

void frmMain::txtFind_Chosen(const TypedChord& chord) {
    if (chord.root)
        Do([&] { m_workbench.ChooseChord(*chord.root, chord.entry - 1, chord.bass); });
    else
        lstType->SelectRow(chord.entry - 1);
}
