// The main window as a whole: how a command runs and is shown, how the groups stand, the end.
#include "workbench/frmmain.h"

#include "controls/handle.h"
#include "controls/newcontrols.h"
#include "core/runtimeerror.h"
#include "workbench/maintexts.h"
#include "workbench/windowroom.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QScopeGuard>

frmMain::frmMain(AppState& state, Workbench& workbench, MidiPlayer& midi, Clock& clock)
    : ChooseGroup(this),
      SeeGroup(this),
      TryGroup(this),
      HearGroup(this),
      MoreGroup(this),
      m_state(state),
      m_workbench(workbench),
      m_playback(state, midi, clock,
                 {[this](int key) { return m_workbench.Keys().IsMarked(key); },
                  [this](int row) { return m_workbench.SoundOfRow(row); },
                  [this] { return m_workbench.ShownBarreFret(); },
                  [this] { return lstTemp->currentIndex() == 1; }}),
      m_commandKeys(*this, {[this](int key, int shift) { return CommandOfKey(key, shift); },
                            [this](int key, int shift) { return Form_KeyDown(key, shift); }}) {
    setObjectName(QStringLiteral("frmMain"));
    setMouseTracking(true);
    LayOut();
    ConnectChoose();
    ConnectSee();
    ConnectNames();
    ConnectVoicings();
    ConnectPoint();
    ConnectTry();
    ConnectHear();
    ConnectMore();
    ConnectDiagrams();
    ShowTexts({});
    ShowState();
}

// The pictures go last, and must not ask a window for their parts that is no more.
frmMain::~frmMain() {
    panel->picStrings->SetParts({});
    panel->picKeyboard->SetParts({});
}

void frmMain::LayOut() {
    auto* work = Spaced(new QVBoxLayout, 0);
    work->addWidget(Frame2);
    work->addWidget(Frame3);
    work->addWidget(Frame4);
    work->addStretch(1);
    work->addWidget(Frame5);

    auto* window = Spaced(new QHBoxLayout(this), layoutGap + layoutGap / 2);
    window->addWidget(Frame1);
    window->addLayout(seeColumn, 1);
    window->addLayout(work);
}

void frmMain::ConnectMore() {
    Handle(cmdNewDiag, &GoldButton::Click, this, &frmMain::DiagramsAsked);
    Handle(cmdSettings, &GoldButton::Click, this, &frmMain::SettingsAsked);
    Handle(cmdHelp, &GoldButton::Click, this, [this] { Q_EMIT HelpAsked(true); });
}

void frmMain::ShowTexts(const TextSource& source) {
    ApplyTexts(*this, MainTexts(), QStringLiteral("Main"), source);
}

void frmMain::SelectDefaults() {
    lstBarre->SelectRow(stringCount - 1);
    lstLadBarre->SelectRow(0);
    lstWhat->SelectRow(1);
    lstTemp->SelectRow(0);
    lstBase->SelectRow(0);
    lstLad->SelectRow(0);
    lstType->SelectRow(0);
    m_history.LieOn(m_state.StringNotes, m_state.SoundNumbers, m_state.ThinStringAtBottom);
    m_history.Forget(); // A user has done nothing yet.
}

void frmMain::Do(const std::function<void()>& command) {
    m_notice.clear();
    const Workbench before = m_workbench;
    const auto show = qScopeGuard([&] {
        m_history.Add(before, m_workbench);
        ShowState();
    });
    command();
}

void frmMain::Undo() {
    if (m_history.Undo(m_workbench))
        ShowState();
}

void frmMain::Redo() {
    if (m_history.Redo(m_workbench))
        ShowState();
}

void frmMain::StringsChanged() {
    m_history.LieOn(m_state.StringNotes, m_state.SoundNumbers, m_state.ThinStringAtBottom);
    m_workbench.StringsChanged();
    ShowState();
}

void frmMain::DoQuietly(const std::function<void()>& command) {
    try {
        Do(command);
    } catch (const RunTimeError&) {
        // The fretboard goes on with what could be done.
    }
}

void frmMain::OpenAtBestSize(const QSize& screen) {
    GiveStripItsRoom(*this, *this, screen);
    resize(BestSize(*this, *this, screen));
}

void frmMain::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    ShareRoom(*this, *this, *this, *this);
}

void frmMain::closeEvent(QCloseEvent* event) {
    event->ignore(); // Also where saving the sheet fails with a run-time error.
    if (m_mayEnd && !m_mayEnd())
        return;
    m_playback.Abandon();
    event->accept();
    QApplication::quit();
}
