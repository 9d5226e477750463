#include "controls/application.h"

#include "controls/focusring.h"
#include "controls/messagebox.h"
#include "controls/scrollmenu.h"
#include "controls/theme.h"
#include "core/runtimeerror.h"

#include <QLibraryInfo>
#include <QPushButton>
#include <QTimer>

#include <new>

namespace {

const Phrase reportTitle{QStringLiteral("Ошибка выполнения"), QStringLiteral("Run-time error")};

void Prepare(QMessageBox& box, const RunTimeError& error, Tongue tongue) {
    box.setObjectName(QStringLiteral("RunTimeError"));
    box.setIcon(QMessageBox::Critical);
    box.setWindowTitle(reportTitle.In(tongue));
    box.setText(error.What().In(tongue));
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

} // namespace

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
    ApplyTheme();
    FocusRing::Install();
    InstallScrollMenus();
    setQuitOnLastWindowClosed(false);
}

void Application::SetTongue(Tongue tongue) {
    m_tongue = tongue;
    removeTranslator(&m_toolkitTexts);
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    if (tongue == Tongue::Russian && m_toolkitTexts.load(QStringLiteral("qtbase_ru"), folder))
        installTranslator(&m_toolkitTexts);
}

void Application::Report(const RunTimeError& error) {
    MessageBox box(activeWindow());
    Prepare(box, error, m_tongue);
    box.setInformativeText(
        Phrase{QStringLiteral("Действие прервано. Всё, что сделано, осталось."),
               QStringLiteral("The action was abandoned. What was done remains.")}
            .In(m_tongue));
    auto* goOn =
        box.addButton(Phrase{QStringLiteral("Продолжить"), QStringLiteral("Continue")}.In(m_tongue),
                      QMessageBox::AcceptRole);
    auto* end = box.addButton(
        Phrase{QStringLiteral("Завершить"), QStringLiteral("End the program")}.In(m_tongue),
        QMessageBox::DestructiveRole);
    box.setDefaultButton(goOn);
    box.setEscapeButton(goOn);
    box.exec();
    // Later: the action may have been the closing of the main window, which cannot be closed
    // while it is being closed.
    if (box.clickedButton() == end)
        QTimer::singleShot(0, this, [this] { m_end ? m_end() : quit(); });
}

void Application::ReportAtStart(const RunTimeError& error) {
    MessageBox box;
    Prepare(box, error, m_tongue);
    box.setInformativeText(Phrase{QStringLiteral("Программа не может начать работу."),
                                  QStringLiteral("The program cannot start.")}
                               .In(m_tongue));
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}

void Application::Guard(const std::function<void()>& action) {
    auto* application = static_cast<Application*>(qApp);
    try {
        action();
    } catch (const RunTimeError& error) {
        application->Report(error);
    } catch (const std::bad_alloc&) {
        application->Report(OutOfMemory());
    }
}

bool Application::notify(QObject* receiver, QEvent* event) {
    bool handled = true;
    Guard([&] { handled = QApplication::notify(receiver, event); });
    return handled;
}
