// The sheet's pages as a screen reader finds them.
#include "sheet.h"

#include <QAccessible>

class AccessiblePageTest : public QObject, private Sheet {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        Reset();
        m_laid.clear();
        m_sheet->SetLay([this](const Shape& shape) { m_laid += FretsText(shape); });
        Show(QStringLiteral("Am - 012200 C - 010230 "));
    }

    void EveryDiagramIsNamed() {
        QCOMPARE(Page()->text(QAccessible::Name), QStringLiteral("Страницы листа"));
        QCOMPARE(Page()->childCount(), 2);
        QVERIFY(Name(0).startsWith(QStringLiteral("Am, 002210: струна 6 открыта")));
        QVERIFY(Name(1).startsWith(QStringLiteral("C, 032010: ")));
    }

    void TheyFollowTheText() {
        QAccessibleInterface* second = Page()->child(1);
        Show(QStringLiteral("G - 300023"));
        QCOMPARE(Page()->childCount(), 1);
        QVERIFY(Page()->indexOfChild(second) < 0);
        QVERIFY(Name(0).startsWith(QStringLiteral("G, 320003")));
        Show(QString());
        QCOMPARE(Page()->childCount(), 0);
        QVERIFY(Page()->child(0) == nullptr);
        Show(QStringLiteral("A - 000000 B - 000000 C - 000000 "));
        QCOMPARE(Page()->childCount(), 3);
    }

    void EachIsAtItsPlace() {
        for (int index = 0; index < 2; ++index) {
            const QRect place = Page()->child(index)->rect();
            QVERIFY(Page()->rect().contains(place));
            QCOMPARE(Page()->childAt(place.center().x(), place.center().y()), Page()->child(index));
            QCOMPARE(Page()->indexOfChild(Page()->child(index)), index);
            QVERIFY(Page()->child(index)->parent() == Page());
        }
    }

    void APressSelectsTheCode() {
        Act(1, QAccessibleActionInterface::pressAction());
        QCOMPARE(m_sheet->txtMain->SelectedText(), QStringLiteral("C - 010230"));
        QCOMPARE(m_laid, QStringList());
    }

    void OneIsLaidOnTheNeck() {
        Act(0, QStringLiteral("Поставить на гриф"));
        QCOMPARE(m_laid, QStringList(QStringLiteral("002210")));
    }

    void TheFocusIsAtTheCurrentOne() {
        QVERIFY(Page()->focusChild() == nullptr);
        Act(1, QAccessibleActionInterface::setFocusAction());
        QCOMPARE(Page()->focusChild(), Page()->child(1));
        QVERIFY(Page()->child(1)->state().focused);
        QVERIFY(!Page()->child(0)->state().focused);
        QTest::keyClick(m_sheet->picPage, Qt::Key_Left);
        QCOMPARE(Page()->focusChild(), Page()->child(0));
    }

    void WhatIsScrolledAwayIsOffScreen() {
        Show(QStringLiteral("Am - 012200 \n").repeated(60));
        QVERIFY(!Page()->child(0)->state().offscreen);
        QVERIFY(Page()->child(59)->state().offscreen);
        Act(59, QAccessibleActionInterface::pressAction());
        QVERIFY(!Page()->child(59)->state().offscreen);
    }

private:
    QAccessibleInterface* Page() const {
        return QAccessible::queryAccessibleInterface(m_sheet->picPage);
    }
    QString Name(int index) const { return Page()->child(index)->text(QAccessible::Name); }
    void Act(int index, const QString& action) const {
        Page()->child(index)->actionInterface()->doAction(action);
    }
    void Show(const QString& text) {
        m_sheet->txtMain->setPlainText(text);
        QCoreApplication::processEvents();
        m_sheet->txtMain->document()->setModified(false);
    }

    QStringList m_laid;
};

int main(int argc, char** argv) {
    return RunSheetTest<AccessiblePageTest>(argc, argv);
}
#include "accessiblepage_test.moc"
