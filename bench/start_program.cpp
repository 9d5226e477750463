// The program from its start to the first complete paint of the main window, or with "voicings"
// as the second argument of the window of voicings over it. Its data files are in the folder that
// is passed, or beside it.
#include "controls/application.h"
#include "firstpaint.h"
#include "program/startup.h"

#include <cstring>

int main(int argc, char** argv) {
    Application application(argc, argv);
    StartUp start(application, argc > 1 ? QString::fromLocal8Bit(argv[1])
                                        : QCoreApplication::applicationDirPath());
    start.Main();
    QWidget* last = &start.Window();
    if (argc > 2 && std::strcmp(argv[2], "voicings") == 0) {
        start.Window().Form_KeyDown(Qt::Key_F11, 0);
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->objectName() == QStringLiteral("frmVoicings"))
                last = window;
    }
    FirstPaint watch(last);
    last->update();
    return QApplication::exec();
}
