// Undo and redo in the main window: every command on neck, keys and lists comes back whole.
#include "controls/application.h"
#include "controls/colours.h"
#include "core/runtimeerror.h"
#include "support/mainwindow.h"

#include <QFile>
#include <QTemporaryDir>

using Command = std::function<void(MainWindow&)>;

class HistoryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_main = std::make_unique<MainWindow>(); }
    void cleanup() { m_main.reset(); }

    void EveryCommand_data();
    void EveryCommand();
    void NoStep_data();
    void NoStep();
    void TheWindowShowsWhatComesBack();
    void SavedColoursOfKeysComeBack();
    void AfterARunTimeError();
    void ADragIsOneStep();
    void ADragThatMovesNothingIsNone();
    void ANewStepForgetsWhatCouldBeRedone();
    void TwoHundredSteps();
    void NothingToUndoAtTheStart();
    void KeysUndoAndRedo();
    void ATextFieldTakesBackItsOwnText();
    void OtherStringsForgetEverything();
    void TheSameStringsForgetNothing();

private:
    void Key(Qt::KeyboardModifiers modifiers) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, modifiers);
    }

    std::unique_ptr<MainWindow> m_main;
};

void HistoryTest::EveryCommand_data() {
    QTest::addColumn<Command>("command");
    const auto row = [](const char* what, const Command& command) {
        QTest::newRow(what) << command;
    };
    row("root", [](MainWindow& main) { main.ClickRow(main.window.lstBase, 3); });
    row("type", [](MainWindow& main) { main.ClickRow(main.window.lstType, 7); });
    row("scale", [](MainWindow& main) { main.ClickRow(main.window.lstLad, 5); });
    row("search", [](MainWindow& main) {
        main.window.txtFind->setText(QStringLiteral("m7b5"));
        main.window.cmdFind->click();
    });
    row("naming the keys", [](MainWindow& main) {
        main.window.lstLad->SelectRow(0);
        main.window.cmdFindChord->click();
    });
    row("mark",
        [](MainWindow& main) { main.Click(main.board, FretboardLayout().MarkCentre(0, 3)); });
    row("clearing", [](MainWindow& main) {
        main.Click(main.board, FretboardLayout().MarkCentre(0, 3), Qt::RightButton);
    });
    row("mute", [](MainWindow& main) { main.window.Label6_MouseDown(2, Qt::RightButton); });
    row("next fret", [](MainWindow& main) { main.window.Label6_MouseDown(4, Qt::LeftButton); });
    row("barre", [](MainWindow& main) { main.window.cmdMakeBarre->click(); });
    row("barre by a fret number", [](MainWindow& main) { main.window.Label3_Click(4); });
    row("fret of the barre", [](MainWindow& main) { main.window.lstLadBarre->SelectRow(6); });
    row("strings of the barre", [](MainWindow& main) { main.window.lstBarre->SelectRow(2); });
    row("key", [](MainWindow& main) { main.window.Do([&] { main.workbench.ToggleKey(11); }); });
    row("clearing the keys", [](MainWindow& main) {
        main.Click(main.keyboard, {100, 100}, Qt::RightButton);
    });
    row("fingers to keys", [](MainWindow& main) {
        main.Click(main.board, FretboardLayout().MarkCentre(0, 3));
        main.window.Command2->click();
    });
    row("a name of the hand", [](MainWindow& main) {
        main.Click(main.board, FretboardLayout().MarkCentre(1, 3));
        main.window.lblSounds_Click(0);
    });
}

void HistoryTest::EveryCommand() {
    QFETCH(Command, command);
    Workbench start = m_main->workbench;
    command(*m_main);
    const Workbench end = m_main->workbench;
    QVERIFY(!(end == start));
    int steps = 0;
    while (!(m_main->workbench == start) && ++steps <= 2)
        m_main->window.Undo();
    QVERIFY(m_main->workbench == start);
    m_main->window.Redo();
    if (steps == 2)
        m_main->window.Redo();
    QVERIFY(m_main->workbench == end);
}

void HistoryTest::NoStep_data() {
    QTest::addColumn<Command>("command");
    const auto row = [](const char* what, const Command& command) {
        QTest::newRow(what) << command;
    };
    row("a command that changes nothing", [](MainWindow& main) { main.window.Command1->click(); });
    row("playback", [](MainWindow& main) { main.window.GoldButton1->click(); });
    row("the number of a string", [](MainWindow& main) { main.window.VScroll3->setValue(4); });
    row("rings", [](MainWindow& main) { main.window.cmdRings->click(); });
    row("a search for nothing", [](MainWindow& main) { main.window.txtFind->clear(); });
}

void HistoryTest::NoStep() {
    m_main->window.lstType->SelectRow(7);
    QFETCH(Command, command);
    command(*m_main);
    m_main->window.Undo();
    QCOMPARE(m_main->workbench.TypeRow(), 0);
}

void HistoryTest::TheWindowShowsWhatComesBack() {
    frmMain& window = m_main->window;
    window.Do([&] { m_main->workbench.ChooseChord(9, 1, {}); }); // Am
    window.Label6_MouseDown(5, Qt::RightButton);
    for (int row = 0; row < stringCount; ++row)
        m_main->Click(m_main->board, FretboardLayout().MarkCentre(row, 6));
    window.Do([&] { m_main->workbench.ChooseScale(3, QStringLiteral("scale")); });
    window.lstBarre->SelectRow(1);
    window.lstLadBarre->SelectRow(9);
    for (int step = 0; step < stringCount + 4; ++step)
        window.Undo();
    QCOMPARE(window.lstBase->Row(), 9);
    QCOMPARE(window.lstType->Row(), 1);
    QCOMPARE(window.lstLad->Row(), 0);
    QCOMPARE(window.lstBarre->currentIndex(), 5);
    QCOMPARE(window.lstLadBarre->currentIndex(), 0);
    QCOMPARE(window.lblChord->text(), QStringLiteral("Am"));
    QCOMPARE(window.lblChord->toolTip(), QStringLiteral("m, min, -, minor"));
    QCOMPARE(window.lblKeys->text(), QStringLiteral("A C E "));
    QVERIFY(m_main->workbench.Row(5).enabled);
    QCOMPARE(m_main->Text(QStringLiteral("Label4"), 1), QStringLiteral("C"));
    QCOMPARE(m_main->Pixel(m_main->board, FretboardLayout().MarkCentre(1, 1)), Colours::mark);
}

void HistoryTest::SavedColoursOfKeysComeBack() {
    frmMain& window = m_main->window;
    // A key marked twice keeps red for its own colour, so clearing leaves it red.
    m_main->workbench.ClearKeyMarks();
    window.Do([&] { m_main->workbench.ToggleKey(4); });
    window.Do([&] {
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("chords.dat")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("twice\r\n\r\ntw\r\n0");
        file.close();
        m_main->state.ChordTypes.AppendDataFile(file.fileName());
        m_main->workbench.ChooseType(50);
    });
    window.Do([&] { m_main->workbench.ClearKeyMarks(); });
    QVERIFY(m_main->workbench.Keys().IsMarked(0));
    window.Undo();
    window.Undo();
    window.Do([&] { m_main->workbench.ClearKeyMarks(); });
    QVERIFY(!m_main->workbench.Keys().IsMarked(0));
}

void HistoryTest::AfterARunTimeError() {
    const Workbench start = m_main->workbench;
    m_main->window.lstBase->SelectRow(4);
    QVERIFY_THROWS_EXCEPTION(RunTimeError, m_main->window.Do([&] {
        m_main->workbench.ToggleKey(1);
        m_main->workbench.ToggleKey(keyCount);
    }));
    QVERIFY(m_main->workbench.Keys().IsMarked(1));
    m_main->window.Undo();
    QVERIFY(!m_main->workbench.Keys().IsMarked(1));
    m_main->window.Undo();
    QVERIFY(m_main->workbench == start);
}

void HistoryTest::ADragIsOneStep() {
    m_main->window.cmdMakeBarre->click();
    const FretboardLayout layout;
    m_main->Press(m_main->board, {layout.FretMiddle(1), 30});
    for (int fret = 2; fret <= 6; ++fret)
        m_main->Move(m_main->board, {layout.FretMiddle(fret), 30});
    m_main->Release(m_main->board, {layout.FretMiddle(6), 30});
    QCOMPARE(m_main->workbench.ShownBarre()->fret, 6);
    m_main->window.Undo();
    QCOMPARE(m_main->workbench.ShownBarre()->fret, 1);
    m_main->window.Redo();
    QCOMPARE(m_main->workbench.ShownBarre()->fret, 6);
    m_main->window.lstLadBarre->SelectRow(7);
    m_main->window.Undo();
    QCOMPARE(m_main->workbench.ShownBarre()->fret, 6);
}

void HistoryTest::ADragThatMovesNothingIsNone() {
    m_main->window.cmdMakeBarre->click();
    const QPointF place(FretboardLayout().FretMiddle(1), 30);
    m_main->Click(m_main->board, place);
    m_main->window.Undo();
    QVERIFY(!m_main->workbench.ShownBarre());
}

void HistoryTest::ANewStepForgetsWhatCouldBeRedone() {
    m_main->window.lstBase->SelectRow(4);
    m_main->window.Undo();
    m_main->window.lstBase->SelectRow(7);
    m_main->window.Redo();
    QCOMPARE(m_main->window.lstBase->Row(), 7);
}

void HistoryTest::TwoHundredSteps() {
    for (int step = 1; step <= 201; ++step)
        m_main->window.lstBase->SelectRow(step % notesPerOctave);
    for (int step = 0; step < 300; ++step)
        m_main->window.Undo();
    QCOMPARE(m_main->window.lstBase->Row(), 1);
    for (int step = 0; step < 300; ++step)
        m_main->window.Redo();
    QCOMPARE(m_main->window.lstBase->Row(), 201 % notesPerOctave);
}

void HistoryTest::NothingToUndoAtTheStart() {
    const Workbench start = m_main->workbench;
    m_main->window.Undo();
    m_main->window.Redo();
    QVERIFY(m_main->workbench == start);
}

void HistoryTest::KeysUndoAndRedo() {
    m_main->window.lstBase->setFocus();
    m_main->window.lstBase->SelectRow(4);
    Key(Qt::ControlModifier);
    QCOMPARE(m_main->window.lstBase->Row(), 0);
    Key(Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(m_main->window.lstBase->Row(), 4);
}

void HistoryTest::ATextFieldTakesBackItsOwnText() {
    m_main->window.lstBase->SelectRow(4);
    QLineEdit* field = m_main->window.txtStr;
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("5"));
    Key(Qt::ControlModifier);
    QCOMPARE(field->text(), QStringLiteral("1"));
    Key(Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(field->text(), QStringLiteral("5"));
    QCOMPARE(m_main->window.lstBase->Row(), 4);
}

void HistoryTest::OtherStringsForgetEverything() {
    m_main->window.lstBase->SelectRow(4);
    m_main->window.lstBase->SelectRow(5);
    m_main->window.Undo();
    OpenStrings dropped = standardStrings;
    dropped.notes[5] = QStringLiteral("D");
    LayStrings(m_main->state, dropped, true);
    m_main->window.StringsChanged();
    m_main->window.Undo();
    QCOMPARE(m_main->window.lstBase->Row(), 4);
    m_main->window.Redo();
    QCOMPARE(m_main->window.lstBase->Row(), 4);
}

void HistoryTest::TheSameStringsForgetNothing() {
    m_main->window.lstBase->SelectRow(4);
    LayStrings(m_main->state, standardStrings, true);
    m_main->window.StringsChanged();
    m_main->window.Undo();
    QCOMPARE(m_main->window.lstBase->Row(), 0);
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    HistoryTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "history_test.moc"
