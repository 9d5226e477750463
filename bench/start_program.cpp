// The program from its start to the first complete paint of the main window. Its data files
// are in the folder that is passed, or beside it.
#include "controls/application.h"
#include "firstpaint.h"
#include "program/startup.h"

int main(int argc, char** argv) {
    Application application(argc, argv);
    StartUp start(application, argc > 1 ? QString::fromLocal8Bit(argv[1])
                                        : QCoreApplication::applicationDirPath());
    start.Main();
    FirstPaint watch(&start.Window());
    start.Window().update();
    return QApplication::exec();
}
