// Hearing in the main window: the marked keys, the strings, silence.
#include "controls/handle.h"
#include "workbench/frmmain.h"

void frmMain::ConnectHear() {
    Handle(GoldButton1, &GoldButton::Click, this, &frmMain::GoldButton1_Click);
    Handle(GoldButton2, &GoldButton::Click, this, &frmMain::GoldButton2_Click);
    Handle(cmdStrum, &GoldButton::Click, this, &frmMain::cmdStrum_Click);
    Handle(GoldButton3, &GoldButton::Click, this, &frmMain::GoldButton3_Click);
    m_playback.SetShow([this] { ShowInstruments(); });
}

void frmMain::GoldButton1_Click() {
    m_playback.PlayKeys(lstWhat->currentIndex() == 1);
}

void frmMain::GoldButton2_Click() {
    m_playback.PlayStrings(lstWhat->currentIndex() == 1);
}

void frmMain::cmdStrum_Click() {
    m_playback.Strum();
}

void frmMain::GoldButton3_Click() {
    m_playback.Stop();
}
