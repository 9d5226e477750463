#include "voicings/frmvoicings.h"

#include "controls/handle.h"
#include "controls/newcontrols.h"
#include "pictures/shapewords.h"
#include "voicings/voicingstexts.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QSignalBlocker>

#include <algorithm>

frmVoicings::frmVoicings(const AppState& state)
    : FilterGroup(this),
      lblVoicings(NewLabel(u"lblVoicings", this)),
      lstVoicings(new VoicingList(QStringLiteral("lstVoicings"), VoicingList::Flow::Grid, this)),
      m_state(state) {
    setObjectName(QStringLiteral("frmVoicings"));
    auto* window = Spaced(new QVBoxLayout(this), layoutGap + layoutGap / 2);
    window->addLayout(filters);
    window->addWidget(lblVoicings);
    window->addWidget(lstVoicings, 1);

    for (DropDown* list : Lists())
        Handle(list, &DropDown::RowChosen, this, &frmVoicings::Choose);
    for (QCheckBox* box : {chkNoBarre, chkComplete})
        Handle(box, &QCheckBox::stateChanged, this, &frmVoicings::Choose);
    for (QCheckBox* box : chkString)
        Handle(box, &QCheckBox::stateChanged, this, &frmVoicings::Choose);
    Handle(cmdAll, &GoldButton::Click, this, &frmVoicings::cmdAll_Click);
    Handle(lstVoicings, &VoicingList::LayAsked, this,
           [this](int row) { Ask(&frmVoicings::LayAsked, row); });
    Handle(lstVoicings, &VoicingList::StrumAsked, this,
           [this](int row) { Ask(&frmVoicings::StrumAsked, row); });
    Handle(lstVoicings, &VoicingList::AddAsked, this,
           [this](int row) { Ask(&frmVoicings::AddAsked, row); });
    Handle(lstVoicings, &VoicingList::CopyAsked, this,
           [this](int row) { Ask(&frmVoicings::CopyAsked, row); });
    Handle(lstVoicings, &VoicingList::SaveAsked, this,
           [this](int row) { Ask(&frmVoicings::SaveAsked, row); });
    lstVoicings->Rows().SetRemark([this](const Shape& shape) {
        return Order() == VoicingOrder::Movement
                   ? MovementInWords(MovementBetween(m_hand, shape), m_state.InterfaceTongue())
                   : QString();
    });
    Handle(new QShortcut(Qt::CTRL | Qt::Key_PageDown, this), &QShortcut::activated, this,
           [this] { StepVoicing(1); });
    Handle(new QShortcut(Qt::CTRL | Qt::Key_PageUp, this), &QShortcut::activated, this,
           [this] { StepVoicing(-1); });
    ShowTexts(Tongue::Russian);
    LetAllPass();
    constexpr double cellScale = 1.25;
    lstVoicings->SetScale(cellScale);
    lstVoicings->setFocus();
}

// What is chosen in the lists stays.
void frmVoicings::ShowTexts(Tongue tongue) {
    std::array<int, 6> rows{};
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i] = Lists()[i]->currentIndex();
    ApplyTexts(*this, VoicingsTexts(), {}, {tongue, std::nullopt});
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const QSignalBlocker silent(Lists()[i]);
        Lists()[i]->setCurrentIndex(std::max(rows[i], 0)); // The first until something is chosen.
    }
    lstVoicings->SetTongue(tongue);
    m_tongue = tongue;
}

void frmVoicings::ShowState(const ChordToPlay& playing, const Voicings& found, const Shape& neck,
                            const Shape& hand) {
    const Tongue tongue = m_state.InterfaceTongue();
    const Shape held = WithFingers(hand);
    const bool moved = held != m_hand && !m_asking && Order() == VoicingOrder::Movement;
    const bool changed = playing != m_playing || tongue != m_tongue;
    if (tongue != m_tongue)
        ShowTexts(tongue);
    if (changed) {
        m_playing = playing;
        m_found = found;
    }
    m_neck = neck;
    if (!m_asking)
        m_hand = held;
    lstVoicings->SetLeftHanded(m_state.LeftHanded);
    if (changed || moved)
        Choose();
    const int row = lstVoicings->Rows().RowOf(neck);
    lstVoicings->SetCurrentRow(row);
    if (!changed)
        lstVoicings->BringIntoView(row);
}

void frmVoicings::Choose() {
    const Tongue tongue = m_state.InterfaceTongue();
    auto chosen = ChooseVoicings(m_found.shapes, m_playing.chord, Filter(), Order(), m_hand);
    const auto count = static_cast<int>(chosen.size());
    lstVoicings->Rows().Show(std::move(chosen), m_playing.name, tongue);
    lblVoicings->setText(VoicingsInWords(count, m_found, m_playing.chord, tongue));
    lstVoicings->SetCurrentRow(lstVoicings->Rows().RowOf(m_neck));
}

void frmVoicings::cmdAll_Click() {
    LetAllPass();
    Choose();
}

void frmVoicings::StepVoicing(int step) {
    const int row = lstVoicings->CurrentRow() + step;
    if (row < 0 || row >= lstVoicings->Rows().rowCount())
        return;
    Ask(&frmVoicings::LayAsked, row);
    lstVoicings->SetCurrentRow(row);
    lstVoicings->BringIntoView(row);
}

void frmVoicings::Ask(void (frmVoicings::*asked)(const Shape&), int row) {
    const QScopedValueRollback asking(m_asking, true);
    Q_EMIT(this->*asked)(lstVoicings->Rows().ShapeAt(row));
}

void frmVoicings::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}
