// The key table, by real key events sent to whichever control has the focus.
#include "controls/application.h"
#include "support/dialogs.h"
#include "support/mainwindow.h"

#include <QSignalSpy>

class KeysTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_main = std::make_unique<MainWindow>(); }
    void cleanup() { m_main.reset(); }

    void FunctionKeys();
    void FunctionKeysWithAnyModifier();
    void F3NeedsShiftAlone();
    void SoundKeys();
    void WindowKeys();
    void RootsByArrow();
    void TypesByArrow();
    void StringByArrow();
    void BarreFretByArrow();
    void PlainArrowsMoveTheFocus_data();
    void PlainArrowsMoveTheFocus();
    void CombinedModifiersMatchNothing();
    void OtherKeysReachTheirControl();
    void LettersSearchTheLists();
    void EnterFinds();
    void ButtonsOpenTheWindows();
    void TabReachesEveryControl();

private:
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    std::unique_ptr<MainWindow> m_main;
};

void KeysTest::FunctionKeys() {
    m_main->window.lstType->setFocus();
    Key(Qt::Key_F2);
    QVERIFY(m_main->workbench.ShownBarre());
    Key(Qt::Key_F2);
    QVERIFY(!m_main->workbench.ShownBarre());
    m_main->window.txtStr->setText(QStringLiteral("5"));
    Key(Qt::Key_F4);
    QCOMPARE(m_main->workbench.Row(4).mark, std::optional(7));
    Key(Qt::Key_F8);
    QCOMPARE(m_main->workbench.Row(4).mark, std::optional(3));
    m_main->window.lstLad->SelectRow(0);
    Key(Qt::Key_F9);
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QStringLiteral("D E G A B "));
}

void KeysTest::FunctionKeysWithAnyModifier() {
    m_main->window.lstBarre->setFocus();
    Key(Qt::Key_F2, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(m_main->workbench.ShownBarre());
    Key(Qt::Key_F2, Qt::AltModifier);
    QVERIFY(!m_main->workbench.ShownBarre());
}

void KeysTest::F3NeedsShiftAlone() {
    m_main->window.txtFind->setFocus();
    m_main->window.txtFind->setText(QStringLiteral("dim"));
    m_main->window.lstLad->SelectRow(0);
    Key(Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(m_main->Text(QStringLiteral("lblChord")), QStringLiteral("---"));
    Key(Qt::Key_F3);
    QCOMPARE(m_main->Text(QStringLiteral("lblChord")), QStringLiteral("Cdim"));
    m_main->window.txtFind->setText(QStringLiteral("aug"));
    Key(Qt::Key_F3, Qt::ControlModifier);
    QCOMPARE(m_main->Text(QStringLiteral("lblChord")), QStringLiteral("Caug"));
    m_main->window.txtFind->setText(QStringLiteral("7"));
    Key(Qt::Key_F3, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(m_main->Text(QStringLiteral("lblChord")), QStringLiteral("C7"));
}

void KeysTest::SoundKeys() {
    m_main->window.lstWhat->setFocus();
    Key(Qt::Key_F5);
    QCOMPARE(m_main->midi.played.join(u' '), QStringLiteral("keys/0.mid keys/4.mid keys/7.mid"));
    m_main->midi.played.clear();
    Key(Qt::Key_F6);
    QCOMPARE(m_main->midi.played.size(), 6);
    QCOMPARE(m_main->midi.played[1], QStringLiteral("strings/36.mid"));
    for (const int pace : {0, 1}) // A whole second a note, then half a one.
        for (const Qt::Key key : {Qt::Key_F5, Qt::Key_F6}) {
            m_main->window.lstWhat->SelectRow(pace);
            m_main->midi.times.clear();
            Key(key);
            QCOMPARE(m_main->midi.times[1] - m_main->midi.times[0], pace == 0 ? 1.0 : 0.5);
        }
    m_main->midi.played.clear();
    m_main->window.lstTemp->SelectRow(1);
    m_main->clock.onWait = [this] {
        if (m_main->midi.played.size() == 4)
            Key(Qt::Key_F7);
    };
    Key(Qt::Key_F5);
    QCOMPARE(m_main->midi.played.size(), 6);
}

void KeysTest::WindowKeys() {
    QSignalSpy help(&m_main->window, &frmMain::HelpAsked);
    QSignalSpy settings(&m_main->window, &frmMain::SettingsAsked);
    Key(Qt::Key_F1);
    QCOMPARE(help.size(), 1);
    QCOMPARE(help.first().first().toBool(), false);
    Key(Qt::Key_F10);
    QCOMPARE(settings.size(), 1);
}

void KeysTest::RootsByArrow() {
    m_main->window.lstType->setFocus();
    Key(Qt::Key_Up, Qt::ControlModifier);
    QCOMPARE(m_main->window.lstBase->Row(), 0);
    Key(Qt::Key_Down, Qt::ControlModifier);
    QCOMPARE(m_main->Text(QStringLiteral("lblChord")), QStringLiteral("C#"));
    for (int i = 0; i < 20; ++i)
        Key(Qt::Key_Down, Qt::ControlModifier);
    QCOMPARE(m_main->window.lstBase->Row(), 11);
    Key(Qt::Key_Up, Qt::ControlModifier);
    QCOMPARE(m_main->Text(QStringLiteral("lblChord")), QStringLiteral("A#"));
}

void KeysTest::TypesByArrow() {
    Key(Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(m_main->window.lstType->Row(), 0);
    Key(Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(m_main->Text(QStringLiteral("lblChord")), QStringLiteral("Cm"));
    for (int i = 0; i < 60; ++i)
        Key(Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(m_main->window.lstType->Row(), 49);
    Key(Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(m_main->window.lstType->Row(), 48);
}

void KeysTest::StringByArrow() {
    m_main->window.txtStr->setFocus();
    Key(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(m_main->window.txtStr->text(), QStringLiteral("1"));
    m_main->window.txtStr->setText(QStringLiteral("5"));
    Key(Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(m_main->window.txtStr->text(), QStringLiteral("6"));
    Key(Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(m_main->window.txtStr->text(), QStringLiteral("6"));
    Key(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(m_main->window.txtStr->text(), QStringLiteral("5"));
    m_main->window.txtStr->setText(QStringLiteral("2.5"));
    Key(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(m_main->window.txtStr->text(), QStringLiteral("1.5"));
    m_main->window.txtStr->setText(QStringLiteral("abc"));
    Key(Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(m_main->window.txtStr->text(), QStringLiteral("1"));
}

void KeysTest::BarreFretByArrow() {
    m_main->window.lstLadBarre->setFocus();
    Key(Qt::Key_Left, Qt::ShiftModifier);
    QCOMPARE(m_main->window.lstLadBarre->currentIndex(), 0);
    m_main->window.cmdMakeBarre_Click();
    Key(Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(m_main->workbench.ShownBarre()->fret, 2); // The barre moves.
    for (int i = 0; i < 20; ++i)
        Key(Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(m_main->window.lstLadBarre->currentIndex(), 14);
    Key(Qt::Key_Left, Qt::ShiftModifier);
    QCOMPARE(m_main->window.lstLadBarre->currentIndex(), 13);
}

void KeysTest::PlainArrowsMoveTheFocus_data() {
    QTest::addColumn<QString>("from");
    QTest::addColumn<int>("key");
    for (const auto& from :
         QStringList{QStringLiteral("lstBase"), QStringLiteral("lstType"), QStringLiteral("lstLad"),
                     QStringLiteral("lstBarre"), QStringLiteral("lstWhat"),
                     QStringLiteral("txtFind"), QStringLiteral("VScroll3"),
                     QStringLiteral("cmdFindNew"), QStringLiteral("picKeyboard")})
        for (const int key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right})
            QTest::addRow("%s %d", qPrintable(from), key) << from << key;
}

void KeysTest::PlainArrowsMoveTheFocus() {
    QFETCH(const QString, from);
    QFETCH(const int, key);
    m_main->window.lstType->SelectRow(5);
    m_main->window.lstBase->SelectRow(5);
    const QString chord = m_main->Text(QStringLiteral("lblChord"));
    m_main->Find(from)->setFocus();
    Key(static_cast<Qt::Key>(key));
    QVERIFY(m_main->board->hasFocus());
    QCOMPARE(m_main->window.lstType->Row(), 5);
    QCOMPARE(m_main->window.lstBase->Row(), 5);
    QCOMPARE(m_main->window.lstLad->Row(), 0);
    QCOMPARE(m_main->window.lstBarre->currentIndex(), 5);
    QCOMPARE(m_main->window.lstWhat->currentIndex(), 1);
    QCOMPARE(m_main->window.VScroll3->value(), 1);
    QCOMPARE(m_main->Text(QStringLiteral("lblChord")), chord);
}

void KeysTest::CombinedModifiersMatchNothing() {
    m_main->window.lstBase->setFocus();
    Key(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    Key(Qt::Key_Down, Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(m_main->window.lstBase->Row(), 0);
    QCOMPARE(m_main->window.lstType->Row(), 0);
    QCOMPARE(m_main->window.txtStr->text(), QStringLiteral("1"));
    QVERIFY(m_main->board->hasFocus());
}

void KeysTest::OtherKeysReachTheirControl() {
    m_main->window.txtFind->setFocus();
    m_main->window.txtFind->clear();
    QTest::keyClicks(m_main->window.txtFind, QStringLiteral("m7"));
    QCOMPARE(m_main->window.txtFind->text(), QStringLiteral("m7"));
}

void KeysTest::LettersSearchTheLists() {
    m_main->window.lstLad->setFocus();
    QApplication::setKeyboardInputInterval(3'600'000); // However slowly the test types.
    QTest::keyClicks(m_main->window.lstLad, QStringLiteral("pel"));
    QCOMPARE(m_main->window.lstLad->RowText(m_main->window.lstLad->Row()), QStringLiteral("Pelog"));
    QCOMPARE(m_main->Text(QStringLiteral("lblChord")), QStringLiteral("C Pelog"));
    Key(Qt::Key_End);
    QCOMPARE(m_main->Text(QStringLiteral("lblChord")), QStringLiteral("C Minor"));
}

void KeysTest::EnterFinds() {
    m_main->window.txtFind->setFocus();
    m_main->window.txtFind->setText(QStringLiteral("m7b5"));
    Key(Qt::Key_Return);
    QCOMPARE(m_main->Text(QStringLiteral("lblChord")), QStringLiteral("Cm7b5"));
}

void KeysTest::ButtonsOpenTheWindows() {
    QSignalSpy help(&m_main->window, &frmMain::HelpAsked);
    QSignalSpy settings(&m_main->window, &frmMain::SettingsAsked);
    QSignalSpy diagrams(&m_main->window, &frmMain::DiagramsAsked);
    QTest::mouseClick(m_main->window.cmdHelp, Qt::LeftButton);
    QTest::mouseClick(m_main->window.cmdSettings, Qt::LeftButton);
    QTest::mouseClick(m_main->window.cmdNewDiag, Qt::LeftButton);
    QCOMPARE(help.first().first().toBool(), true);
    QCOMPARE(settings.size(), 1);
    QCOMPARE(diagrams.size(), 1);
}

void KeysTest::TabReachesEveryControl() {
    m_main->window.lstBase->setFocus();
    QStringList reached;
    for (int i = 0; i < 40; ++i) {
        reached += QApplication::focusWidget()->objectName();
        Key(Qt::Key_Tab);
    }
    for (const char* name :
         {"lstBase",      "lstType",     "lstLad",       "txtFind",  "cmdFind",
          "cmdFindChord", "picStrings",  "picKeyboard",  "txtStr",   "cmdFindNew",
          "Command1",     "Command2",    "cmdMakeBarre", "lstBarre", "lstLadBarre",
          "GoldButton1",  "GoldButton2", "GoldButton3",  "lstWhat",  "lstTemp",
          "cmdNewDiag",   "cmdSettings", "cmdHelp"})
        QVERIFY2(reached.contains(QString::fromLatin1(name)), name);
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    KeysTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "keys_test.moc"
