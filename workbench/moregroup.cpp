#include "workbench/moregroup.h"

#include "controls/newcontrols.h"

#include <QHBoxLayout>

MoreGroup::MoreGroup(QWidget* window)
    : Frame5(NewFrame(u"Frame5", window)),
      cmdNewDiag(NewPictureButton(u"cmdNewDiag", Icon::Diagrams, Frame5)),
      cmdSettings(NewPictureButton(u"cmdSettings", Icon::Settings, Frame5)),
      cmdHelp(NewPictureButton(u"cmdHelp", Icon::Help, Frame5)) {
    auto* row = Spaced(new QHBoxLayout(Frame5), layoutGap);
    row->addWidget(cmdNewDiag);
    row->addWidget(cmdSettings);
    row->addWidget(cmdHelp);
}
