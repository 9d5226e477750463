// The controls for trying things on the neck: other frets, a barre, notes to the strings and back.
#pragma once

#include "controls/dropdown.h"
#include "controls/goldbutton.h"
#include "workbench/workbench.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QScrollBar>

struct TryGroup {
    // Makes the controls as the window's children, and lays them out in their two frames.
    explicit TryGroup(QWidget* window);

    QGroupBox* Frame2;
    QLineEdit* txtStr;
    QScrollBar* VScroll3;
    GoldButton* cmdFindNew;
    GoldButton* Command1;
    GoldButton* Command2;
    QGroupBox* Frame3;
    GoldButton* cmdMakeBarre;
    DropDown* lstBarre;
    DropDown* lstLadBarre;

    // Measures the row's number and its bar anew by the letters of the frame.
    void FitToLetters() const;

    // The rows that are chosen.
    void ShowRows(const Workbench& workbench) const;
};
