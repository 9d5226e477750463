// Voicings in the main window: the strip of diagrams, and laying what is chosen there.
#include "controls/handle.h"
#include "pictures/shapewords.h"
#include "workbench/frmmain.h"

#include <QLayout>

#include <algorithm>

void frmMain::ConnectVoicings() {
    Handle(lstVoicings, &VoicingList::LayAsked, this, &frmMain::lstVoicings_Click);
    Handle(lstVoicings, &VoicingList::StrumAsked, this, &frmMain::lstVoicings_DblClick);
    Handle(lstVoicings, &VoicingList::AddAsked, this,
           [this](int row) { LayAndAdd(lstVoicings->Rows().ShapeAt(row)); });
    Handle(cmdVoicings, &GoldButton::Click, this, &frmMain::cmdVoicings_Click);
}

void frmMain::lstVoicings_Click(int row) {
    LayShape(lstVoicings->Rows().ShapeAt(row));
}

void frmMain::lstVoicings_DblClick(int row) {
    LayAndStrum(lstVoicings->Rows().ShapeAt(row));
}

void frmMain::cmdVoicings_Click() {
    Q_EMIT VoicingsAsked();
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
    const ChordToPlay playing = m_workbench.ToPlay();
    if (playing != m_playing || tongue != m_foundIn) {
        m_playing = playing;
        m_foundIn = tongue;
        m_found = FindVoicings(playing.chord.notes, playing.chord.root, playing.chord.tuning);
        if (playing.bass)
            PutBassFirst(m_found.shapes, playing.chord, *playing.bass);
        lstVoicings->Rows().Show(m_found.shapes, playing.name, tongue);
        lstVoicings->SetTongue(tongue);
    }
    lstVoicings->SetLeftHanded(m_state.LeftHanded);
    lstVoicings->SetCurrentRow(lstVoicings->Rows().RowOf(m_workbench.NeckShape()));
    const auto count = static_cast<int>(m_found.shapes.size());
    lblVoicings->setText(VoicingsInWords(count, m_found, playing.chord, tongue));
}

// The diagrams grow into the room that the pictures leave, half as much again at most, while
// eight stand beside each other.
void frmMain::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    constexpr double largest = 1.5;
    constexpr int besideEachOther = 8;
    const QSizeF cell = VoicingList::smallestCell;
    const QSizeF pictures = InstrumentPanel::SizeAt(1);
    const double room = panel->height() + lstVoicings->height() - 2 * lstVoicings->frameWidth() -
                        pictures.height() * panel->width() / pictures.width();
    const double width = lstVoicings->viewport()->width() / (besideEachOther * cell.width());
    lstVoicings->SetScale(std::clamp(std::min(room / cell.height(), width), 1.0, largest));
}

// On a screen too small for it the strip goes, before the neck has to shrink.
void frmMain::GiveStripItsRoom(int height) {
    const auto show = [this](bool shown) {
        lstVoicings->setVisible(shown);
        lblVoicings->setVisible(shown);
        cmdVoicings->setVisible(shown);
        cmdAddDiag->setVisible(shown);
        layout()->activate(); // It would give the sizes as they were.
    };
    show(true);
    show(layout()->totalMinimumSize().height() <= height);
}
