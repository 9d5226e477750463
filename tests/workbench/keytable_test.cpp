// The rows of the key table that another key, or another modifier, must not touch.
#include "controls/application.h"
#include "support/mainwindow.h"

#include <QSignalSpy>

namespace {

constexpr std::array<Qt::KeyboardModifiers::Int, 5> allModifiers{
    Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier,
    Qt::ControlModifier | Qt::ShiftModifier | Qt::AltModifier};

} // namespace

class KeyTableTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_main = std::make_unique<MainWindow>(); }
    void cleanup() { m_main.reset(); }

    void OnlyShiftMovesTheBarre_data();
    void OnlyShiftMovesTheBarre();
    void AFunctionKeyWorksWithAnyModifier_data();
    void AFunctionKeyWorksWithAnyModifier();
    void TheStringStepsOnlyFromAWholeStepAway_data();
    void TheStringStepsOnlyFromAWholeStepAway();
    void TheSearchNeedsARootAndAType_data();
    void TheSearchNeedsARootAndAType();
    void CtrlFGoesToTheSearchField();

private:
    void Key(int key, Qt::KeyboardModifiers modifiers) {
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
    }

    std::unique_ptr<MainWindow> m_main;
};

void KeyTableTest::OnlyShiftMovesTheBarre_data() {
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<int>("moved");
    QTest::newRow("plain") << Qt::KeyboardModifiers() << 0;
    QTest::newRow("Shift") << Qt::KeyboardModifiers(Qt::ShiftModifier) << 1;
    QTest::newRow("Ctrl") << Qt::KeyboardModifiers(Qt::ControlModifier) << 0;
    QTest::newRow("Alt") << Qt::KeyboardModifiers(Qt::AltModifier) << 0;
    QTest::newRow("Ctrl and Shift") << (Qt::ControlModifier | Qt::ShiftModifier) << 0;
}

void KeyTableTest::OnlyShiftMovesTheBarre() {
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    QFETCH(const int, moved);
    m_main->window.lstLadBarre->SelectRow(4);
    Key(Qt::Key_Right, modifiers);
    QCOMPARE(m_main->window.lstLadBarre->currentIndex(), 4 + moved);
    Key(Qt::Key_Left, modifiers);
    QCOMPARE(m_main->window.lstLadBarre->currentIndex(), 4);
    Key(Qt::Key_Left, modifiers);
    QCOMPARE(m_main->window.lstLadBarre->currentIndex(), 4 - moved);
}

void KeyTableTest::AFunctionKeyWorksWithAnyModifier_data() {
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    for (const auto modifiers : allModifiers)
        QTest::addRow("modifiers %x", static_cast<unsigned>(modifiers))
            << Qt::KeyboardModifiers(QFlag(modifiers));
}

void KeyTableTest::AFunctionKeyWorksWithAnyModifier() {
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    const QSignalSpy help(&m_main->window, &frmMain::HelpAsked);
    const QSignalSpy settings(&m_main->window, &frmMain::SettingsAsked);
    Key(Qt::Key_F1, modifiers);
    QCOMPARE(help.size(), 1);
    QCOMPARE(help.first().first().toBool(), false);
    m_main->window.txtStr->setText(QStringLiteral("5"));
    Key(Qt::Key_F4, modifiers);
    QCOMPARE(m_main->workbench.Row(4).mark, std::optional(7));
    Key(Qt::Key_F8, modifiers);
    QCOMPARE(m_main->workbench.Row(4).mark, std::optional(3));
    Key(Qt::Key_F5, modifiers);
    QCOMPARE(m_main->midi.played.size(), 3);
    Key(Qt::Key_F6, modifiers);
    QCOMPARE(m_main->midi.played.size(), 9);
    const int closed = m_main->midi.closed;
    m_main->window.lstTemp->SelectRow(1); // A loop goes on until F7.
    m_main->clock.onWait = [&] {
        if (m_main->midi.played.size() > 10)
            Key(Qt::Key_F7, modifiers);
        if (m_main->midi.played.size() > 30)
            m_main->window.GoldButton3_Click();
    };
    Key(Qt::Key_F5, modifiers);
    QVERIFY(m_main->midi.played.size() < 20);
    QVERIFY(m_main->midi.closed > closed);
    m_main->window.lstLad->SelectRow(0);
    Key(Qt::Key_F9, modifiers);
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QStringLiteral("D E G A B "));
    Key(Qt::Key_F10, modifiers);
    QCOMPARE(settings.size(), 1);
}

void KeyTableTest::TheStringStepsOnlyFromAWholeStepAway_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("after");
    const auto row = [](const char* name, const char16_t* text, int key, const char16_t* after) {
        QTest::newRow(name) << QString::fromUtf16(text) << key << QString::fromUtf16(after);
    };
    row("down from 2: to 1", u"2", Qt::Key_Down, u"1");
    row("down from 1.5: below 2, stays", u"1.5", Qt::Key_Down, u"1.5");
    row("down from 2.5", u"2.5", Qt::Key_Down, u"1.5");
    row("up from 5: to 6", u"5", Qt::Key_Up, u"6");
    row("up from 5.5: above 5, stays", u"5.5", Qt::Key_Up, u"5.5");
    row("up from 4.5", u"4.5", Qt::Key_Up, u"5.5");
}

void KeyTableTest::TheStringStepsOnlyFromAWholeStepAway() {
    QFETCH(const QString, text);
    QFETCH(const int, key);
    QFETCH(const QString, after);
    m_main->window.txtStr->setText(text);
    Key(key, Qt::ShiftModifier);
    QCOMPARE(m_main->window.txtStr->text(), after);
}

void KeyTableTest::TheSearchNeedsARootAndAType_data() {
    QTest::addColumn<QString>("list");
    QTest::newRow("no root") << QStringLiteral("lstBase");
    QTest::newRow("no type") << QStringLiteral("lstType");
}

void KeyTableTest::TheSearchNeedsARootAndAType() {
    QFETCH(const QString, list);
    m_main->window.txtStr->setText(QStringLiteral("5"));
    m_main->Find<ListBox>(list)->SelectRow(-1);
    const auto mark = m_main->workbench.Row(4).mark;
    const QString note = m_main->Text(QStringLiteral("Label4"), 4);
    Key(Qt::Key_F4, {});
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    QCOMPARE(m_main->workbench.Row(4).mark, mark);
    QCOMPARE(m_main->Text(QStringLiteral("Label4"), 4), note);
}

void KeyTableTest::CtrlFGoesToTheSearchField() {
    QLineEdit* field = m_main->window.txtFind;
    field->setText(QStringLiteral("min"));
    m_main->window.lstLad->setFocus();
    Key(Qt::Key_F, Qt::ControlModifier);
    QVERIFY(field->hasFocus());
    QCOMPARE(field->selectedText(), QStringLiteral("min"));
    QCOMPARE(field->text(), QStringLiteral("min"));
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    KeyTableTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "keytable_test.moc"
