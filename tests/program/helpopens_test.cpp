// F1 in the windows of the program: the help opens where it tells of what has the focus.
#include "controls/application.h"
#include "info/frmhelp.h"
#include "program/startup.h"
#include "support/dialogs.h"

#include <QFile>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>

namespace {

QString TopLine(const frmHelp& help) {
    return help.Text1->cursorForPosition(QPoint(2, 2)).block().text();
}

frmHelp* OpenHelp() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* help = qobject_cast<frmHelp*>(window); help != nullptr && help->isVisible())
            return help;
    return nullptr;
}

void Show(QWidget& window) {
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

} // namespace

class HelpOpensTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(
            QFile::copy(QStringLiteral(HELP_FILE), m_folder.filePath(QStringLiteral("help.dat"))));
        m_start = std::make_unique<StartUp>(*static_cast<Application*>(qApp), m_folder.path());
        m_start->Main();
    }
    void cleanup() {
        if (frmHelp* help = OpenHelp())
            help->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void cleanupTestCase() { m_start.reset(); }

    void InTheMainWindow_data() {
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("heading");
        QTest::newRow("types") << QStringLiteral("lstType") << QStringLiteral("5. АККОРДЫ");
        QTest::newRow("scales") << QStringLiteral("lstLad") << QStringLiteral("6. ЛАДЫ");
        QTest::newRow("barre") << QStringLiteral("lstLadBarre") << QStringLiteral("9. БАРРЕ");
        QTest::newRow("neck") << QStringLiteral("picStrings")
                              << QStringLiteral("4. ГРИФ И КЛАВИАТУРА");
    }
    void InTheMainWindow() {
        QFETCH(const QString, control);
        QFETCH(const QString, heading);
        frmMain& window = m_start->Window();
        Show(window);
        window.findChild<QWidget*>(control)->setFocus();
        QTest::keyClick(&window, Qt::Key_F1);
        QVERIFY(OpenHelp() != nullptr && !OpenHelp()->isModal());
        QCOMPARE(TopLine(*OpenHelp()), heading);
    }

    void InTheSheet() {
        frmMain& window = m_start->Window();
        Q_EMIT window.DiagramsAsked();
        for (QWidget* sheet : QApplication::topLevelWidgets())
            if (sheet->objectName() == QStringLiteral("frmDiags")) {
                Show(*sheet);
                QTest::keyClick(sheet, Qt::Key_F1);
                sheet->close();
            }
        QVERIFY(OpenHelp() != nullptr);
        QCOMPARE(TopLine(*OpenHelp()), QStringLiteral("12. ЛИСТ ДИАГРАММ"));
    }

    void InTheSettingsAboveThem() {
        QString heading;
        WhenModal([&heading](QWidget* dialog) {
            Show(*dialog);
            WhenModal<frmHelp>([&heading, dialog](frmHelp* help) {
                QCOMPARE(help->parentWidget(), dialog);
                heading = TopLine(*help);
                help->close();
            });
            QTest::keyClick(dialog, Qt::Key_F1);
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        Q_EMIT m_start->Window().SettingsAsked();
        QCOMPARE(heading, QStringLiteral("11. НАСТРОЙКИ"));
    }

    void ByItsButtonItIsModalAndBeginsAtTheTop() {
        QString line;
        WhenModal<frmHelp>([&line](frmHelp* help) {
            line = TopLine(*help);
            help->close();
        });
        m_start->Window().cmdHelp->click();
        QCOMPARE(line.trimmed(), QStringLiteral("Т О Н В И К"));
    }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<StartUp> m_start;
};

int main(int argc, char** argv) {
    Application application(argc, argv);
    HelpOpensTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "helpopens_test.moc"
