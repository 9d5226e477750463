// The pointer in the main window: what it lets go of, what goes out when it leaves, and where
// the words about the pictures stand.
#include "controls/application.h"
#include "controls/colours.h"
#include "controls/focusring.h"
#include "support/dialogs.h"
#include "support/mainwindow.h"

#include <QDialog>
#include <QHelpEvent>
#include <QToolTip>

class PointingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_main = std::make_unique<MainWindow>(); }
    void cleanup() { m_main.reset(); }

    void ADialogEndsTheDragOfTheBarre();
    void ABarreSetAnewIsNotDragged();
    void ADraggedBarreGoesOnAfterItHasMoved();
    void TheHighlightGoesWithThePointer_data();
    void TheHighlightGoesWithThePointer();
    void TheHighlightGoesUnderADialog();
    void APressShowsNoRing();
    void ARightPressLeavesTheFocus();
    void TheRingStaysOffTheBlackKeys();
    void TheRingOfTheBarreIsItsColumn();
    void AnUnsuccessfulSearchAsksAgain();
    void WhatIsFoundIsInSight();
    void ASecondQuickClickIsNoDoubleClick();
    void TheNeckHasNoToolTip();
    void RestingOnTheNeckTellsWhatAClickDoes();
    void TheHandPointsWhereAPressActs();
    void ThePicturesStandWhereTheyAreDesigned();
    void ThePictureIsTheSameToTheLastRow_data();
    void ThePictureIsTheSameToTheLastRow();

private:
    void OpenAndCloseADialog();
    void Enter(const QString& name);
    void Leave(const QString& name);
    int RingPixels(TwipPicture* picture, const QRectF& twips);

    std::unique_ptr<MainWindow> m_main;
};

// As F10 does while a button is held; the dialog gets the release.
void PointingTest::OpenAndCloseADialog() {
    QDialog dialog(&m_main->window);
    dialog.setModal(true);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    dialog.close();
    QVERIFY(QTest::qWaitForWindowActive(&m_main->window));
}

void PointingTest::Enter(const QString& name) {
    QWidget* label = m_main->Find(name);
    QMouseEvent move(QEvent::MouseMove, QPointF(3, 3), label->mapToGlobal(QPointF(3, 3)),
                     Qt::NoButton, Qt::NoButton, {});
    QCoreApplication::sendEvent(label, &move);
}

void PointingTest::Leave(const QString& name) {
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(m_main->Find(name), &leave);
}

int PointingTest::RingPixels(TwipPicture* picture, const QRectF& twips) {
    const QImage image = picture->grab().toImage();
    const QRect part = picture->ToPixels(twips).toAlignedRect().intersected(image.rect());
    const QColor ring = Colours::focus;
    int count = 0;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            count += image.pixelColor(x, y) == ring ? 1 : 0;
    return count;
}

void PointingTest::ADialogEndsTheDragOfTheBarre() {
    m_main->window.cmdMakeBarre_Click();
    m_main->Press(m_main->board, {247, 30});
    OpenAndCloseADialog();
    m_main->Move(m_main->board, {247 + 450, 30});
    QCOMPARE(m_main->workbench.ShownBarre()->fret, 1);
}

void PointingTest::ABarreSetAnewIsNotDragged() {
    m_main->window.cmdMakeBarre_Click();
    m_main->Press(m_main->board, {247, 30});
    m_main->window.cmdMakeBarre_Click(); // Off,
    m_main->window.cmdMakeBarre_Click(); // and on again.
    m_main->Move(m_main->board, {247 + 450, 30});
    QCOMPARE(m_main->workbench.ShownBarre()->fret, 1);
}

void PointingTest::ADraggedBarreGoesOnAfterItHasMoved() {
    m_main->window.cmdMakeBarre_Click();
    m_main->Press(m_main->board, {247, 30});
    m_main->Move(m_main->board, {247 + 450, 30});
    m_main->Move(m_main->board, {247 + 480 + 450, 30});
    QCOMPARE(m_main->workbench.ShownBarre()->fret, 3);
}

void PointingTest::TheHighlightGoesWithThePointer_data() {
    QTest::addColumn<QString>("under");
    QTest::addColumn<QString>("lit");
    QTest::newRow("fret number") << QStringLiteral("Label3(2)") << QStringLiteral("Label3(2)");
    QTest::newRow("note") << QStringLiteral("Label6(1)") << QStringLiteral("Label4(1)");
}

// Whatever it enters next: that has no say in it.
void PointingTest::TheHighlightGoesWithThePointer() {
    QFETCH(const QString, under);
    QFETCH(const QString, lit);
    Enter(under);
    QCOMPARE(m_main->Colour(lit), QColor(Colours::highlight));
    Leave(under);
    QCOMPARE(m_main->Colour(lit), QColor(Colours::normalText));
}

void PointingTest::TheHighlightGoesUnderADialog() {
    Enter(QStringLiteral("Label3(2)"));
    Enter(QStringLiteral("Label6(1)"));
    QCOMPARE(m_main->Colour(QStringLiteral("Label4(1)")), QColor(Colours::highlight));
    OpenAndCloseADialog();
    QCOMPARE(m_main->Colour(QStringLiteral("Label3(2)")), QColor(Colours::normalText));
    QCOMPARE(m_main->Colour(QStringLiteral("Label4(1)")), QColor(Colours::normalText));
}

void PointingTest::APressShowsNoRing() {
    for (TwipPicture* picture :
         {static_cast<TwipPicture*>(m_main->board), static_cast<TwipPicture*>(m_main->keyboard)}) {
        const QRectF all(0, 0, 8000, 3000);
        QTest::mouseClick(picture, Qt::LeftButton, {}, {20, 20});
        QVERIFY(picture->hasFocus());
        QCOMPARE(RingPixels(picture, all), 0);
        QTest::keyClick(picture, Qt::Key_Plus);
        QVERIFY(RingPixels(picture, all) > 20);
    }
}

void PointingTest::ARightPressLeavesTheFocus() {
    m_main->window.lstType->setFocus();
    QTest::mouseClick(m_main->board, Qt::RightButton, {}, {20, 20});
    QTest::mouseClick(m_main->keyboard, Qt::RightButton, {}, {20, 20});
    QVERIFY(m_main->window.lstType->hasFocus());
}

void PointingTest::TheRingStaysOffTheBlackKeys() {
    m_main->keyboard->setFocus(Qt::TabFocusReason);
    QTest::keyClick(m_main->keyboard, Qt::Key_Home); // The lowest C,
    QVERIFY(RingPixels(m_main->keyboard, KeyboardLayout().FreeArea(0)) > 20);
    const QRectF black = KeyboardLayout().KeyRect(1); // and C# over it.
    QCOMPARE(RingPixels(m_main->keyboard, black.adjusted(20, 0, -20, -20)), 0);
}

void PointingTest::TheRingOfTheBarreIsItsColumn() {
    m_main->window.lstLadBarre->SelectRow(4);
    m_main->board->setFocus(Qt::TabFocusReason);
    m_main->board->MoveFocusTo(stringCount); // The barre,
    const double x = FretboardLayout().MarkCentre(0, 5).x();
    const QRectF column(x - 140, 0, 280, 2175);
    QVERIFY(RingPixels(m_main->board, column) > 20); // on or off.
    m_main->window.cmdMakeBarre_Click();
    QVERIFY(RingPixels(m_main->board, column) > 20);
    QCOMPARE(RingPixels(m_main->board, {0, 0, x - 160, 2175}), 0);
}

void PointingTest::AnUnsuccessfulSearchAsksAgain() {
    BoxSeen box;
    AnswerBox(box);
    m_main->window.lstLad->setFocus();
    QTest::keyClick(m_main->window.lstLad, Qt::Key_F3);
    QVERIFY(box.seen);
    QCOMPARE(m_main->window.focusWidget(), static_cast<QWidget*>(m_main->window.txtFind));
    QCOMPARE(m_main->window.txtFind->selectedText(), QStringLiteral("Введите тип аккорда"));
}

void PointingTest::WhatIsFoundIsInSight() {
    ListBox* list = m_main->window.lstType;
    list->SelectRow(0);
    list->scrollTo(list->model()->index(49, 0));
    m_main->window.txtFind->setText(QStringLiteral("maj"));
    m_main->window.cmdFind_Click();
    QVERIFY(
        list->viewport()->rect().contains(list->visualRect(list->model()->index(0, 0)).center()));
}

void PointingTest::ASecondQuickClickIsNoDoubleClick() {
    ListBox* list = m_main->window.lstType;
    m_main->ClickRow(list, 1);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {},
                       list->visualRect(list->model()->index(3, 0)).center());
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    QCOMPARE(m_main->Text(QStringLiteral("lblChord")), QStringLiteral("Cdim"));
}

void PointingTest::TheNeckHasNoToolTip() {
    m_main->Move(m_main->board, FretboardLayout().MarkCentre(1, 3));
    QHelpEvent rest(QEvent::ToolTip, {50, 50}, m_main->board->mapToGlobal(QPoint(50, 50)));
    QCoreApplication::sendEvent(m_main->board, &rest);
    QVERIFY(!QToolTip::isVisible());
    QCOMPARE(m_main->board->toolTip(), QString());
    QVERIFY(!m_main->board->accessibleName().isEmpty());
}

void PointingTest::RestingOnTheNeckTellsWhatAClickDoes() {
    const QString help = m_main->board->accessibleName();
    m_main->Move(m_main->board, FretboardLayout().MarkCentre(1, 3));
    const QString crossing = m_main->Text(QStringLiteral("lblHint"));
    QVERIFY(!crossing.contains(help));
    QHelpEvent rest(QEvent::ToolTip, {50, 50}, m_main->board->mapToGlobal(QPoint(50, 50)));
    QCoreApplication::sendEvent(m_main->board, &rest);
    QCOMPARE(m_main->Text(QStringLiteral("lblHint")), crossing + QStringLiteral(". ") + help);
    m_main->Move(m_main->board, FretboardLayout().MarkCentre(1, 4));
    QVERIFY(!m_main->Text(QStringLiteral("lblHint")).contains(help));
    QCoreApplication::sendEvent(m_main->board, &rest);
    Leave(QStringLiteral("picStrings"));
    QCOMPARE(m_main->Text(QStringLiteral("lblHint")), QString());
}

void PointingTest::TheHandPointsWhereAPressActs() {
    for (const char16_t* name :
         {u"picStrings", u"picKeyboard", u"Label3(0)", u"Label3(14)", u"Label6(0)", u"Label6(5)"})
        QCOMPARE(m_main->Find(QString::fromUtf16(name))->cursor().shape(), Qt::PointingHandCursor);
}

// From the top of the neck: the keyboard 2640 twips, the fret numbers 2160.
void PointingTest::ThePicturesStandWhereTheyAreDesigned() {
    const double scale = m_main->board->Scale();
    const auto below = [&](const QString& name) {
        return (m_main->Find(name)->y() - m_main->board->y()) / scale;
    };
    const double pixel = 1 / scale;
    QVERIFY(std::abs(below(QStringLiteral("picKeyboard")) - 2640) <= pixel);
    QVERIFY(std::abs(below(QStringLiteral("Label3(0)")) - 2160) <= pixel);
    QVERIFY(std::abs(below(QStringLiteral("Label3(14)")) - 2160) <= pixel);
}

void PointingTest::ThePictureIsTheSameToTheLastRow_data() {
    QTest::addColumn<int>("width");
    for (int width = 1000; width < 1012; ++width)
        QTest::addRow("%d pixels wide", width) << width;
}

// A row that is not painted shows what stood in the memory before.
void PointingTest::ThePictureIsTheSameToTheLastRow() {
    QFETCH(const int, width);
    for (TwipPicture* picture :
         {static_cast<TwipPicture*>(m_main->board), static_cast<TwipPicture*>(m_main->keyboard)}) {
        const int height = picture->height() * width / picture->width() + 1;
        QImage last;
        for (const Qt::GlobalColor before : {Qt::green, Qt::magenta}) {
            picture->resize(width / 2, height / 2);
            picture->grab();
            QImage dirty(QSize(width, height), QImage::Format_ARGB32_Premultiplied);
            dirty.fill(before); // And freed.
            dirty = {};
            picture->resize(width, height);
            const QImage image = picture->grab().toImage();
            QVERIFY(last.isNull() || image == last);
            last = image;
            for (int x = 0; x < width; ++x)
                for (const int row : {height - 1, height - 2})
                    QVERIFY(image.pixelColor(x, row) != QColor(before));
        }
    }
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    PointingTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "pointing_test.moc"
