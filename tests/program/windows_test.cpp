// Which window opens how, what it asks, and how the program ends.
#include "controls/application.h"
#include "controls/colours.h"
#include "core/statefolder.h"
#include "diagrams/frmdiags.h"
#include "info/frmabout.h"
#include "info/frmhelp.h"
#include "program/startup.h"
#include "settings/frmsettings.h"
#include "support/dialogs.h"
#include "support/oddfiles.h"
#include "voicings/frmvoicings.h"

#include <QFile>
#include <QFileDialog>
#include <QPlainTextEdit>

namespace {

template <typename Window>
QList<Window*> Shown() {
    QList<Window*> shown;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* found = qobject_cast<Window*>(window); found != nullptr && found->isVisible())
            shown += found;
    return shown;
}

} // namespace

class WindowsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        QFile::remove(StateFolder() + QStringLiteral("/windows")); // As at the first start.
        m_folder = std::make_unique<TestFolder>();
        QVERIFY(m_folder->Write(QStringLiteral("help.dat"), "help"));
    }
    void cleanup() { m_start.reset(); }

    void TheHelpButtonOpensTheHelpAboveEverything() {
        Start();
        bool modal = false;
        WhenModal<frmHelp>([&modal](frmHelp* help) {
            modal = help->isModal();
            help->close();
        });
        m_start->Window().cmdHelp->click();
        QVERIFY(modal);
        QVERIFY(Shown<frmHelp>().isEmpty());
    }

    void F1OpensTheHelpBesideTheWindow() {
        Start();
        Press(Qt::Key_F1);
        QCOMPARE(Shown<frmHelp>().size(), 1);
        QVERIFY(!Shown<frmHelp>().first()->isModal());
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }

    void AMinimisedHelpComesBackByF1() {
        Start();
        Press(Qt::Key_F1);
        frmHelp* help = Shown<frmHelp>().first();
        help->showMinimized();
        Press(Qt::Key_F1);
        QCOMPARE(Shown<frmHelp>(), QList{help});
        QVERIFY(!help->isMinimized());
    }

    void AHelpThatIsNoFileIsReportedAndTheProgramGoesOn_data() { OddFiles(); }
    void AHelpThatIsNoFileIsReportedAndTheProgramGoesOn() {
        QFETCH(const QString, kind);
        QVERIFY(QFile::remove(m_folder->Path(QStringLiteral("help.dat"))));
        QVERIFY(MakeOddFile(kind, m_folder->Path(QStringLiteral("help.dat"))));
        Start();
        BoxSeen report;
        AnswerBox(report);
        Press(Qt::Key_F1);
        QCOMPARE(report.name, QStringLiteral("RunTimeError"));
        QVERIFY(m_start->Window().isVisible());
        QVERIFY(Shown<frmHelp>().isEmpty());
    }

    void AWrongTuningRowStillOpensTheSettings() {
        QVERIFY(m_folder->Write(QStringLiteral("tonvik.ini"),
                                "[Settings]\r\nUser=3\r\nUserN=99\r\n[Strings]\r\n6S=D\r\n"));
        Start();
        BoxSeen report;
        QString thick;
        WhenModal<QMessageBox>([&](QMessageBox* box) {
            report.name = box->objectName();
            WhenModal<frmSettings>([&](frmSettings* dialog) {
                thick = dialog->Text1[5]->text();
                dialog->reject();
            });
            box->defaultButton()->click();
        });
        Press(Qt::Key_F10);
        QCOMPARE(report.name, QStringLiteral("RunTimeError"));
        QCOMPARE(thick, QStringLiteral("D"));
    }

    void TheNextVoicingIsTheWindowsOwn() {
        Start();
        Press(Qt::Key_F11);
        frmVoicings* voicings = Shown<frmVoicings>().first();
        QVERIFY(QTest::qWaitForWindowActive(voicings));
        voicings->chkNoBarre->click();
        m_start->Window().LayShape(voicings->lstVoicings->Rows().ShapeAt(2));
        QTest::keyClick(voicings, Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(FretsText(m_start->Window().State().NeckShape()),
                 voicings->lstVoicings->model()->index(3, 0).data().toString());
    }

    void ASheetThatIsAskedForAgainIsTheSame() {
        Start();
        frmDiags* sheet = OpenSheet();
        sheet->cmdAdd->click();
        m_start->Window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&m_start->Window()));
        QCOMPARE(OpenSheet(), sheet);
        QTRY_COMPARE(QApplication::activeWindow(), sheet);
        sheet->close();
        QCOMPARE(OpenSheet(), sheet);
        QCOMPARE(sheet->lstMain->RowCount(), 1);
        sheet->showMinimized();
        QCOMPARE(OpenSheet(), sheet);
        QVERIFY(!sheet->isMinimized());
    }

    void TheLeftHandedNeckIsThereAtOnce() {
        Start();
        WhenModal<frmSettings>([](frmSettings* dialog) {
            dialog->Check1->setChecked(false);
            dialog->Check2->setChecked(true);
            dialog->cmdOK->click();
        });
        Press(Qt::Key_F10);
        QVERIFY(m_start->State().LeftHanded);
        QVERIFY(!m_folder->Names().contains(QStringLiteral("tonvik.ini")));
    }

    void TheMainWindowComesBackWhereItStood() {
        Start();
        const int opened = m_start->Window().height();
        m_start->Window().resize(m_start->Window().width(), opened + 60);
        m_start.reset();
        Start();
        QCOMPARE(m_start->Window().height(), opened + 60);
    }

    void TheChosenColoursAreThereAtOnceAndAtTheNextStart() {
        Start();
        QCOMPARE(Colours::CurrentScheme(), Scheme::Light); // As the test's desktop.
        const auto choose = [this](int row, bool remember) {
            WhenModal<frmSettings>([=](frmSettings* dialog) {
                dialog->lstScheme->setCurrentIndex(row);
                dialog->Check1->setChecked(remember);
                dialog->cmdOK->click();
            });
            Press(Qt::Key_F10);
        };
        choose(2, false);
        QTRY_COMPARE(m_start->Window().palette().color(QPalette::Window),
                     Colours::window.In(Scheme::Dark));
        choose(0, false);
        QCOMPARE(Colours::CurrentScheme(), Scheme::Light);
        choose(2, true);
        Colours::UseScheme(Scheme::Light);
        Start();
        QCOMPARE(Colours::CurrentScheme(), Scheme::Dark);
        choose(1, false);
        QCOMPARE(Colours::CurrentScheme(), Scheme::Light);
    }

    void TheLeftHandedNeckIsThereAtTheNextStart() {
        QVERIFY(m_folder->Write(QStringLiteral("tonvik.ini"), "[Settings]\r\nLeftHanded=1\r\n"));
        Start();
        QVERIFY(m_start->State().LeftHanded);
    }

    void EscapeInAReportMeansGoingOn() {
        Start();
        frmDiags* sheet = OpenSheet();
        WhenModal<QMessageBox>([](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Escape); });
        sheet->cmdDel->click();
        QCoreApplication::processEvents();
        QVERIFY(m_start->Window().isVisible());
    }

    // The question of the sheet stands before the end; its answer decides.
    void EndingInAReportAsksForTheSheet_data() {
        QTest::addColumn<int>("role");
        QTest::addColumn<bool>("ends");
        QTest::newRow("discard") << static_cast<int>(QMessageBox::DestructiveRole) << true;
        QTest::newRow("cancel") << static_cast<int>(QMessageBox::RejectRole) << false;
    }
    void EndingInAReportAsksForTheSheet() {
        QFETCH(const int, role);
        QFETCH(const bool, ends);
        Start();
        frmDiags* sheet = OpenSheet();
        QTest::keyClicks(sheet->txtMain, QStringLiteral("la la"));
        BoxSeen report;
        BoxSeen question;
        AnswerBox(report, QMessageBox::DestructiveRole);
        sheet->cmdDel->click();
        AnswerBox(question, static_cast<QMessageBox::ButtonRole>(role));
        QTRY_VERIFY(question.seen);
        QCOMPARE(question.name, QStringLiteral("UnsavedSheet"));
        QTRY_COMPARE(!m_start->Window().isVisible(), ends);
        QCOMPARE(sheet->txtMain->toPlainText(), QStringLiteral("la la"));
    }

    void SavingThatIsCancelledKeepsProgramAndText() {
        Start();
        frmDiags* sheet = OpenSheet();
        QTest::keyClicks(sheet->txtMain, QStringLiteral("la la"));
        AnswerSave([](QFileDialog* dialog) { dialog->reject(); });
        QVERIFY(!m_start->Window().close());
        QVERIFY(m_start->Window().isVisible());
        QCOMPARE(sheet->txtMain->toPlainText(), QStringLiteral("la la"));
    }

    // A report that arises while the main window is closing can end the program, too.
    void EndingWhileTheWindowClosesEnds() {
        Start();
        frmDiags* sheet = OpenSheet();
        QTest::keyClicks(sheet->txtMain, QStringLiteral("la la"));
        BoxSeen report;
        BoxSeen again;
        AnswerSave([&](QFileDialog* dialog) {
            WhenModal<QMessageBox>([&](QMessageBox* box) {
                report.name = box->objectName();
                AnswerBox(again, QMessageBox::DestructiveRole);
                for (auto* button : box->buttons())
                    if (box->buttonRole(button) == QMessageBox::DestructiveRole)
                        button->click();
            });
            dialog->findChild<QLineEdit*>()->setText(m_folder->Path(QStringLiteral("gone/s.txt")));
            static_cast<QDialog*>(dialog)->accept();
        });
        constexpr int stuck = 42;
        QTimer::singleShot(0, &m_start->Window(), &QWidget::close);
        QTimer::singleShot(20'000, qApp, [] { QCoreApplication::exit(stuck); });
        QCOMPARE(QApplication::exec(), 0);
        QCOMPARE(report.name, QStringLiteral("RunTimeError"));
        QCOMPARE(again.name, QStringLiteral("UnsavedSheet")); // It is still not saved.
        QVERIFY(!m_start->Window().isVisible());
    }

private:
    void Start() {
        m_start = std::make_unique<StartUp>(*static_cast<Application*>(qApp), m_folder->Path());
        m_start->Main();
        QVERIFY(QTest::qWaitForWindowActive(&m_start->Window()));
    }

    void Press(Qt::Key key) { QTest::keyClick(&m_start->Window(), key); }

    frmDiags* OpenSheet() {
        m_start->Window().cmdNewDiag->click();
        const auto sheets = Shown<frmDiags>();
        if (sheets.size() != 1)
            qFatal("there is not one sheet");
        return sheets.first();
    }

    // Answers the question of the unsaved sheet with Save, and the file dialog as it says.
    static void AnswerSave(const std::function<void(QFileDialog*)>& answer) {
        WhenModal<QMessageBox>([answer](QMessageBox* box) {
            WhenModal<QFileDialog>(answer);
            box->button(QMessageBox::Save)->click();
        });
    }

    std::unique_ptr<TestFolder> m_folder;
    std::unique_ptr<StartUp> m_start;
};

int main(int argc, char** argv) {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    Application application(argc, argv);
    WindowsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "windows_test.moc"
