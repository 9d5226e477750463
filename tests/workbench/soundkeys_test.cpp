// The keys that sound or stop, and the commands' keys beside open lists and menus, by real key
// events sent to whatever has the focus.
#include "controls/application.h"
#include "support/mainwindow.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QScrollBar>

class SoundKeysTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_main = std::make_unique<MainWindow>(); }
    void cleanup() { m_main.reset(); }

    void HeldDownItIsOnePress_data() {
        QTest::addColumn<QString>("focus");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<int>("sounds"); // Files, of one press.
        const int none = Qt::NoModifier;
        QTest::newRow("F5") << QStringLiteral("lstType") << int(Qt::Key_F5) << none << 3;
        QTest::newRow("F6") << QStringLiteral("lstType") << int(Qt::Key_F6) << none << 6;
        QTest::newRow("Enter on the keys' button")
            << QStringLiteral("GoldButton1") << int(Qt::Key_Return) << none << 3;
        QTest::newRow("Enter on the strings' button")
            << QStringLiteral("GoldButton2") << int(Qt::Key_Enter) << none << 6;
        QTest::newRow("the space bar on the strings' button")
            << QStringLiteral("GoldButton2") << int(Qt::Key_Space) << none << 6;
        QTest::newRow("Ctrl+Enter")
            << QStringLiteral("lstType") << int(Qt::Key_Return) << int(Qt::ControlModifier) << 1;
        QTest::newRow("Enter on the strum's button")
            << QStringLiteral("cmdStrum") << int(Qt::Key_Return) << none << 1;
    }
    void HeldDownItIsOnePress() {
        QFETCH(const QString, focus);
        QFETCH(const int, key);
        QFETCH(const int, modifiers);
        QFETCH(const int, sounds);
        m_main->Find(focus)->setFocus();
        Send(QEvent::KeyPress, key, modifiers, false);
        for (int i = 0; i < 5; ++i) {
            Send(QEvent::KeyRelease, key, modifiers, true);
            Send(QEvent::KeyPress, key, modifiers, true);
        }
        Send(QEvent::KeyRelease, key, modifiers, false);
        QCOMPARE(m_main->midi.played.size() + m_main->midi.strums, sounds);
    }

    void HeldArrowsRepeat() {
        m_main->window.lstType->setFocus();
        Send(QEvent::KeyPress, Qt::Key_Down, Qt::ControlModifier, false);
        Send(QEvent::KeyPress, Qt::Key_Down, Qt::ControlModifier, true);
        QCOMPARE(m_main->window.lstBase->Row(), 2);
    }

    void AStrumIsOfEveryStringThatSounds() {
        m_main->workbench.ToggleMute(5);
        QTest::mouseClick(m_main->Find(QStringLiteral("cmdStrum")), Qt::LeftButton);
        QCOMPARE(m_main->midi.strummed.size(), 5);
        QVERIFY(m_main->midi.played.isEmpty());
        QTest::keyClick(m_main->window.lstType, Qt::Key_F7);
        QVERIFY(!m_main->midi.strumming);
    }

    void ACommandClosesAnOpenList_data() {
        QTest::addColumn<QString>("list");
        for (const char* name : {"lstBarre", "lstLadBarre", "lstWhat", "lstTemp"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void ACommandClosesAnOpenList() {
        QFETCH(const QString, list);
        m_main->Find<QComboBox>(list)->showPopup();
        QTest::keyClick(InPopup(), Qt::Key_F2);
        QVERIFY(QApplication::activePopupWidget() == nullptr);
        QVERIFY(m_main->workbench.ShownBarre());
        m_main->Find<QComboBox>(list)->showPopup();
        QTest::keyClick(InPopup(), Qt::Key_Down, Qt::AltModifier);
        QVERIFY(QApplication::activePopupWidget() == nullptr);
        QCOMPARE(m_main->window.lstType->Row(), 1);
    }

    void PlainArrowsMoveInAnOpenList() {
        m_main->window.lstBarre->showPopup();
        QTest::keyClick(InPopup(), Qt::Key_Up);
        QVERIFY(QApplication::activePopupWidget() != nullptr);
        QTest::keyClick(InPopup(), Qt::Key_Return);
        QCOMPARE(m_main->window.lstBarre->currentIndex(), 4);
    }

    void ACommandClosesAnOpenMenu() {
        m_main->board->setFocus();
        QTest::keyClick(m_main->board, Qt::Key_Menu);
        QTest::keyClick(InPopup(), Qt::Key_F5);
        QVERIFY(QApplication::activePopupWidget() == nullptr);
        QCOMPARE(m_main->midi.played.size(), 3);
    }

    // Its own steps, and nobody waits until it is closed.
    void TheMenuOfAScrollBarIsNotWaitedFor() {
        QScrollBar* bar = m_main->window.VScroll3;
        const QPoint middle = bar->rect().center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, middle, bar->mapToGlobal(middle));
        QCoreApplication::sendEvent(bar, &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu != nullptr);
        menu->setActiveAction(menu->actions().at(2)); // To the top, its largest value.
        QTest::keyClick(menu, Qt::Key_Return);
        QCOMPARE(bar->value(), stringCount);
        QCoreApplication::sendEvent(bar, &event);
        QTest::keyClick(InPopup(), Qt::Key_F2);
        QVERIFY(QApplication::activePopupWidget() == nullptr);
        QVERIFY(m_main->workbench.ShownBarre());
    }

    void TheMenuOfATextBoxGivesWay() {
        QLineEdit* box = m_main->window.txtFind;
        QContextMenuEvent event(QContextMenuEvent::Mouse, box->rect().center(),
                                box->mapToGlobal(box->rect().center()));
        QCoreApplication::sendEvent(box, &event);
        QTest::keyClick(InPopup(), Qt::Key_F6);
        QVERIFY(QApplication::activePopupWidget() == nullptr);
        QCOMPARE(m_main->midi.played.size(), 6);
    }

private:
    static void Send(QEvent::Type type, int key, int modifiers, bool repeated) {
        QKeyEvent event(type, key, Qt::KeyboardModifiers::fromInt(modifiers), QString(), repeated);
        QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
    }

    // Where a key goes while a list or menu is open.
    static QWidget* InPopup() {
        QWidget* popup = QApplication::activePopupWidget();
        return popup->focusWidget() != nullptr ? popup->focusWidget() : popup;
    }

    std::unique_ptr<MainWindow> m_main;
};

int main(int argc, char** argv) {
    Application application(argc, argv);
    SoundKeysTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "soundkeys_test.moc"
