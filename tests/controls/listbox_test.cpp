// A list box under the mouse and the keyboard: the selected row and its command stay together.
#include "controls/listbox.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

class ListBoxTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_list.reset(); }

    void AClickRunsTheCommand();
    void AClickOnTheSelectedRowRunsItAgain();
    void AnotherButtonDoesNothing();
    void AClickBelowTheRowsKeepsTheSelection();
    void DraggingKeepsThePressedRow();
    void CtrlClickSelectsLikeAClick();
    void KeysMoveTheSelection_data();
    void KeysMoveTheSelection();
    void TypingFindsARow();
    void SelectingNothingTellsIt();
    void TheFocusChoosesNothing();
    void ASecondQuickClickChoosesItsRow();
    void ASecondClickOnTheSameRowIsADoubleClick();
    void WhatIsSelectedAgainComesIntoSight();
    void NoRowIsCutAtTheEnd();

private:
    QPoint Centre(int row) const {
        return m_list->visualRect(m_list->model()->index(row, 0)).center();
    }
    void Click(QPoint place, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(m_list->viewport(), Qt::LeftButton, modifiers, place);
    }
    void Drag(QPoint place) {
        QMouseEvent move(QEvent::MouseMove, place, m_list->viewport()->mapToGlobal(place),
                         Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(m_list->viewport(), &move);
    }

    std::unique_ptr<ListBox> m_list;
    std::vector<int> m_chosen;
};

void ListBoxTest::init() {
    m_list = std::make_unique<ListBox>(QStringLiteral("list"));
    m_list->SetTexts({QStringLiteral("alpha"), QStringLiteral("beta"), QStringLiteral("gamma"),
                      QStringLiteral("delta")});
    m_list->resize(200, 300);
    m_list->show();
    QVERIFY(QTest::qWaitForWindowActive(m_list.get()));
    m_list->SelectRow(1);
    m_chosen.clear();
    connect(m_list.get(), &ListBox::RowChosen, this, [this](int row) { m_chosen.push_back(row); });
}

void ListBoxTest::NoRowIsCutAtTheEnd() {
    const int row = m_list->sizeHintForRow(0);
    for (int more = 0; more < row; more += 3) {
        m_list->resize(200, 3 * row + more);
        QCOMPARE(m_list->viewport()->height() % row, 0);
        QVERIFY(m_list->height() - m_list->viewport()->height() < row + 2 * m_list->frameWidth());
    }
}

void ListBoxTest::AClickRunsTheCommand() {
    Click(Centre(2));
    QCOMPARE(m_list->Row(), 2);
    QCOMPARE(m_chosen, std::vector{2});
}

void ListBoxTest::AClickOnTheSelectedRowRunsItAgain() {
    Click(Centre(1));
    Click(Centre(1));
    QCOMPARE(m_chosen, (std::vector{1, 1}));
}

void ListBoxTest::AnotherButtonDoesNothing() {
    QTest::mouseClick(m_list->viewport(), Qt::RightButton, {}, Centre(2));
    QCOMPARE(m_list->Row(), 1);
    QVERIFY(m_chosen.empty());
}

void ListBoxTest::AClickBelowTheRowsKeepsTheSelection() {
    Click({100, 290});
    QCOMPARE(m_list->Row(), 1);
    QVERIFY(m_chosen.empty());
}

void ListBoxTest::DraggingKeepsThePressedRow() {
    QTest::mousePress(m_list->viewport(), Qt::LeftButton, {}, Centre(2));
    Drag(Centre(3));
    Drag(Centre(0));
    QTest::mouseRelease(m_list->viewport(), Qt::LeftButton, {}, Centre(0));
    QCOMPARE(m_list->Row(), 2);
    QCOMPARE(m_chosen, std::vector{2});
}

void ListBoxTest::CtrlClickSelectsLikeAClick() {
    Click(Centre(1), Qt::ControlModifier);
    QCOMPARE(m_list->Row(), 1);
    Click(Centre(3), Qt::ControlModifier);
    QCOMPARE(m_list->Row(), 3);
    QCOMPARE(m_chosen, (std::vector{1, 3}));
}

void ListBoxTest::KeysMoveTheSelection_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<int>("row");
    const Qt::KeyboardModifiers none;
    const Qt::KeyboardModifiers ctrl(Qt::ControlModifier);
    const Qt::KeyboardModifiers shift(Qt::ShiftModifier);
    QTest::newRow("down") << int(Qt::Key_Down) << none << 2;
    QTest::newRow("up") << int(Qt::Key_Up) << none << 0;
    QTest::newRow("the end") << int(Qt::Key_End) << none << 3;
    QTest::newRow("the beginning") << int(Qt::Key_Home) << none << 0;
    QTest::newRow("down with Ctrl") << int(Qt::Key_Down) << ctrl << 2;
    QTest::newRow("the end with Ctrl") << int(Qt::Key_End) << ctrl << 3;
    QTest::newRow("up with Shift") << int(Qt::Key_Up) << shift << 0;
}

void ListBoxTest::KeysMoveTheSelection() {
    QFETCH(const int, key);
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    QFETCH(const int, row);
    QTest::keyClick(m_list.get(), static_cast<Qt::Key>(key), modifiers);
    QCOMPARE(m_list->Row(), row);
    QCOMPARE(m_chosen, std::vector{row});
}

void ListBoxTest::TypingFindsARow() {
    QTest::keyClick(m_list.get(), Qt::Key_D);
    QCOMPARE(m_list->Row(), 3);
    QCOMPARE(m_chosen, std::vector{3});
}

void ListBoxTest::SelectingNothingTellsIt() {
    m_list->SelectRow(-1);
    QCOMPARE(m_list->Row(), -1);
    QCOMPARE(m_chosen, std::vector{-1});
}

void ListBoxTest::TheFocusChoosesNothing() {
    m_list->SelectRow(-1);
    m_list->clearFocus();
    m_chosen.clear();
    m_list->setFocus(Qt::TabFocusReason);
    QVERIFY(m_list->hasFocus());
    QCOMPARE(m_list->Row(), -1);
    QVERIFY(m_chosen.empty());
    QTest::keyClick(m_list.get(), Qt::Key_Down);
    QCOMPARE(m_list->Row(), 0);
    QCOMPARE(m_chosen, std::vector{0});
}

// A click, the wheel, and a click at once: for the toolkit a double click.
void ListBoxTest::ASecondQuickClickChoosesItsRow() {
    QSignalSpy doubled(m_list.get(), &ListBox::RowDoubleClicked);
    Click(Centre(2));
    QTest::mouseDClick(m_list->viewport(), Qt::LeftButton, {}, Centre(3));
    QCOMPARE(m_list->Row(), 3);
    QCOMPARE(m_chosen, (std::vector{2, 3}));
    QCOMPARE(doubled.size(), 0);
}

void ListBoxTest::ASecondClickOnTheSameRowIsADoubleClick() {
    QSignalSpy doubled(m_list.get(), &ListBox::RowDoubleClicked);
    Click(Centre(2));
    QTest::mouseDClick(m_list->viewport(), Qt::LeftButton, {}, Centre(2));
    QCOMPARE(doubled.size(), 1);
    QCOMPARE(doubled.first().first().toInt(), 2);
}

void ListBoxTest::WhatIsSelectedAgainComesIntoSight() {
    QStringList rows;
    for (int row = 0; row < 100; ++row)
        rows += QString::number(row);
    m_list->SetTexts(rows);
    m_list->SelectRow(1);
    m_list->verticalScrollBar()->setValue(m_list->verticalScrollBar()->maximum());
    QVERIFY(!m_list->viewport()->rect().contains(Centre(1)));
    m_list->SelectRow(1);
    QVERIFY(m_list->viewport()->rect().contains(Centre(1)));
}

QTEST_MAIN(ListBoxTest)
#include "listbox_test.moc"
