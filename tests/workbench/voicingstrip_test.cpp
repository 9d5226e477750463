// The strip of diagrams in the main window, by mouse and keys.
#include "controls/application.h"
#include "support/mainwindow.h"

#include <QContextMenuEvent>
#include <QLayout>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>

class VoicingStripTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_main = std::make_unique<MainWindow>(); }
    void cleanup() { m_main.reset(); }

    void ShowsTheChordsVoicings();
    void FollowsTheMarkedKeys();
    void FollowsTheTuning();
    void NeckIsTheCurrentRow();
    void AnotherChordBeginsWithTheUsualOnes();
    void ClickLays();
    void DoubleClickStrums();
    void EnterLaysTheCurrentRow();
    void ArrowsGoToTheNeck();
    void NextAndPrevious();
    void OpensTheWindow();
    void CommandKeysWorkInTheWindowBeside();
    void Menu();
    void CtrlCCopiesTheCurrentDiagram();
    void ToolTipAndName();
    void WhyItIsEmpty();
    void MirroredWithTheNeck();
    void FingerNumbersLeaveTheCentres();
    void StandsWhereThereIsRoom();
    void GoesBeforeTheNeckShrinks();

private:
    VoicingList& Strip() { return *m_main->window.lstVoicings; }
    QString Text(int row, int role = Qt::DisplayRole) {
        return Strip().model()->index(row, 0).data(role).toString();
    }
    QString Neck() { return FretsText(m_main->workbench.NeckShape()); }
    QPoint Place(int row) { return Strip().visualRect(Strip().model()->index(row, 0)).center(); }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    std::unique_ptr<MainWindow> m_main;
};

void VoicingStripTest::ShowsTheChordsVoicings() {
    QCOMPARE(Text(0), QStringLiteral("x32010"));
    QCOMPARE(Text(0, Qt::UserRole), QStringLiteral("032010"));
    QCOMPARE(Strip().model()->rowCount(), 706);
    QVERIFY(m_main->Text(QStringLiteral("lblVoicings")).contains(QStringLiteral("706")));
    m_main->window.lstType->SelectRow(1);
    QCOMPARE(Text(0), QStringLiteral("x35543"));
    m_main->window.lstBase->SelectRow(4);
    QCOMPARE(Text(0), QStringLiteral("022000"));
    Key(Qt::Key_Down, Qt::AltModifier);
    QVERIFY(Text(0) != QStringLiteral("022000"));
}

void VoicingStripTest::FollowsTheMarkedKeys() {
    m_main->workbench.ClearKeyMarks();
    for (const int key : {9, 12, 16}) // A C E.
        m_main->workbench.ToggleKey(key);
    m_main->window.ShowState();
    QCOMPARE(Text(0), QStringLiteral("x02210"));
    m_main->workbench.ReadFretboard(); // The strings sound C: its notes, from the lowest key.
    m_main->window.ShowState();
    QCOMPARE(Text(0), QStringLiteral("x32010"));
}

void VoicingStripTest::FollowsTheTuning() {
    OpenStrings strings = standardStrings;
    strings.notes[5] = QStringLiteral("D");
    strings.soundNumbers[5] = QStringLiteral("46");
    LayStrings(m_main->state, strings, true);
    m_main->workbench.StringsChanged();
    m_main->window.lstBase->SelectRow(2);
    QCOMPARE(Text(0), QStringLiteral("000232"));
}

void VoicingStripTest::NeckIsTheCurrentRow() {
    QCOMPARE(Text(Strip().CurrentRow()), Neck());
    QCOMPARE(Strip().horizontalScrollBar()->value(), 0); // The usual ones stay in view.
    m_main->workbench.PressString(5, 1);
    m_main->window.ShowState();
    QCOMPARE(Strip().CurrentRow(), -1);
}

void VoicingStripTest::AnotherChordBeginsWithTheUsualOnes() {
    const auto place = [this] {
        return Strip().horizontalScrollBar()->value() + Strip().verticalScrollBar()->value();
    };
    Strip().BringIntoView(Strip().Rows().rowCount() - 1);
    QVERIFY(place() > 0);
    m_main->window.lstBase->SelectRow(2);
    QCoreApplication::processEvents();
    QCOMPARE(place(), 0);
}

void VoicingStripTest::ClickLays() {
    QTest::mouseClick(Strip().viewport(), Qt::LeftButton, {}, Place(1));
    QCOMPARE(Neck(), Text(1));
    QCOMPARE(Strip().CurrentRow(), 1);
    m_main->workbench.PressString(0, 5);
    QTest::mouseClick(Strip().viewport(), Qt::LeftButton, {}, Place(1)); // The current row again.
    QCOMPARE(Neck(), Text(1));
    const auto& window = m_main->window;
    QCOMPARE(window.lstBase->Row(), 0);
    QCOMPARE(window.lblChord->text(), QStringLiteral("C"));
}

void VoicingStripTest::DoubleClickStrums() {
    QTest::mouseDClick(Strip().viewport(), Qt::LeftButton, {}, Place(0));
    QCOMPARE(Neck(), QStringLiteral("x32010"));
    QCOMPARE(m_main->midi.strums, 1);
    QCOMPARE(m_main->midi.strummed.size(), 5); // String 6 is muted.
}

void VoicingStripTest::EnterLaysTheCurrentRow() {
    Strip().setFocus();
    Key(Qt::Key_Home);
    QCOMPARE(Strip().CurrentRow(), 0);
    QVERIFY(Neck() != Text(0));
    Key(Qt::Key_Return);
    QCOMPARE(Neck(), Text(0));
}

void VoicingStripTest::ArrowsGoToTheNeck() {
    Strip().setFocus();
    const int row = Strip().CurrentRow();
    Key(Qt::Key_Right);
    QCOMPARE(QApplication::focusWidget(), m_main->board);
    QCOMPARE(Strip().CurrentRow(), row);
}

void VoicingStripTest::NextAndPrevious() {
    m_main->window.lstVoicings_Click(0);
    m_main->window.txtFind->setFocus();
    Key(Qt::Key_PageUp, Qt::ControlModifier);
    QCOMPARE(Neck(), Text(0));
    for (int row = 1; row <= 20; ++row) {
        Key(Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(Neck(), Text(row));
        QVERIFY(Strip().viewport()->rect().contains(Place(row)));
    }
    Key(Qt::Key_PageUp, Qt::ControlModifier);
    QCOMPARE(Neck(), Text(19));
    m_main->workbench.LayShape(*ReadShape(u"111111")); // None of the list: the first is next.
    m_main->window.ShowState();
    Key(Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(Neck(), Text(0));
}

void VoicingStripTest::OpensTheWindow() {
    const QSignalSpy asked(&m_main->window, &frmMain::VoicingsAsked);
    Key(Qt::Key_F11);
    m_main->window.cmdVoicings->click();
    QCOMPARE(asked.count(), 2);
}

void VoicingStripTest::CommandKeysWorkInTheWindowBeside() {
    QWidget beside;
    beside.setFocusPolicy(Qt::StrongFocus);
    m_main->window.TakeKeysOf(&beside);
    beside.show();
    QVERIFY(QTest::qWaitForWindowActive(&beside));
    m_main->window.lstVoicings_Click(0);
    QTest::keyClick(&beside, Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(Neck(), Text(1));
    QTest::keyClick(&beside, Qt::Key_Down, Qt::ControlModifier);
    QCOMPARE(m_main->window.lstBase->Row(), 1);
    m_main->window.lstVoicings->setFocus();
    QTest::keyClick(&beside, Qt::Key_Right); // A plain arrow is that window's own.
    QVERIFY(!m_main->board->hasFocus());
}

void VoicingStripTest::Menu() {
    const QSignalSpy added(&m_main->window, &frmMain::AddToSheetAsked);
    QContextMenuEvent event(QContextMenuEvent::Mouse, Place(2), QPoint());
    const auto choose = [&](int action) {
        QCoreApplication::sendEvent(Strip().viewport(), &event);
        auto* menu = Strip().findChild<QMenu*>();
        QVERIFY(menu != nullptr);
        menu->actions().at(action)->trigger();
        delete menu;
    };
    const QString shape = Text(2);
    choose(0);
    QCOMPARE(Neck(), shape);
    QCOMPARE(m_main->midi.strums, 0);
    choose(1);
    QCOMPARE(m_main->midi.strums, 1);
    choose(2);
    QCOMPARE(added.count(), 1);
    const QSignalSpy copied(&m_main->window, &frmMain::CopyAsked);
    const QSignalSpy saved(&m_main->window, &frmMain::SaveAsked);
    choose(3);
    choose(4);
    for (const QSignalSpy* asked : {&copied, &saved}) {
        QCOMPARE(asked->count(), 1);
        const auto diagram = asked->at(0).at(0).value<Diagram>();
        QCOMPARE(diagram.name, QStringLiteral("C"));
        QCOMPARE(FretsText(diagram.shape), shape);
    }
}

void VoicingStripTest::CtrlCCopiesTheCurrentDiagram() {
    const QSignalSpy copied(&m_main->window, &frmMain::CopyAsked);
    m_main->workbench.ClearKeyMarks(); // Without a chord that is chosen, named by its notes.
    for (const int key : {9, 12, 16})
        m_main->workbench.ToggleKey(key);
    m_main->window.ShowState();
    Strip().setFocus();
    Key(Qt::Key_Home);
    Key(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(copied.count(), 1);
    QCOMPARE(copied[0][0].value<Diagram>().name, QStringLiteral("Am"));
}

void VoicingStripTest::ToolTipAndName() {
    const QString words = Text(0, Qt::AccessibleTextRole);
    QVERIFY(words.startsWith(QStringLiteral("C, x32010: струна 6 не звучит, струна 5 третий лад")));
    QCOMPARE(Text(0, Qt::ToolTipRole), words);
    m_main->state.LanguageFile = QStringLiteral("english.lng");
    m_main->window.ShowState();
    QVERIFY(Text(0, Qt::AccessibleTextRole).contains(QStringLiteral("third fret, ring finger")));
}

void VoicingStripTest::WhyItIsEmpty() {
    const QString count = m_main->Text(QStringLiteral("lblVoicings"));
    m_main->workbench.ClearKeyMarks();
    m_main->window.ShowState();
    QCOMPARE(Strip().model()->rowCount(), 0);
    const QString noKeys = m_main->Text(QStringLiteral("lblVoicings"));
    for (int key = 0; key < notesPerOctave; ++key)
        m_main->workbench.ToggleKey(key);
    m_main->window.ShowState();
    const QString tooMany = m_main->Text(QStringLiteral("lblVoicings"));
    QVERIFY(noKeys != count && tooMany != count && noKeys != tooMany && !noKeys.isEmpty());
}

void VoicingStripTest::MirroredWithTheNeck() {
    const QImage before = Strip().viewport()->grab().toImage();
    m_main->state.LeftHanded = true;
    m_main->window.ShowState();
    QCOMPARE(Text(0), QStringLiteral("x32010"));
    QVERIFY(Strip().viewport()->grab().toImage() != before);
}

void VoicingStripTest::FingerNumbersLeaveTheCentres() {
    const double scale = m_main->board->Scale();
    const auto check = [&](QPointF centre) {
        const QImage image = m_main->board->grab().toImage();
        const QPoint middle = (centre * scale).toPoint();
        for (int dx = -1; dx <= 1; ++dx)
            for (int dy = -1; dy <= 1; ++dy)
                QCOMPARE(image.pixelColor(middle + QPoint(dx, dy)), QColor(255, 0, 0));
        int white = 0;
        for (int dx = 2; dx < 8 * scale * 15; ++dx)
            for (int dy = -5; dy <= 5; ++dy)
                white += image.pixelColor(middle + QPoint(dx, dy)).green() > 200 ? 1 : 0;
        QVERIFY2(white > 0, "a number stands beside it");
    };
    m_main->window.lstVoicings_Click(0);
    const FretboardLayout layout;
    check(layout.MarkCentre(1, 1)); // String 2.
    check(layout.MarkCentre(4, 3));
    m_main->window.lstBase->SelectRow(5); // F: a barre.
    m_main->window.lstVoicings_Click(0);
    QCOMPARE(Neck(), QStringLiteral("133211"));
    check(layout.MarkCentre(0, 1));
}

void VoicingStripTest::StandsWhereThereIsRoom() {
    // The test's screen has room: the strip stands, and nothing overlaps it.
    QVERIFY(Strip().isVisible());
    const auto& window = m_main->window;
    QVERIFY(window.panel->geometry().bottom() < Strip().geometry().top());
    QVERIFY(Strip().geometry().bottom() < window.lblKeys->mapTo(&window, QPoint()).y());
    QVERIFY(window.layout()->totalMinimumSize().height() <= 768);
    QVERIFY(window.layout()->totalMinimumSize().width() <= 1024);
}

void VoicingStripTest::GoesBeforeTheNeckShrinks() {
    frmMain& window = m_main->window;
    const int needed = window.layout()->totalMinimumSize().height();
    const QSize screen(1024, needed);
    window.OpenAtBestSize(screen);
    QVERIFY(Strip().isVisible());
    const double neck = m_main->board->Scale();
    window.OpenAtBestSize(screen - QSize(0, 1));
    for (const QWidget* gone :
         {static_cast<QWidget*>(&Strip()), static_cast<QWidget*>(window.lblVoicings),
          static_cast<QWidget*>(window.cmdVoicings), static_cast<QWidget*>(window.cmdAddDiag)})
        QVERIFY2(!gone->isVisible(), qPrintable(gone->objectName()));
    QVERIFY(window.layout()->totalMinimumSize().height() < needed);
    QVERIFY(m_main->board->Scale() >= neck);
    window.OpenAtBestSize(screen);
    QVERIFY2(Strip().isVisible(), "it comes back where there is room");
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    VoicingStripTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "voicingstrip_test.moc"
