#include "workbench/heargroup.h"

#include "controls/newcontrols.h"

#include <QGridLayout>

HearGroup::HearGroup(QWidget* window)
    : Frame4(NewFrame(u"Frame4", window)),
      GoldButton1(NewPictureButton(u"GoldButton1", Icon::PlayKeys, Frame4)),
      GoldButton2(NewPictureButton(u"GoldButton2", Icon::PlayStrings, Frame4)),
      cmdStrum(NewPictureButton(u"cmdStrum", Icon::Strum, Frame4)),
      GoldButton3(NewCaptionButton(u"GoldButton3", Frame4)),
      lstWhat(new DropDown(QStringLiteral("lstWhat"), Frame4)),
      lstTemp(new DropDown(QStringLiteral("lstTemp"), Frame4)) {
    auto* grid = Spaced(new QGridLayout(Frame4), layoutGap);
    auto* play = Spaced(new QHBoxLayout, 0);
    for (GoldButton* button : {GoldButton1, GoldButton2, cmdStrum})
        play->addWidget(button);
    grid->addLayout(play, 0, 0, 1, 2);
    grid->addWidget(GoldButton3, 1, 0, 1, 2);
    grid->addWidget(lstWhat, 2, 0);
    grid->addWidget(lstTemp, 2, 1);
}
