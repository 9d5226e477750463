#include "workbench/trygroup.h"

#include "controls/newcontrols.h"
#include "controls/upscrollbar.h"
#include "core/mdlmain.h"

#include <QGridLayout>

TryGroup::TryGroup(QWidget* window)
    : Frame2(NewFrame(u"Frame2", window)),
      txtStr(NewTextBox(u"txtStr", QStringLiteral("1"), Frame2)),
      VScroll3(new UpScrollBar(QStringLiteral("VScroll3"), 1, stringCount, Frame2)),
      cmdFindNew(NewCaptionButton(u"cmdFindNew", Frame2)),
      Command1(NewPictureButton(u"Command1", Icon::LayFingers, Frame2)),
      Command2(NewPictureButton(u"Command2", Icon::ReadFingers, Frame2)),
      Frame3(NewFrame(u"Frame3", window)),
      cmdMakeBarre(NewCaptionButton(u"cmdMakeBarre", Frame3)),
      lstBarre(new DropDown(QStringLiteral("lstBarre"), Frame3)),
      lstLadBarre(new DropDown(QStringLiteral("lstLadBarre"), Frame3)) {
    txtStr->setAlignment(Qt::AlignHCenter);
    auto* search = Spaced(new QGridLayout(Frame2), layoutGap);
    search->addWidget(txtStr, 0, 0);
    search->addWidget(VScroll3, 0, 1);
    search->addWidget(cmdFindNew, 0, 2);
    auto* transfer = Spaced(new QHBoxLayout, 0);
    transfer->addWidget(Command1);
    transfer->addWidget(Command2);
    search->addLayout(transfer, 1, 0, 1, 3);
    search->setColumnStretch(2, 1);

    auto* barre = Spaced(new QGridLayout(Frame3), layoutGap);
    barre->addWidget(cmdMakeBarre, 0, 0, 1, 2);
    barre->addWidget(lstBarre, 1, 0);
    barre->addWidget(lstLadBarre, 1, 1);
    FitToLetters();
}

void TryGroup::FitToLetters() const {
    txtStr->setMaximumWidth(Frame2->fontMetrics().horizontalAdvance(u'0') * 5);
    VScroll3->setFixedHeight(std::max(txtStr->sizeHint().height(), 34));
}

void TryGroup::ShowRows(const Workbench& workbench) const {
    lstBarre->ShowRow(workbench.BarreStringsRow());
    lstLadBarre->ShowRow(workbench.BarreFretRow());
}
