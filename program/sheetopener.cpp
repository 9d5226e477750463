#include "program/sheetopener.h"

#include "core/scales.h"
#include "core/statefolder.h"
#include "diagrams/chordshapes.h"
#include "diagrams/frmdiags.h"
#include "diagrams/singlediagram.h"
#include "music/fingernumbers.h"
#include "music/names.h"
#include "workbench/frmmain.h"

namespace {

// Whether a scale is shown: its name stands behind the root's.
bool IsScaleName(const QString& name, const TextTable& scales) {
    const qsizetype blank = name.indexOf(u' ');
    if (blank < 0)
        return false;
    for (int entry = 1; entry <= scales.Count(); ++entry)
        if (scales.FieldEquals(ScaleDef::Name, entry, QStringView(name).sliced(blank + 1)))
            return true;
    return false;
}

} // namespace

SheetOpener::SheetOpener(AppState& state, Workbench& workbench, frmMain& window,
                         std::function<void(QWidget& sheet)> prepare)
    : m_state(state), m_workbench(workbench), m_window(window), m_prepare(std::move(prepare)) {}

SheetOpener::~SheetOpener() = default;

BoardFingering SheetOpener::Neck() const {
    BoardFingering board;
    board.chordName = m_workbench.ChordName();
    board.barreFret = m_workbench.ShownBarreFret();
    for (int row = 0; row < stringCount; ++row)
        board.marks[static_cast<std::size_t>(row)] = m_workbench.Row(row).mark;
    board.shape = m_workbench.NeckShape();
    if (const auto fingers = FindFingers(*board.shape))
        for (int string = 1; string <= stringCount; ++string)
            board.shape->fingers[static_cast<std::size_t>(string - 1)] =
                static_cast<std::int8_t>(fingers->Of(string));
    return board;
}

QString SheetOpener::NameOfNeck() const {
    const QString& name = m_workbench.ChordName();
    if (!name.isEmpty() && name != u"---" && !IsScaleName(name, m_state.Scales))
        return name;
    const auto names = PlayersNames(m_state.ChordTypes)
                           .Of(SoundingPitches(m_workbench.NeckShape(), TuningOf(m_state)));
    return names.empty() ? name : names.front().text;
}

frmDiags& SheetOpener::Sheet() {
    if (!m_sheet) {
        m_sheet = std::make_unique<frmDiags>(m_state, [this] { return Neck(); });
        m_sheet->SetShapes(ChordShapes(m_state), WithFingers);
        m_sheet->SetLay([this](const Shape& shape) { m_window.LayShape(shape); });
        m_sheet->KeepRecovery(StateFolder());
        m_prepare(*m_sheet);
    }
    return *m_sheet;
}

void SheetOpener::Show() {
    const auto onScreen = [](const QWidget* control) {
        return QRect(control->mapToGlobal(QPoint()), control->size());
    };
    Sheet().OpenBeside(onScreen(m_window.Frame1) | onScreen(m_window.panel->picStrings));
    if (!m_offered) {
        m_offered = true;
        m_sheet->OfferLeft();
    }
}

void SheetOpener::AddNeck() {
    BoardFingering board = Neck();
    board.chordName = NameOfNeck();
    const QString row = Sheet().AddRow(board);
    m_window.ShowNotice({QStringLiteral("Добавлено на лист диаграмм: ") + row,
                         QStringLiteral("Added to the diagram sheet: ") + row});
}

void SheetOpener::CopyNeck() {
    CopyDiagram({NameOfNeck(), *Neck().shape, m_state.LeftHanded});
    m_window.ShowNotice({QStringLiteral("Диаграмма скопирована: ") + FretsText(*Neck().shape),
                         QStringLiteral("The diagram was copied: ") + FretsText(*Neck().shape)});
}

void SheetOpener::SaveNeck() {
    const Phrase title{QStringLiteral("Сохранить диаграмму"), QStringLiteral("Save the diagram")};
    SaveDiagram(&m_window, title.In(m_state.InterfaceTongue()),
                {NameOfNeck(), *Neck().shape, m_state.LeftHanded}, m_state.AppPath);
}

bool SheetOpener::MayEnd() {
    return !m_sheet || m_sheet->MayEnd();
}
