// Start-up as a whole, in a program folder of the test's own.
#include "controls/application.h"
#include "core/runtimeerror.h"
#include "diagrams/frmdiags.h"
#include "info/frmabout.h"
#include "info/frmhelp.h"
#include "program/startup.h"
#include "settings/frmsettings.h"
#include "support/dialogs.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

class StartUpTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void FolderText();
    void NoFilesAtAll();
    void DataFilesExtendTheLists();
    void UnreadableDataFiles_data();
    void UnreadableDataFiles();
    void LanguageFile();
    void EmptyLanguageFile();
    void MissingLanguageFile();
    void OddSettings();
    void SettingsForThisTimeOnly_data();
    void SettingsForThisTimeOnly();
    void ChordsAreCounted();
    void DiagramsOfTheFretboard();
    void SplashAdvancesInFiveSteps();

private:
    void Write(const QString& name, const QByteArray& bytes) const;
    QByteArray Bytes(const QString& name) const;
    void Start();
    QString Text(const QString& label) const {
        return m_start->Window().findChild<QLabel*>(label)->text();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<StartUp> m_start;
};

void StartUpTest::init() {
    m_folder = std::make_unique<QTemporaryDir>();
}

void StartUpTest::cleanup() {
    m_start.reset();
}

void StartUpTest::Write(const QString& name, const QByteArray& bytes) const {
    QFile file(m_folder->filePath(name));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write the test's file");
    file.write(bytes);
}

QByteArray StartUpTest::Bytes(const QString& name) const {
    QFile file(m_folder->filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

void StartUpTest::Start() {
    m_start = std::make_unique<StartUp>(*static_cast<Application*>(qApp), m_folder->path());
    m_start->Main();
}

void StartUpTest::FolderText() {
    const QString separator(QDir::separator());
    QCOMPARE(FolderPath(QStringLiteral("/")), separator);
    QCOMPARE(FolderPath(QStringLiteral("/a b/в")),
             QDir::toNativeSeparators(QStringLiteral("/a b/в/")));
}

void StartUpTest::NoFilesAtAll() {
    Start();
    frmMain& window = m_start->Window();
    QVERIFY(window.isVisible());
    QCOMPARE(Text(QStringLiteral("lblHint")),
             QStringLiteral("Выберите аккорд слева; щёлкните по струне; сыграйте: F6."));
    window.lstBase->SelectRow(0);
    QCOMPARE(Text(QStringLiteral("lblHint")), QString());
    QCOMPARE(window.windowTitle(), QStringLiteral("Тонвик"));
    QCOMPARE(window.lstType->RowCount(), 50);
    QCOMPARE(window.lstBase->RowCount(), 12);
    QCOMPARE(window.lstLad->RowCount(), 66);
    QCOMPARE(window.lstBarre->count(), 6);
    QCOMPARE(window.lstLadBarre->count(), 15);
    QCOMPARE(window.lstLadBarre->itemText(0), QStringLiteral("1 лад"));
    QCOMPARE(window.lstWhat->currentText(), QStringLiteral("быстро"));
    QCOMPARE(window.lstTemp->currentText(), QStringLiteral("1 раз"));
    QCOMPARE(window.lstBarre->currentText(), QStringLiteral("6 струн"));
    QCOMPARE(Text(QStringLiteral("lblChord")), QStringLiteral("C"));
    QCOMPARE(Text(QStringLiteral("lblKeys")), QStringLiteral("C E G "));
    QCOMPARE(window.lblChord->toolTip(), QStringLiteral("maj"));
    QCOMPARE(m_start->State().UiText.Attention, QStringLiteral("Внимание!"));
    QVERIFY(QApplication::topLevelWidgets().contains(&window));
    for (const QWidget* top : QApplication::topLevelWidgets())
        QVERIFY(top->objectName() != QStringLiteral("frmSplash"));
    QCOMPARE(Bytes(QStringLiteral("tonvik.ini")), QByteArray("(missing)"));
}

void StartUpTest::DataFilesExtendTheLists() {
    Write(QStringLiteral("chords.dat"), "Mine\r\nmine, too\r\n-x\r\n453\r\n");
    Write(QStringLiteral("scales.dat"), "My scale\r\n1,4");
    Write(QStringLiteral("tunings.dat"), "My tuning\r\nE,E,E,E,E,E");
    Start();
    frmMain& window = m_start->Window();
    QCOMPARE(window.lstType->RowCount(), 51);
    QCOMPARE(window.lstType->RowText(50), QStringLiteral("Mine"));
    QCOMPARE(window.lstLad->RowText(66), QStringLiteral("My scale"));
    QCOMPARE(m_start->State().Tunings.Count(), 37);
    window.lstType->SelectRow(50);
    QCOMPARE(Text(QStringLiteral("lblChord")), QStringLiteral("C-x"));
    QCOMPARE(Text(QStringLiteral("lblKeys")), QStringLiteral("C E A C "));
    window.lstLad->SelectRow(66);
    QCOMPARE(Text(QStringLiteral("lblKeys")), QStringLiteral("C D# "));
}

void StartUpTest::UnreadableDataFiles_data() {
    QTest::addColumn<QString>("name");
    for (const char* name : {"chords.dat", "scales.dat", "tunings.dat"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void StartUpTest::UnreadableDataFiles() {
    QFETCH(const QString, name);
    QVERIFY(QDir(m_folder->path()).mkdir(name));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, Start());
    QVERIFY(!m_start->Window().isVisible());
}

void StartUpTest::LanguageFile() {
    QByteArray file("[Init]\r\nLang=Test\r\n[Main]\r\n");
    for (int key = 1; key <= 23; ++key)
        file += QByteArray::number(key) + "=t" + QByteArray::number(key) + "\r\n";
    Write(QStringLiteral("test.lng"), file);
    Write(QStringLiteral("tonvik.ini"), "[Settings]\r\nLanguage=test.lng\r\n");
    Start();
    frmMain& window = m_start->Window();
    QCOMPARE(window.windowTitle(), QStringLiteral("Tonvik"));
    QCOMPARE(window.Frame1->title(), QStringLiteral("t1"));
    QCOMPARE(window.Frame2->title(), QStringLiteral("t2"));
    QCOMPARE(window.Frame5->title(), QStringLiteral("t3"));
    QCOMPARE(window.Label5->text(), QStringLiteral("t4"));
    QCOMPARE(window.cmdFindNew->Caption(), QStringLiteral("t5"));
    QCOMPARE(window.cmdMakeBarre->Caption(), QStringLiteral("t6"));
    QCOMPARE(window.GoldButton3->Caption(), QStringLiteral("t7"));
    QCOMPARE(window.lstBarre->count(), 6);
    QCOMPARE(window.lstBarre->itemText(0), QStringLiteral("t8"));
    QCOMPARE(window.lstBarre->currentText(), QStringLiteral("t13"));
    QCOMPARE(window.lstLadBarre->count(), 15);
    QCOMPARE(window.lstLadBarre->itemText(14), QStringLiteral("15 t14"));
    QCOMPARE(window.lstLadBarre->currentIndex(), 0);
    QCOMPARE(window.lstWhat->count(), 2);
    QCOMPARE(window.lstTemp->count(), 2);
    QCOMPARE(window.lstWhat->itemText(0), QStringLiteral("t16"));
    QCOMPARE(window.lstWhat->currentText(), QStringLiteral("t15"));
    QCOMPARE(window.lstTemp->itemText(1), QStringLiteral("t18"));
    QCOMPARE(window.lstTemp->currentText(), QStringLiteral("t17"));
    QCOMPARE(window.Label7->text(), QStringLiteral("t23"));
    QCOMPARE(window.Label2->text(), QStringLiteral("t20"));
    const UiTexts& texts = m_start->State().UiText;
    QCOMPARE(texts.NoSuchChordType, QStringLiteral("t19"));
    QCOMPARE(texts.StructureExists, QStringLiteral("t20"));
    QCOMPARE(texts.AltNamesLabel, QStringLiteral("t21"));
    QCOMPARE(texts.Attention, QStringLiteral("t22"));
    QCOMPARE(window.cmdHelp->toolTip(), QStringLiteral("Help (F1)"));
    QCOMPARE(window.cmdHelp->accessibleName(), QStringLiteral("Help (F1)"));
}

void StartUpTest::EmptyLanguageFile() {
    Write(QStringLiteral("test.lng"), "");
    Write(QStringLiteral("tonvik.ini"), "[Settings]\r\nLanguage=test.lng\r\n");
    Start();
    frmMain& window = m_start->Window();
    QCOMPARE(window.Frame1->title(), QStringLiteral("LANG FILE ERROR!"));
    QCOMPARE(window.lstLadBarre->itemText(1), QStringLiteral("2 LANG FILE ERROR!"));
    QCOMPARE(window.lstBarre->count(), 6);
}

void StartUpTest::MissingLanguageFile() {
    Write(QStringLiteral("tonvik.ini"), "[Settings]\r\nLanguage=none.lng\r\n");
    BoxSeen box;
    AnswerBox(box);
    Start();
    QVERIFY(box.seen);
    QCOMPARE(box.text, QStringLiteral("Файл, указанный как языковой ресурс в файле инициализации "
                                      "отсутствует!"));
    QCOMPARE(box.title, QStringLiteral("Внимание!"));
    QCOMPARE(box.icon, QMessageBox::Critical);
    QCOMPARE(box.buttons, QMessageBox::Ok);
    QCOMPARE(m_start->Window().windowTitle(), QStringLiteral("Тонвик"));
    QCOMPARE(m_start->Window().lstBarre->count(), 6);
    QCOMPARE(Bytes(QStringLiteral("tonvik.ini")), QByteArray("[Settings]\r\nLanguage=Default\r\n"));
}

void StartUpTest::OddSettings() {
    Write(QStringLiteral("tonvik.ini"),
          "stray\r\n[Settings]\r\nUser=7\r\n[Strings]\r\n1S=H\r\n6S=D\r\n1K=abc\r\nnoequals\r\n");
    Start();
    QCOMPARE(Text(QStringLiteral("Label4(5)")), QStringLiteral("H")); // Thin string at the top.
    QCOMPARE(m_start->Window().findChild<QLabel*>(QStringLiteral("Label4(5)"))->property("Tag"),
             QStringLiteral("abc"));
    QCOMPARE(m_start->State().StringNotes[0], QStringLiteral("D"));
}

void StartUpTest::SettingsForThisTimeOnly_data() {
    QTest::addColumn<int>("option");
    QTest::addColumn<bool>("thinAtBottom");
    QTest::newRow("standard, thin at top") << 0 << false;
    QTest::newRow("standard, thin at bottom") << 1 << true;
    QTest::newRow("custom, thin at top") << 2 << false;
    QTest::newRow("custom, thin at bottom") << 3 << true;
}

void StartUpTest::SettingsForThisTimeOnly() {
    QFETCH(const int, option);
    QFETCH(const bool, thinAtBottom);
    const QByteArray file("[Settings]\r\nUser=2\r\n");
    Write(QStringLiteral("tonvik.ini"), file);
    Start();
    WhenModal<frmSettings>([option](frmSettings* dialog) {
        dialog->Options[static_cast<std::size_t>(option)]->click();
        dialog->Text1[0]->setText(QStringLiteral("D"));
        dialog->Check1->setChecked(false);
        dialog->cmdOK->click();
    });
    m_start->Window().cmdSettings->click();
    QCOMPARE(m_start->State().ThinStringAtBottom, thinAtBottom);
    QCOMPARE(Text(QStringLiteral("Label4(%1)").arg(thinAtBottom ? 0 : 5)), QStringLiteral("D"));
    QCOMPARE(Text(QStringLiteral("Label4(%1)").arg(thinAtBottom ? 1 : 4)), QStringLiteral("B"));
    QCOMPARE(Bytes(QStringLiteral("tonvik.ini")), file);
}

void StartUpTest::ChordsAreCounted() {
    Write(QStringLiteral("chords.dat"), "mine\r\n\r\nx\r\n45");
    Write(QStringLiteral("help.dat"), "help");
    Start();
    QString counted;
    WhenModal<frmHelp>([&counted](frmHelp* help) {
        help->Command1->click();
        if (const auto* about = help->findChild<frmAbout*>(); about && about->isVisible())
            counted = about->Label7->text();
        help->close();
    });
    m_start->Window().cmdHelp->click();
    QVERIFY(counted.endsWith(QStringLiteral(" 612"))); // 12 roots, 51 types.
}

void StartUpTest::DiagramsOfTheFretboard() {
    Start();
    frmMain& window = m_start->Window();
    window.cmdNewDiag->click();
    const frmDiags* sheet = nullptr;
    for (const QWidget* widget : QApplication::topLevelWidgets())
        if (const auto* found = qobject_cast<const frmDiags*>(widget); found && found->isVisible())
            sheet = found;
    QVERIFY(sheet != nullptr);
    const auto added = [sheet] {
        sheet->cmdAdd->click();
        return sheet->lstMain->RowText(sheet->lstMain->RowCount() - 1);
    };
    QCOMPARE(added(), QStringLiteral("C - 010230"));
    window.picStrings_MouseDown(Qt::RightButton, {});
    QCOMPARE(added(), QStringLiteral("C - 000000"));
    window.Label3_Click(4);
    QVERIFY(added().startsWith(QStringLiteral("C - Б5/")));
}

// The widths of the splash's bar while the program starts.
class BarWatcher : public QObject {
public:
    BarWatcher() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* bar = qobject_cast<QWidget*>(watched);
        if (bar != nullptr && event->type() == QEvent::Resize &&
            bar->objectName() == QStringLiteral("Shape3") &&
            bar->window()->objectName() == QStringLiteral("frmSplash")) {
            if (m_widths.isEmpty() || m_widths.last() != bar->width())
                m_widths += bar->width();
            m_frame = bar->window()->findChild<QWidget*>(QStringLiteral("Shape2"))->width();
        }
        return false;
    }

    QList<int> m_widths;
    int m_frame = 0;
};

void StartUpTest::SplashAdvancesInFiveSteps() {
    BarWatcher watcher;
    Start();
    QList<int> steps = watcher.m_widths;
    steps.removeAll(0);
    QCOMPARE(steps.size(), 5);
    for (int step = 1; step <= 5; ++step)
        QVERIFY(qAbs(steps[step - 1] - watcher.m_frame * step / 5.0) < 1);
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    StartUpTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "startup_test.moc"
