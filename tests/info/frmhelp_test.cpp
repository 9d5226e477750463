// The help: its text, its captions, its measures, and the About that it opens.
#include "controls/application.h"
#include "controls/goldbutton.h"
#include "controls/twips.h"
#include "core/language.h"
#include "core/mdlmain.h"
#include "core/runtimeerror.h"
#include "info/frmabout.h"
#include "info/frmhelp.h"
#include "info/helpopener.h"
#include "info/helptext.h"
#include "tests/support/dialogs.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>

namespace {

const QByteArray filling(60, '\n');
const QByteArray longManual = "top\n" + filling + "5. RUSSIAN\n" + filling + "ENGLISH MANUAL\n" +
                              filling + "5. CHORDS\n" + filling + "9. BARRE\n" + filling;

ChordRows SomeRows() {
    return {12, 40};
}

void ShowActive(QWidget& window) {
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

} // namespace

class FrmHelpTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<QTemporaryDir>();
        m_state.AppPath = m_folder->path() + QDir::separator();
        m_state.LanguageFile = defaultLanguage;
    }

    void TheTextIsShownAsItIs_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("lines") << QByteArray("\xC0\r\n\r\n  b\r\n") << QStringLiteral("А\n\n  b\n");
        QTest::newRow("an empty file: no message") << QByteArray("") << QString();
        QTest::newRow("markup is text") << QByteArray("<b>x</b>") << QStringLiteral("<b>x</b>");
    }
    void TheTextIsShownAsItIs() {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, text);
        WriteFile("help.dat", bytes);
        const frmHelp help(m_state, SomeRows);
        QCOMPARE(help.objectName(), QStringLiteral("frmHelp"));
        QCOMPARE(help.findChild<QPlainTextEdit*>(QStringLiteral("Text1"))->toPlainText(), text);
        QVERIFY(help.Text1->isReadOnly());
        QCOMPARE(help.Text1->font().families().first(), QStringLiteral("Courier New"));
    }

    void AMissingFileGivesItsText() {
        const frmHelp help(m_state, SomeRows);
        QCOMPARE(help.Text1->toPlainText(),
                 QStringLiteral("Файл справки отсутствует. Обратитесь к автору программы."));
    }

    void AFileThatCannotBeReadIsARunTimeError() {
        QVERIFY(QDir(m_state.AppPath).mkdir(QStringLiteral("help.dat")));
        QVERIFY_THROWS_EXCEPTION(RunTimeError, frmHelp(m_state, SomeRows));
        HelpOpener opener(m_state, SomeRows, nullptr);
        QVERIFY_THROWS_EXCEPTION(RunTimeError, opener.Show());
        QVERIFY_THROWS_EXCEPTION(RunTimeError, opener.ShowModal());
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void ALargeFileOpens_data() {
        QTest::addColumn<int>("kind");
        QTest::newRow("one line of NULs") << 0;
        QTest::newRow("every byte there is") << 1;
        QTest::newRow("nothing but line ends") << 2;
    }
    void ALargeFileOpens() {
        QFETCH(const int, kind);
        const qsizetype size = kind == 2 ? mostHelpLines + 1 : 20 * longestHelpLine;
        QByteArray bytes(size, kind == 2 ? '\n' : '\0');
        if (kind == 1)
            for (qsizetype i = 0; i < size; ++i)
                bytes[i] = static_cast<char>(i * 31 + i / 257);
        WriteFile("help.dat", bytes);
        frmHelp help(m_state, SomeRows);
        ShowActive(help);
        help.grab();
        QVERIFY(help.Text1->blockCount() >= size / longestHelpLine);
    }

    void TheCaptionsAreBuiltIn() {
        const frmHelp help(m_state, SomeRows);
        QCOMPARE(help.windowTitle(), QStringLiteral("Помощь"));
        QCOMPARE(help.Command1->Caption(), QStringLiteral("О программе"));
    }

    void TheCaptionsFollowALanguageFile_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("caption");
        QTest::newRow("its key") << QByteArray("[Help]\r\n1=Info\r\n") << QStringLiteral("Info");
        QTest::newRow("a missing key") << QByteArray("[Help]\r\n") << missingLanguageText;
    }
    void TheCaptionsFollowALanguageFile() {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, caption);
        m_state.LanguageFile = WriteFile("some.lng", bytes);
        const frmHelp help(m_state, SomeRows);
        QCOMPARE(help.windowTitle(), QStringLiteral("Help"));
        QCOMPARE(help.Command1->Caption(), caption);
        QCOMPARE(help.Text1->accessibleName(), QStringLiteral("Help text"));
    }

    void TheMeasuresAreInTwips_data() {
        QTest::addColumn<QSize>("size");
        QTest::newRow("wide") << QSize(1000, 400);
        QTest::newRow("high") << QSize(500, 700);
    }
    void TheMeasuresAreInTwips() {
        QFETCH(const QSize, size);
        frmHelp help(m_state, SomeRows);
        ShowActive(help);
        help.resize(size);
        const auto pixels = [&help](int twips) { return qRound(twips * PixelsPerTwip(help)); };
        const QRect text = help.Text1->geometry();
        QCOMPARE(text.topLeft(), QPoint(pixels(50), pixels(50)));
        QCOMPARE(text.size(), help.size() - QSize(pixels(200), pixels(1000)));
        for (const GoldButton* button : {help.cmdOK, help.Command1}) {
            QCOMPARE(button->y(), text.y() + text.height() + pixels(100));
            QVERIFY(help.rect().contains(button->geometry()));
        }
        QVERIFY(help.Command1->geometry().right() < help.cmdOK->x());
    }

    void EvenTheSmallestWindowHoldsItsButtons() {
        frmHelp help(m_state, SomeRows);
        ShowActive(help);
        help.resize(1, 1);
        for (const GoldButton* button : {help.cmdOK, help.Command1})
            QVERIFY(help.rect().contains(button->geometry()));
    }

    void ItOpensWideEnoughForEightyColumns() {
        WriteFile("help.dat", QByteArray(80, 'W') + "\r\n" + QByteArray(100, '\n'));
        frmHelp help(m_state, SomeRows);
        ShowActive(help);
        QCOMPARE(help.Text1->document()->firstBlock().lineCount(), 1);
    }

    void AboutIsCreatedOnce() {
        frmHelp help(m_state, SomeRows);
        ShowActive(help);
        QTest::mouseClick(help.Command1, Qt::LeftButton);
        auto* about = help.findChild<frmAbout*>();
        QVERIFY(about != nullptr && about->isVisible());
        QCOMPARE(about->Label7->text(), QStringLiteral("Всего уникальных аккордов: 480"));
        help.Command1_Click();
        QCOMPARE(help.findChildren<frmAbout*>().size(), 1);
        about->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(help.findChild<frmAbout*>() == nullptr);
        help.Command1_Click();
        QVERIFY(help.findChild<frmAbout*>()->isVisible());
    }

    void TooManyChordsAreReportedAndTheHelpStays() {
        frmHelp help(m_state, [] { return ChordRows{32768, 1}; });
        ShowActive(help);
        BoxSeen seen;
        AnswerBox(seen);
        QTest::mouseClick(help.Command1, Qt::LeftButton);
        QVERIFY(seen.seen);
        QCOMPARE(seen.name, QStringLiteral("RunTimeError"));
        QVERIFY(help.findChild<frmAbout*>() == nullptr);
        QVERIFY(help.isVisible());
    }

    void ItCloses_data() {
        QTest::addColumn<int>("key");
        QTest::newRow("Escape") << int{Qt::Key_Escape};
        QTest::newRow("Enter") << int{Qt::Key_Return};
        QTest::newRow("a click on cmdOK") << 0;
    }
    void ItCloses() {
        QFETCH(const int, key);
        frmHelp help(m_state, SomeRows);
        ShowActive(help);
        QVERIFY(help.Text1->hasFocus());
        if (key == 0)
            QTest::mouseClick(help.cmdOK, Qt::LeftButton);
        else
            QTest::keyClick(help.focusWidget(), static_cast<Qt::Key>(key));
        QVERIFY(!help.isVisible());
    }

    void TabLeadsFromTheTextToTheButtons() {
        frmHelp help(m_state, SomeRows);
        ShowActive(help);
        QTest::keyClick(help.focusWidget(), Qt::Key_Tab);
        QVERIFY(help.Command1->hasFocus());
        QTest::keyClick(help.focusWidget(), Qt::Key_Tab);
        QVERIFY(help.cmdOK->hasFocus());
    }

    void ItOpensBesideTheMainWindowOnce() {
        QWidget mainWindow;
        HelpOpener opener(m_state, SomeRows, &mainWindow);
        opener.Show();
        QPointer<frmHelp> help = OpenHelp();
        QVERIFY(!help.isNull() && !help->isModal());
        opener.Show();
        QCOMPARE(OpenHelp(), help.data());
        help->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(help.isNull());
        WriteFile("help.dat", "new");
        opener.Show();
        QCOMPARE(OpenHelp()->Text1->toPlainText(), QStringLiteral("new"));
    }

    void ItOpensAtTheManualInTheLanguageInUse_data() {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("line");
        QTest::newRow("built-in Russian: the top") << defaultLanguage << QStringLiteral("top");
        QTest::newRow("a language file: the English heading")
            << QStringLiteral("/nowhere/serbian.lng") << QStringLiteral("ENGLISH MANUAL");
    }
    void ItOpensAtTheManualInTheLanguageInUse() {
        QFETCH(const QString, language);
        QFETCH(const QString, line);
        WriteFile("help.dat", longManual);
        m_state.LanguageFile = language;
        frmHelp help(m_state, SomeRows);
        ShowActive(help);
        QCOMPARE(TopLine(help), line);
        QCOMPARE(help.Text1->toPlainText().toLatin1(), longManual);
    }

    void BesideTheMainWindowItOpensAtTheChapterAboutTheFocus() {
        WriteFile("help.dat", longManual);
        m_state.LanguageFile = QStringLiteral("/nowhere/english.lng");
        QWidget mainWindow;
        mainWindow.setObjectName(QStringLiteral("frmMain"));
        auto* list = new QWidget(&mainWindow);
        list->setObjectName(QStringLiteral("lstBarre"));
        HelpOpener opener(m_state, SomeRows, &mainWindow);
        opener.Show(list);
        QCOMPARE(TopLine(*OpenHelp()), QStringLiteral("9. BARRE"));
        list->setObjectName(QStringLiteral("lstType"));
        opener.Show(list);
        QCOMPARE(TopLine(*OpenHelp()), QStringLiteral("5. CHORDS"));
        opener.Show();
        QCOMPARE(TopLine(*OpenHelp()), QStringLiteral("ENGLISH MANUAL"));
    }

    void ItOpensAboveTheMainWindow() {
        QWidget mainWindow;
        HelpOpener opener(m_state, SomeRows, &mainWindow);
        opener.Show();
        bool aboutAnswers = false;
        WhenModal([&aboutAnswers](QWidget* modal) {
            auto* help = dynamic_cast<frmHelp*>(modal);
            QVERIFY(help != nullptr);
            help->Command1_Click();
            auto* about = help->findChild<frmAbout*>();
            QTest::mouseClick(about->cmdOK, Qt::LeftButton);
            aboutAnswers = !about->isVisible();
            QTest::keyClick(help, Qt::Key_Escape);
        });
        opener.ShowModal();
        QVERIFY(aboutAnswers);
        QVERIFY(OpenHelp() == nullptr);
    }

private:
    QString WriteFile(const char* name, const QByteArray& bytes) {
        QFile file(m_state.AppPath + QString::fromLatin1(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write");
        return file.fileName();
    }

    // The first line in sight.
    static QString TopLine(const frmHelp& help) {
        return help.Text1->cursorForPosition(QPoint(2, 2)).block().text();
    }

    static frmHelp* OpenHelp() {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* help = dynamic_cast<frmHelp*>(window); help != nullptr && help->isVisible())
                return help;
        return nullptr;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    AppState m_state;
};

int main(int argc, char** argv) {
    Application application(argc, argv);
    FrmHelpTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "frmhelp_test.moc"
