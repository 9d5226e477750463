// The settings dialog through its real window.
#include "controls/application.h"
#include "controls/goldbutton.h"
#include "core/language.h"
#include "core/profile.h"
#include "core/runtimeerror.h"
#include "settings/frmsettings.h"
#include "support/dialogs.h"
#include "support/recordingsound.h"

#include <QTemporaryDir>
#include <QTest>

class FrmSettingsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_dialog.reset(); }

    void DefaultsOnFirstUse();
    void StandardDisablesTheStrings();
    void UserTuningEnablesThem();
    void UserSeven();
    void UserTuningIsLoaded();
    void SavedSoundNumbersSurvive();
    void TuningRowPastTheEnd();
    void TuningRowMinusOne();
    void NoteThatIsNone();
    void ChoosingATuning();
    void TuningWithTooFewNames();
    void NoteWheel();
    void OctaveShift();
    void CheckedOptionClickedAgain();
    void Listening();
    void OkHandsOver_data();
    void OkHandsOver();
    void OkWithoutRemembering();
    void OkWritesTheFile();
    void OkKeepsOtherLines();
    void CancelDoesNothing();
    void UnwritableFolder();
    void LanguagesAreListed();
    void LanguageIsWritten();
    void LanguageFileRemoved();
    void EnglishCaptions();
    void MissingLanguageKeys();
    void TypedNotes();
    void NothingIsClipped();

private:
    void Write(const QString& name, const QByteArray& bytes) const;
    QByteArray Settings() const;
    void Open();
    template <typename Widget = QWidget>
    Widget* Find(const QString& name) {
        auto* found = m_dialog->findChild<Widget*>(name);
        if (found == nullptr)
            qFatal("no control is called %s", qPrintable(name));
        return found;
    }
    QString Notes() {
        QStringList notes;
        for (const auto* text : m_dialog->Text1)
            notes += text->text();
        return notes.join(u' ');
    }
    QString Numbers() {
        QStringList numbers;
        for (const auto* text : m_dialog->Text1)
            numbers += text->property("Tag").toString();
        return numbers.join(u' ');
    }
    void ClickArrow(QScrollBar* bar, bool up) {
        QTest::mouseClick(bar, Qt::LeftButton, {},
                          QPoint(bar->width() / 2, up ? 4 : bar->height() - 4));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    AppState m_state;
    HandClock m_clock;
    std::unique_ptr<RecordingPlayer> m_midi;
    std::unique_ptr<frmSettings> m_dialog;
    std::optional<std::pair<OpenStrings, bool>> m_handed;
};

void FrmSettingsTest::init() {
    m_folder = std::make_unique<QTemporaryDir>();
    m_state = AppState();
    m_state.AppPath = m_folder->path() + u'/';
    m_clock = HandClock();
    m_midi = std::make_unique<RecordingPlayer>(m_clock);
    m_handed.reset();
}

void FrmSettingsTest::Write(const QString& name, const QByteArray& bytes) const {
    QFile file(m_folder->filePath(name));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write the test's file");
    file.write(bytes);
}

QByteArray FrmSettingsTest::Settings() const {
    QFile file(m_folder->filePath(QStringLiteral("tonvik.ini")));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

void FrmSettingsTest::Open() {
    m_dialog = std::make_unique<frmSettings>(m_state, *m_midi, m_clock,
                                             [this](const OpenStrings& strings, bool thin) {
                                                 m_handed = {strings, thin};
                                             });
    Application::Guard([this] { m_dialog->Form_Load(); });
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

void FrmSettingsTest::DefaultsOnFirstUse() {
    Open();
    QCOMPARE(m_dialog->windowTitle(), QStringLiteral("Настройки"));
    QVERIFY(Find<QRadioButton>(QStringLiteral("Option2"))->isChecked());
    QVERIFY(Find<QCheckBox>(QStringLiteral("Check1"))->isChecked());
    QCOMPARE(Notes(), QStringLiteral("E B G D A E"));
    QCOMPARE(Numbers(), QStringLiteral("20 25 29 34 39 44"));
    QCOMPARE(m_dialog->lstTunings->RowCount(), 36);
    QCOMPARE(m_dialog->lstTunings->RowText(0), QStringLiteral("Low D/Drop D"));
    QCOMPARE(m_dialog->lstTunings->Row(), -1);
    QCOMPARE(Find<QScrollBar>(QStringLiteral("VScroll1(1)"))->value(), 24);
    QCOMPARE(Find<QScrollBar>(QStringLiteral("VScroll1(0)"))->value(), 17);
    QCOMPARE(m_dialog->lstLang->RowCount(), 1);
    QCOMPARE(m_dialog->lstLang->Row(), 0);
    QCOMPARE(Find<QLabel>(QStringLiteral("Label2"))->text(), QStringLiteral("Шестая струна:"));
    QCOMPARE(Find<QLabel>(QStringLiteral("Label3"))->text(), QStringLiteral("Вторая струна:"));
    QCOMPARE(Settings(), QByteArray("(missing)"));
}

void FrmSettingsTest::StandardDisablesTheStrings() {
    Open();
    for (const char* name : {"Frame3", "Text1(0)", "Text1(5)", "Label1", "Label6", "lstTunings",
                             "VScroll1(0)", "VScroll2(0)"})
        QVERIFY2(!Find(QString::fromLatin1(name))->isEnabled(), name);
    QVERIFY(Find(QStringLiteral("Image1(0)"))->isEnabled()); // A string can be heard all the same.
}

void FrmSettingsTest::UserTuningEnablesThem() {
    Open();
    for (const auto option : {2, 3}) {
        m_dialog->Options[0]->click();
        m_dialog->Options[static_cast<std::size_t>(option)]->click();
        for (const char* name : {"Frame3", "Text1(0)", "Label2", "lstTunings", "VScroll1(0)"})
            QVERIFY2(Find(QString::fromLatin1(name))->isEnabled(), name);
        QCOMPARE(Notes(), QStringLiteral("E B G D A E"));
    }
}

void FrmSettingsTest::UserSeven() {
    Write(QStringLiteral("tonvik.ini"), "[Settings]\r\nUser=7\r\n");
    Open();
    QVERIFY(m_dialog->Options[0]->isChecked());
}

void FrmSettingsTest::UserTuningIsLoaded() {
    Write(QStringLiteral("tonvik.ini"), "[Settings]\r\nUser=4\r\nUserN=1\r\n[Strings]\r\n1S=D\r\n"
                                        "1K=22\r\n2S=A\r\n2K=27\r\n3S=F#\r\n3K=30\r\n");
    Open();
    QVERIFY(m_dialog->Options[3]->isChecked());
    QCOMPARE(m_dialog->lstTunings->Row(), 1);
    QCOMPARE(Notes(), QStringLiteral("D A F# D A E")); // The file's strings come last.
    QCOMPARE(m_dialog->VScroll1[2]->value(), 19);
}

void FrmSettingsTest::SavedSoundNumbersSurvive() {
    const QByteArray saved = "[Settings]\r\nUser=3\r\nUserN=0\r\nLanguage=Default\r\n[Strings]\r\n"
                             "1S=E\r\n2S=B\r\n3S=G\r\n4S=D\r\n5S=A\r\n6S=D\r\n"
                             "1K=8\r\n2K=25\r\n3K=29\r\n4K=34\r\n5K=39\r\n6K=58\r\n";
    Write(QStringLiteral("tonvik.ini"), saved);
    Open();
    QCOMPARE(Numbers(), QStringLiteral("8 25 29 34 39 58"));
    QTest::mouseClick(m_dialog->cmdOK, Qt::LeftButton);
    QCOMPARE(Settings(), saved);
}

void FrmSettingsTest::TuningRowPastTheEnd() {
    Write(QStringLiteral("tonvik.ini"), "[Settings]\r\nUser=3\r\nUserN=36\r\n");
    BoxSeen box;
    AnswerBox(box);
    Open();
    QVERIFY(box.seen);
    QCOMPARE(box.name, QStringLiteral("RunTimeError"));
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(m_dialog->lstTunings->Row(), -1);
    QCOMPARE(m_dialog->lstLang->RowCount(), 1);
    m_dialog->lstTunings->SelectRow(0); // It can be used all the same.
    QCOMPARE(Notes(), QStringLiteral("E B G D A D"));
}

void FrmSettingsTest::TuningRowMinusOne() {
    Write(QStringLiteral("tonvik.ini"), "[Settings]\r\nUser=3\r\nUserN=-1\r\n");
    Open();
    QCOMPARE(m_dialog->lstTunings->Row(), -1);
    QCOMPARE(Notes(), QStringLiteral("E B G D A E"));
}

void FrmSettingsTest::NoteThatIsNone() {
    Write(QStringLiteral("tonvik.ini"), "[Settings]\r\nUser=3\r\nUserN=0\r\n[Strings]\r\n2S=H\r\n");
    BoxSeen box;
    AnswerBox(box);
    Open();
    QVERIFY(box.seen);
    QVERIFY(box.text.contains(QStringLiteral("«H»")));
    QCOMPARE(m_dialog->Text1[1]->text(), QStringLiteral("H"));
    QVERIFY(m_dialog->isVisible());
}

void FrmSettingsTest::ChoosingATuning() {
    Open();
    m_dialog->Options[2]->click();
    const int wheel = m_dialog->VScroll1[0]->value();
    const QModelIndex row = m_dialog->lstTunings->model()->index(3, 0);
    QTest::mouseClick(m_dialog->lstTunings->viewport(), Qt::LeftButton, {},
                      m_dialog->lstTunings->visualRect(row).center());
    QCOMPARE(Notes(), QStringLiteral("D B G D G D"));
    QCOMPARE(Numbers(), QStringLiteral("22 25 29 34 41 46"));
    QCOMPARE(m_dialog->VScroll1[0]->value(), wheel); // The wheels are not moved.
}

void FrmSettingsTest::TuningWithTooFewNames() {
    Write(QStringLiteral("tunings.dat"), "short\r\nD,A\r\nodd\r\nH,x,,D,A,E");
    m_state.Tunings.AppendDataFile(m_folder->filePath(QStringLiteral("tunings.dat")));
    Open();
    m_dialog->Options[2]->click();
    QVERIFY_THROWS_EXCEPTION(RunTimeError, m_dialog->lstTunings_Click(36));
    QCOMPARE(Notes(), QStringLiteral("D A G D A E")); // What was done stays.
    m_dialog->lstTunings_Click(37);
    QCOMPARE(Notes(), QStringLiteral("H x  D A E"));
    QCOMPARE(m_dialog->Text1[3]->property("Tag").toString(), QStringLiteral("34"));
}

void FrmSettingsTest::NoteWheel() {
    Open();
    m_dialog->Options[3]->click();
    ClickArrow(m_dialog->VScroll1[0], true); // E to F.
    QCOMPARE(m_dialog->Text1[0]->text(), QStringLiteral("F"));
    QCOMPARE(m_dialog->Text1[0]->property("Tag").toString(), QStringLiteral("19"));
    ClickArrow(m_dialog->VScroll1[0], false);
    ClickArrow(m_dialog->VScroll1[0], false);
    QCOMPARE(m_dialog->Text1[0]->text(), QStringLiteral("D#"));
    ClickArrow(m_dialog->VScroll1[1], true); // B is the top of the wheel.
    QCOMPARE(m_dialog->Text1[1]->text(), QStringLiteral("B"));
    m_dialog->VScroll1[0]->setValue(m_dialog->VScroll1[0]->minimum());
    QCOMPARE(m_dialog->Text1[0]->text(), QStringLiteral("B"));
}

void FrmSettingsTest::OctaveShift() {
    Open();
    m_dialog->Options[3]->click();
    QScrollBar* octave = m_dialog->VScroll2[5];
    QCOMPARE(octave->property("Tag").toString(), QString::number(octave->value()));
    ClickArrow(octave, true);
    QCOMPARE(m_dialog->Text1[5]->property("Tag").toString(), QStringLiteral("32"));
    ClickArrow(octave, false);
    ClickArrow(octave, false);
    QCOMPARE(m_dialog->Text1[5]->property("Tag").toString(), QStringLiteral("56"));
    QCOMPARE(octave->property("Tag").toString(), QString::number(octave->value()));
    QCOMPARE(m_dialog->Text1[5]->text(), QStringLiteral("E"));
}

void FrmSettingsTest::CheckedOptionClickedAgain() {
    Write(QStringLiteral("tonvik.ini"), "[Settings]\r\nUser=2\r\n[Strings]\r\n1S=D\r\n1K=22\r\n");
    Open();
    QCOMPARE(m_dialog->Text1[0]->text(), QStringLiteral("D"));
    QTest::mouseClick(m_dialog->Options[1], Qt::LeftButton, {}, QPoint(8, 8));
    QCOMPARE(Notes(), QStringLiteral("E B G D A E"));
    QCOMPARE(Numbers(), QStringLiteral("20 25 29 34 39 44"));
}

void FrmSettingsTest::Listening() {
    Open();
    QTest::mouseClick(m_dialog->Image1[4], Qt::LeftButton);
    QCOMPARE(m_midi->played, QStringList(QStringLiteral("strings/39.mid")));
    QCOMPARE(m_clock.now, 100.5);
    QCOMPARE(m_midi->closed, 1);
    m_dialog->Image1[5]->setFocus();
    QTest::keyClick(m_dialog->Image1[5], Qt::Key_Space);
    QCOMPARE(m_midi->played.last(), QStringLiteral("strings/44.mid"));
}

void FrmSettingsTest::OkHandsOver_data() {
    QTest::addColumn<int>("option");
    QTest::addColumn<bool>("thinAtBottom");
    QTest::newRow("1") << 1 << false;
    QTest::newRow("2") << 2 << true;
    QTest::newRow("3") << 3 << false;
    QTest::newRow("4") << 4 << true;
}

void FrmSettingsTest::OkHandsOver() {
    QFETCH(const int, option);
    QFETCH(const bool, thinAtBottom);
    Open();
    m_dialog->Options[static_cast<std::size_t>(option) - 1]->click();
    if (option > 2)
        m_dialog->lstTunings->SelectRow(0);
    QTest::keyClick(m_dialog.get(), Qt::Key_Return); // OK is the default button.
    QVERIFY(!m_dialog->isVisible());
    QVERIFY(m_handed);
    QCOMPARE(m_handed->second, thinAtBottom);
    QCOMPARE(m_handed->first.notes[5], option > 2 ? QStringLiteral("D") : QStringLiteral("E"));
    QCOMPARE(m_handed->first.soundNumbers[5],
             option > 2 ? QStringLiteral("46") : QStringLiteral("44"));
    LayStrings(m_state, m_handed->first, m_handed->second);
    QCOMPARE(m_state.SoundNumbers[thinAtBottom ? 0 : 5], QStringLiteral("20"));
}

void FrmSettingsTest::OkWithoutRemembering() {
    Open();
    m_dialog->Check1->click();
    QTest::mouseClick(m_dialog->cmdOK, Qt::LeftButton);
    QVERIFY(m_handed);
    QCOMPARE(Settings(), QByteArray("(missing)"));
}

void FrmSettingsTest::OkWritesTheFile() {
    Open();
    m_dialog->Options[3]->click();
    m_dialog->lstTunings->SelectRow(21);
    QTest::mouseClick(m_dialog->cmdOK, Qt::LeftButton);
    QCOMPARE(Settings(),
             QByteArray("[Settings]\r\nUser=4\r\nUserN=21\r\nLanguage=Default\r\n"
                        "[Strings]\r\n1S=D#\r\n2S=A#\r\n3S=F#\r\n4S=C#\r\n5S=G#\r\n"
                        "6S=D#\r\n1K=21\r\n2K=26\r\n3K=30\r\n4K=35\r\n5K=40\r\n6K=45\r\n"));
}

void FrmSettingsTest::OkKeepsOtherLines() {
    Open();
    Write(QStringLiteral("tonvik.ini"), "; mine\r\n[Other]\r\nKey=1\r\n"); // While it is open.
    QTest::mouseClick(m_dialog->cmdOK, Qt::LeftButton);
    QVERIFY(Settings().startsWith("; mine\r\n[Other]\r\nKey=1\r\n[Settings]\r\nUser=2\r\n"));
    QVERIFY(!Settings().contains("UserN"));
}

void FrmSettingsTest::CancelDoesNothing() {
    Open();
    m_dialog->Options[2]->click();
    QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
    QVERIFY(!m_dialog->isVisible());
    QVERIFY(!m_handed);
    QCOMPARE(Settings(), QByteArray("(missing)"));
}

void FrmSettingsTest::UnwritableFolder() {
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("tonvik.ini")));
    Open();
    m_dialog->Options[0]->click();
    QTest::mouseClick(m_dialog->cmdOK, Qt::LeftButton);
    QVERIFY(m_dialog->Unsaved());
    QVERIFY(m_handed);
    QVERIFY(!m_dialog->isVisible());
    QVERIFY(QFileInfo(m_folder->filePath(QStringLiteral("tonvik.ini"))).isDir());
}

void FrmSettingsTest::LanguagesAreListed() {
    Write(QStringLiteral("b.lng"), "[Init]\r\nLang=Bee\r\n");
    Write(QStringLiteral("a.lng"), "");
    m_state.LanguageFile = m_state.AppPath + QStringLiteral("b.lng");
    Open();
    QCOMPARE(m_dialog->lstLang->RowText(0), QStringLiteral("Russian - default"));
    QCOMPARE(m_dialog->lstLang->RowText(1), QStringLiteral("LANG FILE ERROR! - a.lng"));
    QCOMPARE(m_dialog->lstLang->RowText(2), QStringLiteral("Bee - b.lng"));
    QCOMPARE(m_dialog->lstLang->Row(), 2);
}

void FrmSettingsTest::LanguageIsWritten() {
    Write(QStringLiteral("b.lng"), "[Init]\r\nLang=Bee\r\n");
    Write(QStringLiteral("a.lng"), "");
    Open();
    m_dialog->lstLang->SelectRow(2);
    QTest::mouseClick(m_dialog->cmdOK, Qt::LeftButton);
    QVERIFY(Settings().contains("Language=b.lng\r\n"));
}

void FrmSettingsTest::LanguageFileRemoved() {
    Write(QStringLiteral("a.lng"), "");
    Open();
    m_dialog->lstLang->SelectRow(1);
    QVERIFY(QFile::remove(m_folder->filePath(QStringLiteral("a.lng"))));
    BoxSeen box;
    AnswerBox(box);
    QTest::mouseClick(m_dialog->cmdOK, Qt::LeftButton);
    QVERIFY(box.seen);
    QCOMPARE(box.name, QStringLiteral("RunTimeError"));
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(Settings(), QByteArray("(missing)")); // Nothing is half written.
    m_dialog->lstLang->SelectRow(0);
    QTest::mouseClick(m_dialog->cmdOK, Qt::LeftButton);
    QVERIFY(Settings().contains("Language=Default"));
}

void FrmSettingsTest::EnglishCaptions() {
    QByteArray file("[Settings]\r\n");
    for (int key = 1; key <= 15; ++key)
        file += QByteArray::number(key) + "=t" + QByteArray::number(key) + "\r\n";
    Write(QStringLiteral("t.lng"), file);
    m_state.LanguageFile = m_state.AppPath + QStringLiteral("t.lng");
    Open();
    QCOMPARE(m_dialog->windowTitle(), QStringLiteral("Settings"));
    const auto caption = [this](const char* name) {
        return Find<QLabel>(QString::fromLatin1(name))->text();
    };
    QCOMPARE(m_dialog->Frame1->title(), QStringLiteral("t1"));
    QCOMPARE(m_dialog->Frame3->title(), QStringLiteral("t2"));
    QCOMPARE(m_dialog->Frame2->title(), QStringLiteral("Язык интерфейса/Interface language:"));
    for (std::size_t i = 0; i < 4; ++i)
        QCOMPARE(m_dialog->Options[i]->text(), QStringLiteral("t%1").arg(i + 3));
    QCOMPARE(m_dialog->Check1->text(), QStringLiteral("t7"));
    QCOMPARE(caption("Label1"), QStringLiteral("t8"));
    QCOMPARE(caption("Label3"), QStringLiteral("t9"));
    QCOMPARE(caption("Label4"), QStringLiteral("t10"));
    QCOMPARE(caption("Label5"), QStringLiteral("t11"));
    QCOMPARE(caption("Label6"), QStringLiteral("t12"));
    QCOMPARE(caption("Label2"), QStringLiteral("t13"));
    QCOMPARE(m_dialog->cmdCancel->text(), QStringLiteral("t15"));
    QCOMPARE(m_dialog->cmdOK->text(), QStringLiteral("OK"));
}

void FrmSettingsTest::MissingLanguageKeys() {
    Write(QStringLiteral("t.lng"), "");
    m_state.LanguageFile = m_state.AppPath + QStringLiteral("t.lng");
    Open();
    QCOMPARE(m_dialog->Frame1->title(), QStringLiteral("LANG FILE ERROR!"));
}

void FrmSettingsTest::TypedNotes() {
    Open();
    m_dialog->Options[3]->click();
    m_dialog->Text1[0]->clear();
    QTest::keyClicks(m_dialog->Text1[0], QStringLiteral("F"));
    QCOMPARE(m_dialog->Text1[0]->property("Tag").toString(), QStringLiteral("20"));
    QTest::mouseClick(m_dialog->cmdOK, Qt::LeftButton);
    QCOMPARE(m_handed->first.notes[0], QStringLiteral("F"));
}

void FrmSettingsTest::NothingIsClipped() {
    Open();
    for (const auto* control : m_dialog->findChildren<QWidget*>()) {
        const bool captioned = qobject_cast<const QAbstractButton*>(control) != nullptr ||
                               qobject_cast<const QLabel*>(control) != nullptr;
        if (captioned && control->isVisible())
            QVERIFY2(control->width() >= control->sizeHint().width(),
                     qPrintable(control->objectName()));
    }
    QVERIFY(m_dialog->width() <= 1000 && m_dialog->height() <= 560);
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    FrmSettingsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "frmsettings_test.moc"
