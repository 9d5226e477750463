// The controls for choosing: a root with a type of chord, or with a scale.
#pragma once

#include "controls/goldbutton.h"
#include "controls/listbox.h"
#include "controls/promptfield.h"
#include "controls/textlabel.h"
#include "workbench/workbench.h"

#include <QGroupBox>

struct ChooseGroup {
    // Makes the controls as the window's children, and lays them out in their frame.
    explicit ChooseGroup(QWidget* window);

    QGroupBox* Frame1;
    ListBox* lstBase;
    ListBox* lstType;
    ListBox* lstLad;
    TextLabel* Label5;
    PromptField* txtFind;
    GoldButton* cmdFind;

    // Measures the lists anew by the letters of the frame.
    void FitToLetters() const;

    // The rows that are chosen.
    void ShowRows(const Workbench& workbench) const;
};
