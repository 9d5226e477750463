// Every window by keyboard alone: Tab reaches every control that can be used, the control with
// the focus looks different, and each has a name for those who do not see it.
#include "controls/application.h"
#include "info/frmabout.h"
#include "program/startup.h"
#include "settings/frmsettings.h"
#include "support/dialogs.h"
#include "support/testfolder.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScopeGuard>
#include <QTest>

namespace {

// The controls of a window that take the focus by Tab, as far as they can be used now.
QList<QWidget*> Reachable(const QWidget& window) {
    QList<QWidget*> found;
    for (QWidget* control : window.findChildren<QWidget*>())
        if (control->window() == &window && control->isVisible() && control->isEnabled() &&
            (control->focusPolicy() & Qt::TabFocus) != 0 && control->focusProxy() == nullptr)
            found += control;
    return found;
}

QByteArray Name(const QWidget* control) {
    return (control->objectName() + QStringLiteral(" of ") + control->window()->objectName())
        .toUtf8();
}

// What the control looks like, with the frame that the window paints around it.
QImage Look(QWidget& control) {
    return control.window()
        ->grab(QRect(control.mapTo(control.window(), QPoint(-2, -2)), control.size() + QSize(4, 4)))
        .toImage();
}

} // namespace

class KeyboardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_start.reset(); }

    void MainWindow();
    void Settings();
    void SettingsOfOnesOwn();
    void Help();
    void About();
    void Diagrams();
    void TabGoesAsTheEyeDoes();

private:
    void UseByKeyboard(QWidget& window);
    void UseDialog(QWidget& opener, Qt::Key key, const std::function<void(QWidget&)>& prepare);
    void TabReachesEveryControl(QWidget& window);
    void TheFocusIsSeen(QWidget& window);
    void EveryControlHasAName(QWidget& window);

    TestFolder m_folder;
    std::unique_ptr<StartUp> m_start;
};

void KeyboardTest::init() {
    QVERIFY(m_folder.Write(QStringLiteral("help.dat"), "help\r\n"));
    m_start = std::make_unique<StartUp>(*static_cast<Application*>(qApp), m_folder.Path());
    m_start->Main();
    QVERIFY(QTest::qWaitForWindowActive(&m_start->Window()));
}

void KeyboardTest::UseByKeyboard(QWidget& window) {
    QTRY_COMPARE(QApplication::activeWindow(), &window);
    QVERIFY(!Reachable(window).isEmpty());
    TabReachesEveryControl(window);
    TheFocusIsSeen(window);
    EveryControlHasAName(window);
}

void KeyboardTest::TabReachesEveryControl(QWidget& window) {
    QList<QWidget*> expected = Reachable(window);
    // Of radio buttons Tab reaches the chosen one, and arrow keys the others.
    expected.removeIf([](QWidget* control) {
        const auto* button = qobject_cast<QAbstractButton*>(control);
        return button != nullptr && button->autoExclusive() && !button->isChecked();
    });
    QSet<QWidget*> reached;
    for (qsizetype i = 0; i < 3 * expected.size(); ++i) {
        QWidget* focus = window.focusWidget();
        QVERIFY(focus != nullptr);
        reached += focus;
        // In a text Tab is a character.
        const auto* text = qobject_cast<QPlainTextEdit*>(focus);
        const bool types = text != nullptr && !text->tabChangesFocus() && !text->isReadOnly();
        QTest::keyClick(focus, Qt::Key_Tab, types ? Qt::ControlModifier : Qt::NoModifier);
        if (expected.size() > 1)
            QVERIFY2(window.focusWidget() != focus, Name(focus).constData());
    }
    for (QWidget* control : expected)
        QVERIFY2(reached.contains(control), Name(control).constData());
}

void KeyboardTest::TheFocusIsSeen(QWidget& window) {
    for (QWidget* control : Reachable(window)) {
        control->setFocus(Qt::TabFocusReason);
        QVERIFY2(control->hasFocus(), Name(control).constData());
        const QImage with = Look(*control);
        control->clearFocus();
        QVERIFY2(Look(*control) != with, Name(control).constData());
    }
}

void KeyboardTest::EveryControlHasAName(QWidget& window) {
    for (QWidget* control : Reachable(window)) {
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(control);
        QVERIFY(accessible != nullptr);
        QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(), Name(control).constData());
    }
}

void KeyboardTest::MainWindow() {
    UseByKeyboard(m_start->Window());
}

// The dialog that the key opens; the test fails where none comes.
void KeyboardTest::UseDialog(QWidget& opener, Qt::Key key,
                             const std::function<void(QWidget&)>& prepare) {
    bool used = false;
    WhenModal([&](QWidget* dialog) {
        const auto close = qScopeGuard([dialog] { static_cast<QDialog*>(dialog)->reject(); });
        used = true;
        prepare(*dialog);
        UseByKeyboard(*dialog);
        QTest::keyClick(dialog, Qt::Key_Escape);
        QVERIFY(!dialog->isVisible());
    });
    opener.setFocus();
    QTest::keyClick(&opener, key);
    QVERIFY(used);
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void KeyboardTest::Settings() {
    UseDialog(m_start->Window(), Qt::Key_F10, [](const QWidget& dialog) {
        QCOMPARE(dialog.focusWidget()->objectName(), QStringLiteral("Option2"));
    });
}

void KeyboardTest::SettingsOfOnesOwn() {
    UseDialog(m_start->Window(), Qt::Key_F10, [](const QWidget& dialog) {
        auto* own = dialog.findChild<QAbstractButton*>(QStringLiteral("Option4"));
        own->setFocus();
        QTest::keyClick(own, Qt::Key_Space);
        QVERIFY(dialog.findChild<QWidget*>(QStringLiteral("lstTunings"))->isEnabled());
    });
}

void KeyboardTest::Help() {
    UseDialog(*m_start->Window().findChild<QWidget*>(QStringLiteral("cmdHelp")), Qt::Key_Space,
              [](const QWidget&) {});
}

void KeyboardTest::About() {
    frmAbout about(m_start->State(), {12, 50});
    about.show();
    UseByKeyboard(about);
    QTest::keyClick(&about, Qt::Key_Escape);
    QVERIFY(!about.isVisible());
}

void KeyboardTest::Diagrams() {
    auto* button = m_start->Window().findChild<QWidget*>(QStringLiteral("cmdNewDiag"));
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Space);
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == QStringLiteral("frmDiags")) {
            auto* add = window->findChild<QAbstractButton*>(QStringLiteral("cmdAdd"));
            add->setFocus();
            QTest::keyClick(add, Qt::Key_Space);
            UseByKeyboard(*window);
            return;
        }
    QFAIL("No sheet was opened.");
}

// Down the frames, and in each from the left to the right, line by line.
void KeyboardTest::TabGoesAsTheEyeDoes() {
    const auto order = [](QWidget& window, const QStringList& names) {
        QStringList reached;
        QWidget* control = window.findChild<QWidget*>(names.first());
        for (int i = 0; i < 200 && reached.size() < names.size(); ++i) {
            if (names.contains(control->objectName()))
                reached += control->objectName();
            control = control->nextInFocusChain();
        }
        return reached;
    };
    const QStringList trying{QStringLiteral("txtStr"),     QStringLiteral("VScroll3"),
                             QStringLiteral("cmdFindNew"), QStringLiteral("Command1"),
                             QStringLiteral("Command2"),   QStringLiteral("cmdMakeBarre"),
                             QStringLiteral("lstBarre"),   QStringLiteral("lstLadBarre")};
    QCOMPARE(order(m_start->Window(), trying), trying);
    const frmSettings* settings = nullptr;
    WhenModal([&](QWidget* dialog) {
        const auto close = qScopeGuard([dialog] { static_cast<QDialog*>(dialog)->reject(); });
        settings = qobject_cast<frmSettings*>(dialog);
        QStringList names{QStringLiteral("Option1"), QStringLiteral("lstTunings")};
        for (int string = 0; string < 6; ++string)
            for (const char16_t* kind :
                 {u"Text1(%1)", u"VScroll1(%1)", u"VScroll2(%1)", u"Image1(%1)"})
                names += QString::fromUtf16(kind).arg(string);
        names += {QStringLiteral("lstLang"), QStringLiteral("Check1"), QStringLiteral("cmdOK"),
                  QStringLiteral("cmdCancel")};
        QCOMPARE(order(*dialog, names), names);
    });
    QTest::keyClick(&m_start->Window(), Qt::Key_F10);
    QVERIFY(settings != nullptr);
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    KeyboardTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "keyboard_test.moc"
