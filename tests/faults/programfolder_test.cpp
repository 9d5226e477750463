// The program folder goes away, or may not be written into, while the program runs.
#include "controls/application.h"
#include "diagrams/frmdiags.h"
#include "hostilesystem.h"
#include "info/frmhelp.h"
#include "program/startup.h"
#include "settings/frmsettings.h"
#include "support/testfolder.h"
#include "tests/support/dialogs.h"

#include <QFileDialog>
#include <QPlainTextEdit>
#include <QTest>

namespace {

const QString settingsFile = QStringLiteral("tonvik.ini");

template <typename Window>
Window* Find() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* found = dynamic_cast<Window*>(window); found != nullptr && found->isVisible())
            return found;
    return nullptr;
}

} // namespace

class ProgramFolderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void SettingsThatCannotBeSaved_data();
    void SettingsThatCannotBeSaved();
    void AFolderThatMayNotBeWrittenInto();
    void HelpThatIsGone();
    void ASheetThatCannotBeSavedKeepsTheProgramOpen();

private:
    void Start(const QByteArray& language);
    void RemoveFolder() { QVERIFY(QDir(m_folder->Path()).removeRecursively()); }

    // What the line under the fret numbers says.
    QString Notice() { return m_start->Window().panel->lblHint->accessibleName(); }

    // Opens the settings, tunes string 6 to D by hand, and presses OK.
    void TuneToD();

    std::unique_ptr<TestFolder> m_folder;
    std::unique_ptr<StartUp> m_start;
};

void ProgramFolderTest::init() {
    m_folder = std::make_unique<TestFolder>();
    QVERIFY(m_folder->IsValid());
}

void ProgramFolderTest::cleanup() {
    m_start.reset();
    m_folder.reset();
}

void ProgramFolderTest::Start(const QByteArray& language) {
    if (!language.isEmpty()) {
        QVERIFY(m_folder->Write(QString::fromLatin1(language), "[Init]\r\nLang=X\r\n"));
        QVERIFY(m_folder->Write(settingsFile, "[Settings]\r\nLanguage=" + language + "\r\n"));
    }
    m_start = std::make_unique<StartUp>(*static_cast<Application*>(qApp), m_folder->Path());
    m_start->Main();
    QVERIFY(QTest::qWaitForWindowActive(&m_start->Window()));
}

void ProgramFolderTest::TuneToD() {
    WhenModal<frmSettings>([](frmSettings* dialog) {
        QTest::mouseClick(dialog->Options[3], Qt::LeftButton, {}, QPoint(8, 8));
        dialog->Text1[5]->selectAll();
        QTest::keyClicks(dialog->Text1[5], QStringLiteral("D"));
        dialog->lstLang->SelectRow(0);
        QTest::mouseClick(dialog->cmdOK, Qt::LeftButton);
    });
    QTest::keyClick(&m_start->Window(), Qt::Key_F10);
}

void ProgramFolderTest::SettingsThatCannotBeSaved_data() {
    QTest::addColumn<QByteArray>("language");
    QTest::addColumn<QString>("text");
    QTest::newRow("Russian") << QByteArray()
                             << QStringLiteral("Настройки не запомнены. "
                                               "Не удаётся записать файл «%1»: нет папки «%2»");
    QTest::newRow("by language file")
        << QByteArray("x.lng")
        << QStringLiteral("The settings were not remembered. "
                          "The file “%1” cannot be written: there is no folder “%2”");
}

void ProgramFolderTest::SettingsThatCannotBeSaved() {
    QFETCH(const QByteArray, language);
    QFETCH(const QString, text);
    Start(language);
    RemoveFolder();
    TuneToD();
    QVERIFY(QApplication::activeModalWidget() == nullptr); // Nothing has to be answered.
    QCOMPARE(Notice(), text.arg(m_folder->Path(settingsFile), QDir(m_folder->Path()).path()));
    QCOMPARE(m_start->State().StringNotes[5], QStringLiteral("D")); // It is tuned all the same.
    QVERIFY(m_start->State().ThinStringAtBottom);
    QVERIFY(m_start->Window().isVisible());
    QVERIFY(Find<frmSettings>() == nullptr);
    QTest::keyClick(&m_start->Window(), Qt::Key_F8); // It goes with the next command.
    QCOMPARE(Notice(), QString());
}

void ProgramFolderTest::AFolderThatMayNotBeWrittenInto() {
    QFile::setPermissions(m_folder->Path(), QFileDevice::ReadOwner | QFileDevice::ExeOwner |
                                                QFileDevice::ReadGroup | QFileDevice::ExeGroup |
                                                QFileDevice::ReadOther | QFileDevice::ExeOther);
    {
        const OrdinaryUser user;
        if (!user.Holds())
            QSKIP("Permissions keep nobody out here.");
        Start({});
        TuneToD();
        QVERIFY(Notice().contains(QStringLiteral("не разрешена")));
        QCOMPARE(m_start->State().StringNotes[5], QStringLiteral("D"));
    }
    QCOMPARE(m_folder->Names(), QStringList());
    QFile::setPermissions(m_folder->Path(),
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

void ProgramFolderTest::HelpThatIsGone() {
    QVERIFY(m_folder->Write(QStringLiteral("help.dat"), "help"));
    Start({});
    RemoveFolder();
    QTest::keyClick(&m_start->Window(), Qt::Key_F1);
    const auto* help = Find<frmHelp>();
    QVERIFY(help != nullptr);
    QCOMPARE(help->Text1->toPlainText(),
             QStringLiteral("Файл справки отсутствует. Обратитесь к автору программы."));
}

void ProgramFolderTest::ASheetThatCannotBeSavedKeepsTheProgramOpen() {
    Start({});
    QTest::mouseClick(m_start->Window().cmdNewDiag, Qt::LeftButton);
    auto* sheet = Find<frmDiags>();
    QVERIFY(sheet != nullptr);
    QTest::keyClicks(sheet->txtMain, QStringLiteral("la la"));

    BoxSeen question;
    BoxSeen report;
    AnswerBox(question, QMessageBox::AcceptRole); // Save it.
    WhenModal<QFileDialog>([&](QFileDialog* dialog) {
        AnswerBox(report, QMessageBox::AcceptRole); // Go on.
        dialog->setDirectory(m_folder->Path());
        dialog->findChild<QLineEdit*>()->setText(m_folder->Path(QStringLiteral("gone/s.txt")));
        static_cast<QDialog*>(dialog)->accept();
    });
    m_start->Window().close();
    QCOMPARE(question.name, QStringLiteral("UnsavedSheet"));
    QCOMPARE(report.name, QStringLiteral("RunTimeError"));
    QVERIFY(report.text.contains(QStringLiteral("нет папки")));
    QVERIFY(m_start->Window().isVisible());
    QCOMPARE(sheet->txtMain->toPlainText(), QStringLiteral("la la"));

    BoxSeen again;
    AnswerBox(again, QMessageBox::DestructiveRole);
    QVERIFY(m_start->Window().close());
    QCOMPARE(again.name, QStringLiteral("UnsavedSheet")); // It is still not saved.
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    ProgramFolderTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "programfolder_test.moc"
