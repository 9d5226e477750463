#include "info/helpopener.h"

#include "info/frmhelp.h"

#include <QWidget>

HelpOpener::HelpOpener(const AppState& state, std::function<ChordRows()> chordRows,
                       QWidget* mainWindow)
    : m_state(state), m_chordRows(std::move(chordRows)), m_mainWindow(mainWindow) {}

HelpOpener::~HelpOpener() {
    delete m_help;
}

void HelpOpener::Show(const QWidget* control) {
    if (m_help.isNull()) {
        m_help = new frmHelp(m_state, m_chordRows);
        m_help->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_help->GoTo(ChapterAbout(control));
    if (m_help->isMinimized())
        m_help->showNormal();
    m_help->show();
    m_help->raise();
    m_help->activateWindow();
}

void HelpOpener::ShowModal(QWidget* control) {
    QWidget* above = control == nullptr ? m_mainWindow : control->window();
    frmHelp help(m_state, m_chordRows, ProgramAuthor(), above);
    help.GoTo(ChapterAbout(control));
    delete m_help;
    help.exec();
}
