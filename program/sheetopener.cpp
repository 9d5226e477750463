#include "program/sheetopener.h"

#include "controls/placing.h"
#include "core/statefolder.h"
#include "diagrams/chordshapes.h"
#include "diagrams/frmdiags.h"
#include "diagrams/singlediagram.h"
#include "music/fingernumbers.h"
#include "workbench/frmmain.h"

#include <QFileInfo>

SheetOpener::SheetOpener(AppState& state, Workbench& workbench, frmMain& window,
                         std::function<void(QWidget& sheet)> prepare)
    : m_state(state), m_workbench(workbench), m_window(window), m_prepare(std::move(prepare)) {}

SheetOpener::~SheetOpener() = default;

frmDiags& SheetOpener::Sheet() {
    if (!m_sheet) {
        m_sheet = std::make_unique<frmDiags>(
            m_state, [this] { return FingeringOf(m_workbench, m_workbench.ChordName()); });
        m_sheet->SetShapes(ChordShapes(m_state), WithFingers);
        m_sheet->SetLay([this](const Shape& shape) { m_window.LayShape(shape); });
        m_sheet->KeepRecovery(StateFolder());
        m_prepare(*m_sheet);
    }
    return *m_sheet;
}

void SheetOpener::Show() {
    Sheet().OpenBeside(OnScreen(*m_window.Frame1) | OnScreen(*m_window.panel->picStrings));
    if (!m_offered) {
        m_offered = true;
        m_sheet->OfferLeft();
    }
}

void SheetOpener::AddNeck() {
    const QString row = Sheet().AddRow(FingeringOf(m_workbench, m_window.NeckDiagram().name));
    m_window.ShowNotice({QStringLiteral("Добавлено на лист диаграмм: ") + row,
                         QStringLiteral("Added to the diagram sheet: ") + row});
}

void SheetOpener::Copy(const Diagram& diagram) {
    CopyDiagram(diagram);
    const QString frets = FretsText(diagram.shape);
    m_window.ShowNotice({QStringLiteral("Диаграмма скопирована: ") + frets,
                         QStringLiteral("The diagram was copied: ") + frets});
}

void SheetOpener::Save(QWidget* owner, const Diagram& diagram) {
    const Phrase title{QStringLiteral("Сохранить диаграмму"), QStringLiteral("Save the diagram")};
    const QString path =
        SaveDiagram(owner, title.In(m_state.InterfaceTongue()), diagram, m_state.AppPath);
    if (path.isEmpty())
        return;
    const QString name = QFileInfo(path).fileName();
    m_window.ShowNotice({QStringLiteral("Диаграмма записана в файл «%1».").arg(name),
                         QStringLiteral("The diagram was written to the file “%1”.").arg(name)});
}

bool SheetOpener::MayEnd() {
    return !m_sheet || m_sheet->MayEnd();
}
