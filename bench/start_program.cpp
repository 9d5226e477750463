// The program from its start to the first complete paint of the main window.
#include "controls/application.h"
#include "core/mdlmain.h"
#include "firstpaint.h"

int main(int argc, char** argv) {
    Application application(argc, argv);
    mdlMain start(application, QCoreApplication::applicationDirPath());
    start.Main();
    FirstPaint watch(&start.Window());
    start.Window().update();
    return QApplication::exec();
}
