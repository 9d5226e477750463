// F7 stops a playback from the sheet and from the help, however that was opened.
#include "controls/application.h"
#include "program/startup.h"
#include "support/dialogs.h"
#include "support/recordingsound.h"
#include "support/testfolder.h"

#include <QFile>
#include <QTest>

class StopKeyTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(QFile::copy(QStringLiteral(HELP_FILE), m_folder.Path(QStringLiteral("help.dat"))));
        auto clock = std::make_unique<HandClock>();
        m_clock = clock.get();
        auto midi = std::make_unique<RecordingPlayer>(*m_clock);
        m_midi = midi.get();
        m_start = std::make_unique<StartUp>(*static_cast<Application*>(qApp), m_folder.Path(),
                                            std::move(midi), std::move(clock));
        m_start->Main();
        m_start->Window().lstTemp->SelectRow(1);
    }
    void cleanupTestCase() { m_start.reset(); }

    void StopsFrom_data() {
        QTest::addColumn<QString>("window");
        QTest::addColumn<QString>("button"); // Of the main window; none: by F1.
        QTest::newRow("the sheet") << QStringLiteral("frmDiags") << QStringLiteral("cmdNewDiag");
        QTest::newRow("the help beside") << QStringLiteral("frmHelp") << QString();
        QTest::newRow("the help above") << QStringLiteral("frmHelp") << QStringLiteral("cmdHelp");
    }
    void StopsFrom() {
        QFETCH(const QString, window);
        QFETCH(const QString, button);
        m_midi->played.clear();
        const auto stop = [window](QWidget* opened) {
            QCOMPARE(opened->objectName(), window);
            QTest::keyClick(opened, Qt::Key_F7);
            opened->close();
        };
        int waits = 0;
        m_clock->onWait = [&] {
            if (++waits != 4) // In the second of three notes, of the second pass.
                return;
            if (button == QStringLiteral("cmdHelp"))
                WhenModal(stop);
            frmMain& main = m_start->Window();
            if (button.isEmpty())
                QTest::keyClick(&main, Qt::Key_F1);
            else
                QTest::mouseClick(main.findChild<QWidget*>(button), Qt::LeftButton);
            for (QWidget* opened : QApplication::topLevelWidgets())
                if (opened->isVisible() && opened->objectName() == window)
                    stop(opened);
        };
        m_start->Window().GoldButton1_Click();
        QCOMPARE(m_midi->played.size(), 6);
    }

private:
    TestFolder m_folder;
    HandClock* m_clock = nullptr; // The program's...
    RecordingPlayer* m_midi = nullptr;
    std::unique_ptr<StartUp> m_start;
};

int main(int argc, char** argv) {
    Application application(argc, argv);
    StopKeyTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "stopkey_test.moc"
