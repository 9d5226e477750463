// What the main window does with diagrams: of what is on its neck, and of the strip.
#include "controls/handle.h"
#include "workbench/frmmain.h"
#include "workbench/views.h"

#include <QMenu>

void frmMain::ConnectDiagrams() {
    Handle(cmdAddDiag, &GoldButton::Click, this, &frmMain::AddToSheetAsked);
    cmdAddDiag->setContextMenuPolicy(Qt::CustomContextMenu);
    Handle(cmdAddDiag, &QWidget::customContextMenuRequested, this, &frmMain::cmdAddDiag_Menu);
    Handle(lstVoicings, &VoicingList::CopyAsked, this,
           [this](int row) { Q_EMIT CopyAsked(DiagramOf(lstVoicings->Rows().ShapeAt(row))); });
    Handle(lstVoicings, &VoicingList::SaveAsked, this,
           [this](int row) { Q_EMIT SaveAsked(DiagramOf(lstVoicings->Rows().ShapeAt(row))); });
}

void frmMain::cmdAddDiag_Menu(QPoint place) {
    // The same commands as the picture's own menu has, for the mouse.
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("mnuNeck"));
    const PictureParts parts = panel->picStrings->Parts();
    for (std::size_t i = 1; i < parts.actions.size(); ++i)
        menu.addAction(parts.actions[i].name, this, parts.actions[i].run);
    menu.exec(cmdAddDiag->mapToGlobal(place));
}

Diagram frmMain::NeckDiagram() const {
    const bool unnamed = !m_workbench.NamesChord() && !m_sounding.empty();
    return {unnamed ? m_sounding.front().text : m_workbench.ChordName(), HeldOnNeck(m_workbench),
            m_state.LeftHanded};
}

Diagram frmMain::DiagramOf(const Shape& shape) const {
    return {m_names ? m_playing.NameOf(shape, *m_names) : QString(), shape, m_state.LeftHanded};
}
