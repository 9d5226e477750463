// The diagram sheet of a run: opened when it is asked for, and filled from the neck.
#pragma once

#include "core/mdlmain.h"

#include <functional>
#include <memory>

class QWidget;
class Workbench;
class frmDiags;
class frmMain;
struct BoardFingering;

class SheetOpener {
public:
    // What is passed in must outlive it. prepare: run for the sheet once it is made.
    SheetOpener(AppState& state, Workbench& workbench, frmMain& window,
                std::function<void(QWidget& sheet)> prepare);
    ~SheetOpener();

    void Show();

    // Adds what is on the neck without opening the sheet, and says so. What has no chord's name
    // above the neck bears the name of what sounds.
    void AddNeck();

    // The neck's diagram, on the clipboard or in a file that the user chooses.
    void CopyNeck();
    void SaveNeck();

    // Whether the program may end: the sheet asks over what was not saved.
    bool MayEnd();

private:
    frmDiags& Sheet();
    BoardFingering Neck() const;
    QString NameOfNeck() const;

    AppState& m_state;
    Workbench& m_workbench;
    frmMain& m_window;
    std::function<void(QWidget& sheet)> m_prepare;
    std::unique_ptr<frmDiags> m_sheet; // One for the whole run.
    bool m_offered = false;            // What an interrupted run has left.
};
