// Voicings in the main window: the strip of diagrams, and laying what is chosen there.
#include "controls/handle.h"
#include "pictures/shapewords.h"
#include "workbench/frmmain.h"

void frmMain::ConnectVoicings() {
    Handle(lstVoicings, &VoicingList::LayAsked, this, &frmMain::lstVoicings_Click);
    Handle(lstVoicings, &VoicingList::StrumAsked, this, &frmMain::lstVoicings_DblClick);
    Handle(lstVoicings, &VoicingList::AddAsked, this,
           [this](int row) { LayAndAdd(lstVoicings->Rows().ShapeAt(row)); });
    Handle(cmdVoicings, &GoldButton::Click, this, &frmMain::VoicingsAsked);
}

void frmMain::lstVoicings_Click(int row) {
    LayShape(lstVoicings->Rows().ShapeAt(row));
}

void frmMain::lstVoicings_DblClick(int row) {
    LayAndStrum(lstVoicings->Rows().ShapeAt(row));
}

void frmMain::LayShape(const Shape& shape) {
    Do([&] { m_workbench.LayShape(shape); });
}

void frmMain::LayAndStrum(const Shape& shape) {
    LayShape(shape);
    m_playback.Strum();
}

void frmMain::LayAndAdd(const Shape& shape) {
    LayShape(shape);
    Q_EMIT AddToSheetAsked();
}

void frmMain::StepVoicing(int step) {
    const int row = lstVoicings->CurrentRow() + step;
    if (row < 0 || row >= lstVoicings->Rows().rowCount())
        return;
    lstVoicings_Click(row);
    lstVoicings->BringIntoView(row);
}

void frmMain::ShowVoicings() {
    const Tongue tongue = m_state.InterfaceTongue();
    const Voicings& found = m_playing.Found();
    if (m_playing.Follow(m_workbench) || lstVoicings->InTongue() != tongue) {
        lstVoicings->Rows().Show(found.shapes, m_playing.Chord().name, tongue);
        lstVoicings->SetTongue(tongue);
    }
    lstVoicings->SetLeftHanded(m_state.LeftHanded);
    lstVoicings->SetCurrentRow(lstVoicings->Rows().RowOf(m_workbench.NeckShape()));
    const auto count = static_cast<int>(found.shapes.size());
    lblVoicings->setText(VoicingsInWords(count, found, m_playing.Chord().chord, tongue));
}
