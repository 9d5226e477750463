// What is offered under txtFind while somebody types.
#include "controls/application.h"
#include "support/dialogs.h"
#include "support/mainwindow.h"

#include <QAbstractItemView>
#include <QCompleter>

class CompleterTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_main.reset(); }

    void TypingOffersRows();
    void UpToEightRows();
    void NothingFits();
    void ArrowsMoveInTheRowsOnly();
    void EnterChoosesTheRow();
    void AClickChoosesTheRow();
    void ATypeAloneKeepsTheRoot();
    void ABassIsPreferredUntilTheNextChoice();
    void ChoosingIsOneStep();
    void EnterWithoutARowFinds();
    void CommandKeysCloseAndRun();
    void TheFieldsOwnKeysStayItsOwn();
    void EscapeCloses();

private:
    void Type(const QString& text);
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(List(), key, modifiers);
    }
    QAbstractItemView* List() { return m_main->window.txtFind->completer()->popup(); }
    QStringList Rows();

    std::unique_ptr<MainWindow> m_main;
};

void CompleterTest::init() {
    m_main = std::make_unique<MainWindow>();
    m_main->window.txtFind->setFocus();
    m_main->window.txtFind->clear();
}

void CompleterTest::Type(const QString& text) {
    m_main->window.txtFind->selectAll();
    QTest::keyClicks(m_main->window.txtFind, text);
}

QStringList CompleterTest::Rows() {
    QStringList rows;
    for (int row = 0; List()->isVisible() && row < List()->model()->rowCount(); ++row)
        rows += List()->model()->index(row, 0).data().toString();
    return rows;
}

void CompleterTest::TypingOffersRows() {
    Type(QStringLiteral("m7b"));
    QCOMPARE(Rows(), QStringList({QStringLiteral("m7b5"), QStringLiteral("m7b9")}));
    QVERIFY(!List()->currentIndex().isValid());
    Type(QStringLiteral("c#m7b5/g"));
    QCOMPARE(Rows(), QStringList(QStringLiteral("C#m7b5/G")));
    Type(QStringLiteral("mino"));
    QCOMPARE(Rows(), QStringList(QStringLiteral("min (minor)")));
}

void CompleterTest::UpToEightRows() {
    Type(QStringLiteral("Bb"));
    QCOMPARE(Rows().size(), 8);
    QCOMPARE(Rows().front(), QStringLiteral("Bb"));
}

void CompleterTest::NothingFits() {
    Type(QStringLiteral("m7"));
    QVERIFY(List()->isVisible());
    Type(QStringLiteral("xyz"));
    QVERIFY(!List()->isVisible());
}

void CompleterTest::ArrowsMoveInTheRowsOnly() {
    Type(QStringLiteral("Am7b"));
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    QCOMPARE(List()->currentIndex().row(), 1);
    Press(Qt::Key_Up);
    QCOMPARE(List()->currentIndex().row(), 0);
    QCOMPARE(m_main->window.txtFind->text(), QStringLiteral("Am7b"));
    QVERIFY(m_main->window.txtFind->hasFocus());
    QCOMPARE(m_main->window.lblChord->text(), QStringLiteral("C"));
}

void CompleterTest::EnterChoosesTheRow() {
    Type(QStringLiteral("Am7b"));
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    QVERIFY(!List()->isVisible());
    QCOMPARE(m_main->window.lblChord->text(), QStringLiteral("Am7b5"));
    QCOMPARE(m_main->window.lstBase->Row(), 9);
    QCOMPARE(m_main->window.lstType->Row(), 41);
    QCOMPARE(m_main->window.lblChord->toolTip(), QStringLiteral("m7b5"));
    QCOMPARE(m_main->window.txtFind->text(), QStringLiteral("Am7b"));
    QCOMPARE(m_main->workbench.Row(0).mark, std::optional(3)); // Fingered like any choice.
}

void CompleterTest::AClickChoosesTheRow() {
    Type(QStringLiteral("Bbm7"));
    const QModelIndex first = List()->model()->index(0, 0);
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, List()->visualRect(first).center());
    QCOMPARE(m_main->window.lblChord->text(), QStringLiteral("A#m7"));
}

void CompleterTest::ATypeAloneKeepsTheRoot() {
    m_main->window.lstBase->SelectRow(2);
    Type(QStringLiteral("m7b"));
    Press(Qt::Key_Down);
    Press(Qt::Key_Enter);
    QCOMPARE(m_main->window.lblChord->text(), QStringLiteral("Dm7b5"));
}

void CompleterTest::ABassIsPreferredUntilTheNextChoice() {
    Type(QStringLiteral("c/g"));
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    QCOMPARE(m_main->workbench.PreferredBass(), std::optional(7));
    const auto first = [this] { return FretsText(m_main->window.lstVoicings->Rows().ShapeAt(0)); };
    QCOMPARE(first(), QStringLiteral("332010"));
    m_main->window.lstType->SelectRow(1);
    QVERIFY(!m_main->workbench.PreferredBass());
    m_main->window.lstType->SelectRow(0);
    QCOMPARE(first(), QStringLiteral("x32010"));
}

void CompleterTest::ChoosingIsOneStep() {
    Type(QStringLiteral("Am7b"));
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    m_main->window.Undo();
    QCOMPARE(m_main->window.lblChord->text(), QStringLiteral("C"));
}

void CompleterTest::EnterWithoutARowFinds() {
    Type(QStringLiteral("m7"));
    QVERIFY(List()->isVisible());
    Press(Qt::Key_Return);
    QVERIFY(!List()->isVisible());
    QCOMPARE(m_main->window.lblChord->text(), QStringLiteral("Cm7"));
}

void CompleterTest::CommandKeysCloseAndRun() {
    Type(QStringLiteral("m7"));
    Press(Qt::Key_F2);
    QVERIFY(!List()->isVisible());
    QVERIFY(m_main->workbench.ShownBarre());
    Type(QStringLiteral("m7"));
    Press(Qt::Key_Down, Qt::ControlModifier);
    QVERIFY(!List()->isVisible());
    QCOMPARE(m_main->window.lstBase->Row(), 1);
    m_main->window.txtFind->setFocus();
    Type(QStringLiteral("9"));
    Press(Qt::Key_F3);
    QCOMPARE(m_main->window.lblChord->text(), QStringLiteral("C#9"));
}

void CompleterTest::TheFieldsOwnKeysStayItsOwn() {
    m_main->window.lstBase->SelectRow(5);
    Type(QStringLiteral("m7"));
    Press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m_main->window.lstBase->Row(), 5);
    Type(QStringLiteral("m7"));
    Press(Qt::Key_B);
    QCOMPARE(m_main->window.txtFind->text(), QStringLiteral("m7b"));
    Press(Qt::Key_Left);
    QCOMPARE(m_main->window.txtFind->cursorPosition(), 2);
}

void CompleterTest::EscapeCloses() {
    Type(QStringLiteral("m7"));
    Press(Qt::Key_Escape);
    QVERIFY(!List()->isVisible());
    QVERIFY(m_main->window.isVisible());
    QCOMPARE(m_main->window.lblChord->text(), QStringLiteral("C"));
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    CompleterTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "completer_test.moc"
