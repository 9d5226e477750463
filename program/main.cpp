// The program's entry.
#include "controls/application.h"
#include "core/runtimeerror.h"
#include "program/startup.h"
#include "sound/leftbehind.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

int Run(int argc, char** argv) {
    // The program has no options, and the toolkit's are not for its users either.
    int nameAlone = std::min(argc, 1);
    Application application(nameAlone, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tonvik"));
    QGuiApplication::setDesktopFileName(QStringLiteral("tonvik"));
    StartUp start(application, QCoreApplication::applicationDirPath());
    try {
        start.Main();
    } catch (const RunTimeError& error) {
        application.ReportAtStart(error);
        return EXIT_FAILURE;
    } catch (const std::bad_alloc&) {
        application.ReportAtStart(OutOfMemory());
        return EXIT_FAILURE;
    }
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    const int status = Run(argc, argv);
    // A thread that hangs in a library must not meet it being cleaned up.
    if (SoundLeftBehind())
        std::_Exit(status);
    return status;
}
