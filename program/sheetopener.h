// The diagram sheet of a run: opened when it is asked for, and filled from the neck.
#pragma once

#include "core/mdlmain.h"

#include <functional>
#include <memory>

class QWidget;
class Workbench;
class frmDiags;
class frmMain;
struct Diagram;

class SheetOpener {
public:
    // What is passed in must outlive it. prepare: run for the sheet once it is made.
    SheetOpener(AppState& state, Workbench& workbench, frmMain& window,
                std::function<void(QWidget& sheet)> prepare);
    ~SheetOpener();

    void Show();

    // Adds what is on the neck without opening the sheet. As the others, it says so in the main
    // window.
    void AddNeck();

    // A diagram by itself, on the clipboard or in a file that the user chooses. owner: of the
    // file dialog.
    void Copy(const Diagram& diagram);
    void Save(QWidget* owner, const Diagram& diagram);

    // Whether the program may end: the sheet asks over what was not saved.
    bool MayEnd();

private:
    frmDiags& Sheet();

    AppState& m_state;
    Workbench& m_workbench;
    frmMain& m_window;
    std::function<void(QWidget& sheet)> m_prepare;
    std::unique_ptr<frmDiags> m_sheet; // One for the whole run.
    bool m_offered = false;            // What an interrupted run has left.
};
