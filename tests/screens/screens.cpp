// Takes a picture of every window of the program, as it looks on the screen that the platform
// offers: screens PROGRAM-FOLDER OUTPUT-FOLDER. Says which window has no room on the screen.
#include "controls/application.h"
#include "info/frmabout.h"
#include "info/frmsplash.h"
#include "pictures/fretboardlayout.h"
#include "program/startup.h"
#include "support/dialogs.h"

#include <QComboBox>
#include <QDir>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTextStream>

namespace {

QString outputFolder;
bool everyWindowFits = true;

void Take(QWidget* window, const QString& name) {
    QApplication::processEvents();
    window->grab().save(outputFolder + u'/' + name + QStringLiteral(".png"));
    const QSize room = window->screen()->availableSize();
    if (window->width() <= room.width() && window->height() <= room.height())
        return;
    everyWindowFits = false;
    QTextStream(stderr) << name << " needs " << window->width() << " x " << window->height()
                        << " of " << room.width() << " x " << room.height() << Qt::endl;
}

// Takes the modal window that the action opens, and closes it.
void TakeModal(const QString& name, const std::function<void()>& action) {
    WhenModal([name](QWidget* modal) {
        Take(modal, name);
        modal->close();
    });
    action();
}

QWidget* TopLevel(const QString& name) {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == name && window->isVisible())
            return window;
    qFatal("no window is called %s", qPrintable(name));
}

void Hover(TwipPicture* picture, QPointF twips) {
    const QPointF place = twips * picture->Scale();
    QMouseEvent move(QEvent::MouseMove, place, picture->mapToGlobal(place), Qt::NoButton,
                     Qt::NoButton, {});
    QCoreApplication::sendEvent(picture, &move);
}

void TakeMainWindow(frmMain& window) {
    Take(&window, QStringLiteral("main"));
    window.lstBase->SelectRow(4);
    window.panel->picKeyboard->setFocus();
    Hover(window.panel->picStrings, FretboardLayout().MarkCentre(2, 6));
    Take(&window, QStringLiteral("main-keyboard-focus"));
    window.cmdMakeBarre_Click();
    window.lstLadBarre->SelectRow(4);
    window.Label6_MouseDown(1, Qt::RightButton);
    window.panel->picStrings->setFocus();
    window.panel->picStrings->MoveFocusTo(2);
    Take(&window, QStringLiteral("main-barre-muted"));
    window.cmdMakeBarre_Click();
    window.Label6_MouseDown(1, Qt::RightButton);
    window.lstBase->SelectRow(0);
    for (const int row : {1, 4}) // The two that sound the root.
        window.Label6_MouseDown(row, Qt::LeftButton);
    Take(&window, QStringLiteral("main-root-missing"));
    window.lstLad->SelectRow(4);
    window.lstType->setFocus();
    Take(&window, QStringLiteral("main-scale"));
    window.lstLadBarre->showPopup();
    Take(window.lstLadBarre->view()->window(), QStringLiteral("main-drop-down"));
    window.lstLadBarre->hidePopup();
    window.lstType->SelectRow(0);
    const QSize opened = window.size();
    window.resize(window.screen()->availableSize()); // As maximised.
    Take(&window, QStringLiteral("main-maximised"));
    window.resize(opened);
}

void TakeVoicings(frmMain& window) {
    window.cmdVoicings->click();
    Take(TopLevel(QStringLiteral("frmVoicings")), QStringLiteral("voicings"));
    TopLevel(QStringLiteral("frmVoicings"))->close();
}

void TakeOtherWindows(frmMain& window, const AppState& state) {
    TakeModal(QStringLiteral("settings"), [&] { window.cmdSettings->click(); });
    TakeModal(QStringLiteral("help"), [&] { window.cmdHelp->click(); });
    frmAbout about(state, {window.lstBase->RowCount(), window.lstType->RowCount()});
    about.show();
    Take(&about, QStringLiteral("about"));
    about.close();
    frmSplash splash;
    splash.show();
    splash.ProgressStep();
    splash.ProgressStep();
    Take(&splash, QStringLiteral("splash"));
    splash.close();

    window.cmdNewDiag->click();
    QWidget* sheet = TopLevel(QStringLiteral("frmDiags"));
    const auto press = [sheet](const QString& name) {
        sheet->findChild<QAbstractButton*>(name)->click();
    };
    for (const int root : {0, 5, 7, 9}) {
        window.lstBase->SelectRow(root);
        press(QStringLiteral("cmdAdd"));
    }
    press(QStringLiteral("cmdMake"));
    press(QStringLiteral("GoldButton2"));
    Take(sheet, QStringLiteral("sheet"));
    TakeModal(QStringLiteral("sheet-question"), [&] { press(QStringLiteral("cmdClear")); });
    TakeModal(QStringLiteral("sheet-unsaved"), [&] { press(QStringLiteral("GoldButton1")); });
    sheet->findChild<QPlainTextEdit*>(QStringLiteral("txtMain"))->document()->setModified(false);
    TakeModal(QStringLiteral("sheet-open"), [&] { press(QStringLiteral("GoldButton1")); });
    TakeModal(QStringLiteral("not-found"), [&] {
        window.txtFind->setText(QStringLiteral("?"));
        window.cmdFind_Click();
    });
    TakeModal(QStringLiteral("run-time-error"), [&] {
        window.txtStr->setText(QStringLiteral("7"));
        window.cmdFindNew->click();
    });
}

} // namespace

int main(int argc, char** argv) {
    Application application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3)
        qFatal("Usage: screens PROGRAM-FOLDER OUTPUT-FOLDER");
    outputFolder = arguments[2];
    QDir().mkpath(outputFolder);
    StartUp start(application, arguments[1]);
    start.Main();
    TakeMainWindow(start.Window());
    TakeVoicings(start.Window());
    TakeOtherWindows(start.Window(), start.State());
    return everyWindowFits ? EXIT_SUCCESS : EXIT_FAILURE;
}
