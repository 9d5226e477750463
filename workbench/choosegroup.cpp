#include "workbench/choosegroup.h"

#include "controls/newcontrols.h"

#include <QGridLayout>

ChooseGroup::ChooseGroup(QWidget* window)
    : Frame1(NewFrame(u"Frame1", window)),
      lstBase(new ListBox(QStringLiteral("lstBase"), Frame1)),
      lstType(new ListBox(QStringLiteral("lstType"), Frame1)),
      lstLad(new ListBox(QStringLiteral("lstLad"), Frame1)),
      Label5(NewLabel(u"Label5", Frame1)),
      txtFind(new PromptField(QStringLiteral("txtFind"), Frame1)),
      cmdFind(NewPictureButton(u"cmdFind", Icon::Find, Frame1)) {
    auto* grid = Spaced(new QGridLayout(Frame1), layoutGap);
    grid->addWidget(lstBase, 0, 0, 3, 1);
    grid->addWidget(lstType, 0, 1);
    grid->addWidget(Label5, 1, 1);
    grid->addWidget(lstLad, 2, 1);
    auto* find = Spaced(new QHBoxLayout, 0);
    find->addWidget(txtFind, 1);
    find->addWidget(cmdFind);
    grid->addLayout(find, 3, 0, 1, 2);
    grid->setRowStretch(0, 3);
    grid->setRowStretch(2, 2);
    grid->setColumnStretch(1, 1);
    Label5->setMinimumWidth(1); // The lists decide how wide the frame is.
    FitToLetters();
}

void ChooseGroup::FitToLetters() const {
    const QFontMetrics metrics = Frame1->fontMetrics();
    const int digit = metrics.horizontalAdvance(u'0');
    lstBase->setFixedWidth(digit * 7);
    lstType->setMinimumWidth(digit * 17);
    lstLad->setMinimumWidth(digit * 17);
    lstType->setMinimumHeight(metrics.height() * 5);
    lstLad->setMinimumHeight(metrics.height() * 4);
}

void ChooseGroup::ShowRows(const Workbench& workbench) const {
    lstBase->ShowRow(workbench.RootRow());
    lstType->ShowRow(workbench.TypeRow());
    lstLad->ShowRow(workbench.ScaleRow());
    lstType->SetDimmed(workbench.ScaleRules());
    lstLad->SetDimmed(!workbench.ScaleRules());
}
