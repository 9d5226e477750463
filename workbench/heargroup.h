// The controls for hearing: what plays, how fast, how often.
#pragma once

#include "controls/dropdown.h"
#include "controls/goldbutton.h"

#include <QGroupBox>

struct HearGroup {
    // Makes the controls as the window's children, and lays them out in their frame.
    explicit HearGroup(QWidget* window);

    QGroupBox* Frame4;
    GoldButton* GoldButton1;
    GoldButton* GoldButton2;
    GoldButton* cmdStrum;
    GoldButton* GoldButton3;
    DropDown* lstWhat;
    DropDown* lstTemp;
};
