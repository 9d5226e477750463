// The controls that say which voicings are wanted, and in which order.
#pragma once

#include "controls/dropdown.h"
#include "controls/goldbutton.h"
#include "controls/textlabel.h"
#include "music/voicingchoice.h"

#include <QCheckBox>

class QGridLayout;

struct FilterGroup {
    // Makes the controls as the window's children; the window gives them their texts.
    explicit FilterGroup(QWidget* window);

    QGridLayout* filters; // For the window to place.
    TextLabel* lblFret;
    DropDown* lstFromFret;
    DropDown* lstToFret;
    TextLabel* lblOpenStrings;
    DropDown* lstOpenStrings;
    TextLabel* lblFingers;
    DropDown* lstFingers;
    TextLabel* lblBass;
    DropDown* lstBass;
    TextLabel* lblStrings;
    std::array<QCheckBox*, stringCount> chkString; // Of string 1 first; half checked: either.
    QCheckBox* chkNoBarre = nullptr;
    QCheckBox* chkComplete = nullptr;
    TextLabel* lblOrder;
    DropDown* lstOrder;
    GoldButton* cmdAll = nullptr;

    VoicingFilter Filter() const;
    VoicingOrder Order() const { return static_cast<VoicingOrder>(lstOrder->currentIndex()); }

    // The filters as at first, without a change told for each.
    void LetAllPass();

    std::array<DropDown*, 6> Lists() const {
        return {lstFromFret, lstToFret, lstOpenStrings, lstFingers, lstBass, lstOrder};
    }
};
