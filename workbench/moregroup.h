// The controls that open the other windows.
#pragma once

#include "controls/goldbutton.h"

#include <QGroupBox>

struct MoreGroup {
    // Makes the controls as the window's children, and lays them out in their frame.
    explicit MoreGroup(QWidget* window);

    QGroupBox* Frame5;
    GoldButton* cmdNewDiag;
    GoldButton* cmdSettings;
    GoldButton* cmdHelp;
};
