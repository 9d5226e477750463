// Opens the help in its two ways: beside the main window, or above it.
#pragma once

#include "info/chordcount.h"

#include <QPointer>

#include <functional>

class QWidget;
class frmHelp;
struct AppState;

class HelpOpener {
public:
    // mainWindow: what a modal help blocks. What is passed in must outlive the opener.
    HelpOpener(const AppState& state, std::function<ChordRows()> chordRows, QWidget* mainWindow);
    ~HelpOpener();
    HelpOpener(const HelpOpener&) = delete;
    HelpOpener& operator=(const HelpOpener&) = delete;

    // Shows the help at the chapter about this control (none: at the beginning) and returns at
    // once; brings it to the front where it is open already. Both are a run-time error where
    // help.dat cannot be read, and show nothing then.
    void Show(const QWidget* control = nullptr);

    // Shows the help at the chapter about this control, above its window, and returns when it is
    // closed; without a control at the beginning, above the main window. A help that is open
    // gives way.
    void ShowModal(QWidget* control = nullptr);

private:
    const AppState& m_state;
    std::function<ChordRows()> m_chordRows;
    QWidget* m_mainWindow;
    QPointer<frmHelp> m_help; // The one that Show opened.
};
