// What the main window does with the diagram of what is on its neck.
#include "workbench/frmmain.h"

#include <QMenu>

void frmMain::cmdAddDiag_Menu(QPoint place) {
    // The same commands as the picture's own menu has, for the mouse.
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("mnuNeck"));
    const PictureParts parts = panel->picStrings->Parts();
    for (std::size_t i = 1; i < parts.actions.size(); ++i)
        menu.addAction(parts.actions[i].name, this, parts.actions[i].run);
    menu.exec(cmdAddDiag->mapToGlobal(place));
}
