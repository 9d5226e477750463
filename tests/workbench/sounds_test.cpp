// The line at the neck that names what the strings sound.
#include "controls/application.h"
#include "support/mainwindow.h"

#include <QFile>
#include <QTemporaryDir>

class SoundsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_main = std::make_unique<MainWindow>(); }
    void cleanup() { m_main.reset(); }

    void FretByFret_data();
    void FretByFret();
    void MutesBarreAndTuning();
    void TheBarreAlone();
    void OctavesOfTheSoundNumbers();
    void AStringThatNamesNoNote();
    void AllMuted();
    void NoMoreThanFour();
    void AnIntervalsWord();
    void TheChosenNameFirst();
    void AClickChooses();
    void ADoubleClickChoosesOnce();
    void EnterChooses();
    void ANameThatTheCatalogueLacks();
    void ChoosingIsOneStep();
    void ChoosingHidesTheRings();
    void NamesOfAFile();

private:
    void Mute(int string) { m_main->window.Label6_MouseDown(string - 1, Qt::RightButton); }
    void Clear() {
        m_main->Click(m_main->board, FretboardLayout().MarkCentre(0, 15), Qt::RightButton);
    }
    void Stop(int string, int fret) {
        m_main->Click(m_main->board, FretboardLayout().MarkCentre(string - 1, fret));
    }

    // Puts the hand as a text has it, string 6 to string 1.
    void Lay(const QString& shape);

    QString Names() { return m_main->window.lblSounds->text(); }
    QPoint Middle(std::size_t name) { return m_main->window.lblSounds->RectOf(name).center(); }

    std::unique_ptr<MainWindow> m_main;
};

void SoundsTest::Lay(const QString& shape) {
    Clear();
    const Shape hand = ReadShape(shape).value();
    for (int string = stringCount; string >= 1; --string) {
        if (m_main->workbench.Row(string - 1).enabled != hand.Sounds(string))
            Mute(string);
        if (hand.Fret(string) > 0)
            Stop(string, hand.Fret(string));
    }
}

void SoundsTest::FretByFret_data() {
    QTest::addColumn<QString>("shape");
    QTest::addColumn<QString>("name");
    const auto row = [](const char* shape, const char* name) {
        QTest::newRow(name) << QString::fromLatin1(shape) << QString::fromLatin1(name);
    };
    row("x32010", "C");
    row("x02220", "A");
    row("320003", "G");
    row("022100", "E");
    row("xx0232", "D");
    row("x02210", "Am");
    row("022000", "Em");
    row("xx0231", "Dm");
    row("133211", "F");
    row("x21202", "B7");
    row("320001", "G7");
    row("x32310", "C7");
    row("xx0212", "D7");
    row("020100", "E7");
    row("x02020", "A7");
}

void SoundsTest::FretByFret() {
    QFETCH(QString, shape);
    Lay(shape);
    QTEST(Names().section(QStringLiteral(" · "), 0, 0), "name");
}

void SoundsTest::MutesBarreAndTuning() {
    QCOMPARE(Names(), QStringLiteral("C/E"));
    Mute(6);
    QCOMPARE(Names(), QStringLiteral("C"));
    Clear();
    Mute(6);
    m_main->window.lstLad->SelectRow(0);
    m_main->workbench.ClearKeyMarks();
    m_main->window.ShowState();
    QVERIFY(Names().startsWith(QStringLiteral("Em11")));
    OpenStrings openG = standardStrings;
    openG.notes = {QStringLiteral("D"), QStringLiteral("B"), QStringLiteral("G"),
                   QStringLiteral("D"), QStringLiteral("G"), QStringLiteral("D")};
    openG.soundNumbers = {QString(), QString(), QString(), QString(), QString(), QString()};
    LayStrings(m_main->state, openG, true);
    m_main->window.StringsChanged();
    QVERIFY(Names().startsWith(QStringLiteral("G/D")));
}

void SoundsTest::TheBarreAlone() {
    m_main->workbench.ClearKeyMarks();
    Clear();
    m_main->window.Label3_Click(4);
    QVERIFY(Names().startsWith(QStringLiteral("Am11")));
}

void SoundsTest::OctavesOfTheSoundNumbers() {
    Lay(QStringLiteral("xx2010"));
    QVERIFY(Names().startsWith(QStringLiteral("C/E")));
    // String 2 an octave lower: its C is the bass.
    m_main->state.SoundNumbers[1] = QString::number(84 - 59 + 12);
    m_main->window.ShowState();
    QCOMPARE(Names(), QStringLiteral("C"));
}

void SoundsTest::AStringThatNamesNoNote() {
    Lay(QStringLiteral("032010"));
    QCOMPARE(Names(), QStringLiteral("C/E"));
    m_main->state.StringNotes[5] = QStringLiteral("H");
    m_main->window.StringsChanged();
    QCOMPARE(Names(), QStringLiteral("C"));
}

void SoundsTest::AllMuted() {
    for (int string = 1; string <= stringCount; ++string)
        Mute(string);
    QCOMPARE(Names(), QString());
    QCOMPARE(m_main->window.lblSounds->focusPolicy(), Qt::NoFocus);
}

void SoundsTest::NoMoreThanFour() {
    Lay(QStringLiteral("000000"));
    QCOMPARE(Names().count(QStringLiteral(" · ")), 3);
}

void SoundsTest::AnIntervalsWord() {
    Lay(QStringLiteral("x32xxx"));
    QCOMPARE(Names(), QStringLiteral("C–E"));
    QCOMPARE(m_main->window.lblSounds->toolTip(), QStringLiteral("большая терция"));
    m_main->state.LanguageFile = QStringLiteral("some.lng");
    m_main->window.ShowState();
    QCOMPARE(m_main->window.lblSounds->toolTip(), QStringLiteral("major third"));
    Lay(QStringLiteral("x32010"));
    QCOMPARE(m_main->window.lblSounds->toolTip(), QString());
}

void SoundsTest::TheChosenNameFirst() {
    Lay(QStringLiteral("x02213"));
    QCOMPARE(Names(), QStringLiteral("Am7 · C6/A"));
    m_main->window.lstType->SelectRow(8); // 6
    Lay(QStringLiteral("x02213"));
    QCOMPARE(Names(), QStringLiteral("C6/A · Am7"));
}

void SoundsTest::AClickChooses() {
    Lay(QStringLiteral("x02213"));
    const Shape hand = m_main->workbench.NeckShape();
    QTest::mouseClick(m_main->window.lblSounds, Qt::LeftButton, {}, Middle(0));
    QCOMPARE(m_main->window.lstBase->Row(), 9);
    QCOMPARE(m_main->window.lstType->Row(), 7); // m7
    QCOMPARE(m_main->window.lblChord->text(), QStringLiteral("Am7"));
    QCOMPARE(m_main->window.lblChord->toolTip(), QStringLiteral("Малый минорный септаккорд"));
    QCOMPARE(m_main->window.lblKeys->text(), QStringLiteral("A C E G "));
    QCOMPARE(m_main->workbench.Keys().Marked(), (std::vector<int>{9, 12, 16, 19}));
    QCOMPARE(m_main->workbench.NeckShape(), hand);
    QTest::mouseClick(m_main->window.lblSounds, Qt::RightButton, {}, Middle(1));
    QCOMPARE(m_main->window.lblChord->text(), QStringLiteral("Am7"));
    QTest::mouseClick(m_main->window.lblSounds, Qt::LeftButton, {}, Middle(1));
    QCOMPARE(m_main->window.lblChord->text(), QStringLiteral("C6"));
}

void SoundsTest::ADoubleClickChoosesOnce() {
    Lay(QStringLiteral("x02213"));
    QWidget* label = m_main->window.lblSounds;
    const QPointF place = Middle(1);
    QTest::mouseClick(label, Qt::LeftButton, {}, place.toPoint());
    QMouseEvent second(QEvent::MouseButtonDblClick, place, label->mapToGlobal(place),
                       Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(label, &second);
    QCOMPARE(Names(), QStringLiteral("C6/A · Am7")); // Am7 lies under the second press.
}

void SoundsTest::EnterChooses() {
    Lay(QStringLiteral("x02213"));
    QWidget* label = m_main->window.lblSounds;
    m_main->window.lblSounds->setFocus(Qt::TabFocusReason);
    QCOMPARE(label->accessibleDescription(), QStringLiteral("Am7"));
    QTest::keyClick(label, Qt::Key_Tab);
    QVERIFY(label->hasFocus());
    QCOMPARE(label->accessibleDescription(), QStringLiteral("C6/A"));
    QTest::keyClick(label, Qt::Key_Return);
    QCOMPARE(m_main->window.lblChord->text(), QStringLiteral("C6"));
    QVERIFY(label->hasFocus());
    QTest::keyClick(label, Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QVERIFY(!label->hasFocus());
}

void SoundsTest::ANameThatTheCatalogueLacks() {
    Lay(QStringLiteral("022xxx"));
    QCOMPARE(Names(), QStringLiteral("E5"));
    QTest::mouseClick(m_main->window.lblSounds, Qt::LeftButton, {}, Middle(0));
    QCOMPARE(m_main->window.lblChord->text(), QStringLiteral("C"));
    QCOMPARE(m_main->window.lblSounds->focusPolicy(), Qt::NoFocus);
}

void SoundsTest::ChoosingIsOneStep() {
    Lay(QStringLiteral("x02213"));
    QTest::mouseClick(m_main->window.lblSounds, Qt::LeftButton, {}, Middle(0));
    m_main->window.Undo();
    QCOMPARE(m_main->window.lblChord->text(), QStringLiteral("C"));
    QCOMPARE(m_main->window.lstType->Row(), 0);
    QCOMPARE(Names(), QStringLiteral("Am7 · C6/A"));
}

void SoundsTest::ChoosingHidesTheRings() {
    Lay(QStringLiteral("x02213"));
    m_main->window.cmdRings->click();
    QVERIFY(m_main->workbench.RingsShown());
    QTest::mouseClick(m_main->window.lblSounds, Qt::LeftButton, {}, Middle(0));
    QVERIFY(!m_main->workbench.RingsShown());
}

void SoundsTest::NamesOfAFile() {
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("chords.dat")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("long\r\n\r\n<b>" + QByteArray(300, 'o') + "\r\n16");
    file.close();
    m_main->state.ChordTypes.AppendDataFile(file.fileName());
    m_main->window.ShowTypes();
    const QSize before = m_main->window.minimumSizeHint();
    Lay(QStringLiteral("xx012x"));
    QCOMPARE(Names(), QStringLiteral("Db<b>") + QString(300, u'o') + QStringLiteral("/D"));
    QCOMPARE(m_main->window.minimumSizeHint().height(), before.height());
    QVERIFY(m_main->window.lblSounds->IsCut());
    QVERIFY(m_main->window.lblSounds->rect().contains(m_main->window.lblSounds->RectOf(0)));
    QTest::mouseClick(m_main->window.lblSounds, Qt::LeftButton, {}, Middle(0));
    QCOMPARE(m_main->window.lstType->Row(), 50);
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    SoundsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "sounds_test.moc"
