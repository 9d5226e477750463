// The program's entry.
#include "controls/application.h"
#include "core/runtimeerror.h"
#include "program/startup.h"

#include <cstdlib>

int main(int argc, char** argv) {
    Application application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tonvik"));
    QGuiApplication::setDesktopFileName(QStringLiteral("tonvik"));
    StartUp start(application, QCoreApplication::applicationDirPath());
    try {
        start.Main();
    } catch (const RunTimeError& error) {
        application.ReportAtStart(error);
        return EXIT_FAILURE;
    }
    return QApplication::exec();
}
