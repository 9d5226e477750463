// The pictures without a mouse: their parts as a screen reader finds them, the keys that work
// on them, and what the pointer is told before it presses.
#include "controls/application.h"
#include "controls/colours.h"
#include "support/mainwindow.h"

#include <QAccessible>
#include <QMenu>
#include <QTimer>

#include <memory>

class PicturePartsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_main = std::make_unique<MainWindow>(); }
    void cleanup() { m_main.reset(); }

    void KeysAreToggles();
    void APressTogglesItsKey();
    void StringsTellWhatTheySound();
    void StringsAreReadFromTheTop();
    void AValueSetsTheFret();
    void ABadValueChangesNothing();
    void PartsFollowTheScale();
    void PartsAreFoundByPlace();
    void TheFocusIsOnAPart();
    void PianoByKeyboard();
    void FretboardByKeyboard();
    void BarreByKeyboard();
    void TheMenuKeyOffersWhatARightClickDoes();
    void TheFocusIsSeen();
    void TheFocusedStringIsNamed();
    void ToggleIsAPress();
    void NothingCoversTheBarre();
    void APointedFretShowsItsNote();
    void APointedKeyShowsItsNote();
    void ThePressIsSeenAtOnce();
    void AMissingRootSaysSo();

private:
    static QAccessibleInterface* Of(QWidget* picture) {
        return QAccessible::queryAccessibleInterface(picture);
    }
    static QString Name(QWidget* picture, int part) {
        return Of(picture)->child(part)->text(QAccessible::Name);
    }
    static void Act(QWidget* picture, int part, const QString& action) {
        Of(picture)->child(part)->actionInterface()->doAction(action);
    }
    QString Hint() { return m_main->Text(QStringLiteral("lblHint")); }

    std::unique_ptr<MainWindow> m_main;
};

void PicturePartsTest::KeysAreToggles() {
    auto* piano = Of(m_main->keyboard);
    QCOMPARE(piano->childCount(), keyCount);
    for (int key = 0; key < keyCount; ++key) {
        auto* part = piano->child(key);
        QVERIFY(part->isValid());
        QCOMPARE(part->parent(), piano);
        QCOMPARE(piano->indexOfChild(part), key);
        QVERIFY(part->state().checkable);
        QCOMPARE(part->state().checked != 0, m_main->workbench.Keys().IsMarked(key));
    }
    QCOMPARE(Name(m_main->keyboard, 4), QStringLiteral("E, октава 1, отмечена"));
    QVERIFY(piano->child(keyCount) == nullptr);
}

void PicturePartsTest::APressTogglesItsKey() {
    Act(m_main->keyboard, 1, QAccessibleActionInterface::pressAction());
    QVERIFY(m_main->workbench.Keys().IsMarked(1));
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QStringLiteral("C C# E G "));
    Act(m_main->keyboard, 1, QAccessibleActionInterface::pressAction());
    QVERIFY(!m_main->workbench.Keys().IsMarked(1));
}

void PicturePartsTest::StringsTellWhatTheySound() {
    QCOMPARE(Of(m_main->board)->childCount(), stringCount + 1);
    QCOMPARE(Name(m_main->board, 1), QStringLiteral("струна 5, A, лад 3, C"));
    QCOMPARE(Name(m_main->board, 3), QStringLiteral("струна 3, G, открыта"));
    Act(m_main->board, 6, QAccessibleActionInterface::pressAction());
    QCOMPARE(Name(m_main->board, 6), QStringLiteral("барре, лад 1, струны с 1 по 6"));
    QCOMPARE(Name(m_main->board, 4), QStringLiteral("струна 2, B, под барре, лад 1, C"));
    QVERIFY(Of(m_main->board)->child(6)->state().checked);
}

void PicturePartsTest::StringsAreReadFromTheTop() {
    m_main = std::make_unique<MainWindow>(standardStrings, false);
    QCOMPARE(Name(m_main->board, 0), QStringLiteral("струна 1, E, открыта"));
    QCOMPARE(Name(m_main->board, 5), QStringLiteral("струна 6, E, открыта"));
}

void PicturePartsTest::AValueSetsTheFret() {
    auto* third = Of(m_main->board)->child(3)->valueInterface();
    QVERIFY(third);
    QCOMPARE(third->maximumValue().toInt(), 16);
    third->setCurrentValue(2);
    QCOMPARE(m_main->workbench.Row(2).mark, std::optional(2));
    QCOMPARE(third->currentValue().toInt(), 2);
    QCOMPARE(m_main->Text(QStringLiteral("Label4"), 2), QStringLiteral("A"));
    third->setCurrentValue(0);
    QCOMPARE(Name(m_main->board, 3), QStringLiteral("струна 3, G, открыта"));
}

void PicturePartsTest::ABadValueChangesNothing() {
    auto* third = Of(m_main->board)->child(3)->valueInterface();
    for (const int bad : {-1, 17, 1'000'000}) {
        third->setCurrentValue(bad);
        QVERIFY(!m_main->workbench.Row(2).mark);
    }
    Act(m_main->board, 3, QStringLiteral("no such action"));
    QVERIFY(!m_main->workbench.Row(2).mark);
}

void PicturePartsTest::PartsFollowTheScale() {
    const QRect before = Of(m_main->keyboard)->child(0)->rect();
    const QRect window = m_main->window.geometry();
    m_main->window.resize(window.width() + 500, window.height() + 250);
    QApplication::processEvents();
    const QRect after = Of(m_main->keyboard)->child(0)->rect();
    QVERIFY(after.width() > before.width());
    const auto* piano = m_main->keyboard;
    const QRectF place = piano->ToPixels(KeyboardLayout().KeyRect(0));
    QCOMPARE(after.topLeft(), piano->mapToGlobal(place.toRect().topLeft()));
}

void PicturePartsTest::PartsAreFoundByPlace() {
    for (int key = 0; key < keyCount; ++key) {
        const QPointF middle = KeyboardLayout().FreeArea(key).center();
        const QPoint place =
            m_main->keyboard->mapToGlobal((middle * m_main->keyboard->Scale()).toPoint());
        auto* piano = Of(m_main->keyboard);
        QCOMPARE(piano->indexOfChild(piano->childAt(place.x(), place.y())), key);
    }
    QVERIFY(Of(m_main->board)->childAt(-1, -1) == nullptr);
}

void PicturePartsTest::TheFocusIsOnAPart() {
    m_main->keyboard->setFocus();
    QTest::keyClick(m_main->keyboard, Qt::Key_PageUp);
    auto* piano = Of(m_main->keyboard);
    QCOMPARE(piano->focusChild(), piano->child(12));
    QVERIFY(piano->child(12)->state().focused);
    Act(m_main->board, 3, QAccessibleActionInterface::setFocusAction());
    QVERIFY(m_main->board->hasFocus());
    QCOMPARE(Of(m_main->board)->focusChild(), Of(m_main->board)->child(3));
    QVERIFY(piano->focusChild() == nullptr);
}

void PicturePartsTest::PianoByKeyboard() {
    m_main->keyboard->setFocus();
    const auto press = [this](Qt::Key key) { QTest::keyClick(m_main->keyboard, key); };
    QTest::keyClick(m_main->keyboard, Qt::Key_Delete);
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QString());
    press(Qt::Key_Minus); // Nothing lies before the first key.
    press(Qt::Key_Space);
    press(Qt::Key_Plus);
    press(Qt::Key_Equal);
    press(Qt::Key_Return);
    press(Qt::Key_PageUp);
    press(Qt::Key_Space);
    press(Qt::Key_PageDown);
    press(Qt::Key_Minus);
    press(Qt::Key_Space);
    press(Qt::Key_End);
    press(Qt::Key_PageUp); // Nor an octave after the last.
    press(Qt::Key_Space);
    QCOMPARE(m_main->workbench.Keys().Marked(), (std::vector{0, 1, 2, 14, 35}));
    press(Qt::Key_Home);
    press(Qt::Key_Enter);
    QCOMPARE(m_main->workbench.Keys().Marked(), (std::vector{1, 2, 14, 35}));
}

void PicturePartsTest::FretboardByKeyboard() {
    m_main->board->setFocus();
    const auto press = [this](Qt::Key key) { QTest::keyClick(m_main->board, key); };
    press(Qt::Key_PageUp); // The topmost row already.
    press(Qt::Key_Plus);
    QCOMPARE(m_main->workbench.Row(5).mark, std::optional(1));
    press(Qt::Key_PageDown);
    press(Qt::Key_Minus);
    QCOMPARE(m_main->workbench.Row(4).mark, std::optional(2));
    press(Qt::Key_End);
    QCOMPARE(m_main->workbench.Row(4).mark, std::optional(16));
    press(Qt::Key_Plus); // The board's last fret.
    QCOMPARE(m_main->workbench.Row(4).mark, std::optional(16));
    press(Qt::Key_Home);
    QCOMPARE(m_main->workbench.Row(4).mark, std::optional(0));
    press(Qt::Key_Space); // The next chord note above the automatic fret.
    QCOMPARE(m_main->workbench.Row(4).mark, std::optional(7));
    QCOMPARE(m_main->window.txtStr->text(), QStringLiteral("5"));
    press(Qt::Key_Backspace);
    QVERIFY(!m_main->workbench.Row(4).mark);
}

void PicturePartsTest::BarreByKeyboard() {
    m_main->board->setFocus();
    const auto press = [this](Qt::Key key) { QTest::keyClick(m_main->board, key); };
    for (int row = 0; row < stringCount; ++row)
        press(Qt::Key_PageDown);
    press(Qt::Key_Space);
    QCOMPARE(m_main->workbench.ShownBarreFret(), std::optional(1));
    press(Qt::Key_Plus);
    press(Qt::Key_Plus);
    QCOMPARE(m_main->workbench.ShownBarreFret(), std::optional(3));
    press(Qt::Key_End);
    press(Qt::Key_Plus);
    QCOMPARE(m_main->workbench.ShownBarreFret(), std::optional(15));
    press(Qt::Key_Enter);
    QVERIFY(!m_main->workbench.ShownBarre());
}

void PicturePartsTest::TheMenuKeyOffersWhatARightClickDoes() {
    const auto choose = [](QWidget* picture, const QString& text) {
        picture->setFocus();
        QTest::keyClick(picture, Qt::Key_Menu);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        for (QAction* action : menu->actions())
            if (action->text() == text)
                return menu->setActiveAction(action), QTest::keyClick(menu, Qt::Key_Return);
        menu->close();
    };
    choose(m_main->board, QStringLiteral("Заглушить"));
    QVERIFY(!m_main->workbench.Row(5).enabled);
    choose(m_main->board, QStringLiteral("Снять всё"));
    QVERIFY(!m_main->workbench.Row(4).mark);
    choose(m_main->keyboard, QStringLiteral("Снять все отметки"));
    QVERIFY(m_main->workbench.Keys().Marked().empty());
    choose(m_main->keyboard, QStringLiteral("none of these"));
    QVERIFY(m_main->workbench.Keys().Marked().empty());
}

void PicturePartsTest::TheFocusIsSeen() {
    for (TwipPicture* picture :
         {static_cast<TwipPicture*>(m_main->board), static_cast<TwipPicture*>(m_main->keyboard)}) {
        m_main->window.lstBase->setFocus();
        const QImage without = picture->grab().toImage();
        picture->setFocus();
        const QImage with = picture->grab().toImage();
        QVERIFY(with != without);
        picture->MoveFocusTo(3);
        QVERIFY(picture->grab().toImage() != with);
    }
}

// The whole bar stays a mark, whatever is shown around it.
void PicturePartsTest::NothingCoversTheBarre() {
    constexpr int barrePart = 6;
    const QPointF crossing = FretboardLayout().MarkCentre(2, 5);
    m_main->Move(m_main->board, crossing);
    QTest::mouseClick(m_main->Find(QStringLiteral("Label3(4)")), Qt::LeftButton);
    QCOMPARE(m_main->Pixel(m_main->board, crossing), Colours::mark);
    m_main->board->setFocus();
    m_main->board->MoveFocusTo(barrePart);
    const QRectF bar = FretboardLayout().BarreRect(*m_main->workbench.ShownBarre());
    for (int row = 0; row < stringCount; ++row)
        QCOMPARE(m_main->Pixel(m_main->board,
                               {bar.center().x(), FretboardLayout().MarkCentre(row, 5).y()}),
                 Colours::mark);
}

void PicturePartsTest::APointedFretShowsItsNote() {
    const QImage before = m_main->board->grab().toImage();
    m_main->Move(m_main->board, FretboardLayout().MarkCentre(2, 2));
    QCOMPARE(Hint(), QStringLiteral("Струна 3, лад 2: A, не отмечена"));
    QVERIFY(m_main->board->grab().toImage() != before);
    QVERIFY(!m_main->workbench.Row(2).mark);
    m_main->Move(m_main->board, FretboardLayout().MarkCentre(2, 5));
    QCOMPARE(Hint(), QStringLiteral("Струна 3, лад 5: C, основной тон"));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(m_main->board, &leave);
    QCOMPARE(Hint(), QString());
    QCOMPARE(m_main->board->grab().toImage(), before);
    m_main->Move(m_main->board, {480, 300}); // On a fret line no fret would be found.
    QCOMPARE(Hint(), QString());
}

void PicturePartsTest::TheFocusedStringIsNamed() {
    m_main->board->setFocus();
    m_main->board->MoveFocusTo(1);
    QCOMPARE(Hint(), QStringLiteral("Струна 5, A, лад 3, C"));
    m_main->board->MoveFocusTo(6);
    QCOMPARE(Hint(), QStringLiteral("Барре, снято"));
}

void PicturePartsTest::ToggleIsAPress() {
    const bool marked = m_main->workbench.Keys().IsMarked(2);
    Act(m_main->keyboard, 2, QAccessibleActionInterface::toggleAction());
    QCOMPARE(m_main->workbench.Keys().IsMarked(2), !marked);
}

void PicturePartsTest::APointedKeyShowsItsNote() {
    m_main->Move(m_main->keyboard, KeyboardLayout().FreeArea(16).center());
    QCOMPARE(Hint(), QStringLiteral("E, октава 2, большая терция"));
    m_main->Move(m_main->board, {480, 300});
    QCOMPARE(Hint(), QString());
    m_main->keyboard->setFocus();
    QTest::keyClick(m_main->keyboard, Qt::Key_Plus);
    QCOMPARE(Hint(), QStringLiteral("C#, октава 1, не отмечена"));
    m_main->window.lstBase->setFocus();
    QCOMPARE(Hint(), QString());
}

void PicturePartsTest::ThePressIsSeenAtOnce() {
    const QPointF place = FretboardLayout().MarkCentre(2, 5);
    m_main->Move(m_main->board, place);
    QVERIFY(m_main->Pixel(m_main->board, place) != QColor(255, 0, 0));
    m_main->Press(m_main->board, place);
    QCOMPARE(m_main->Pixel(m_main->board, place), QColor(255, 0, 0));
}

void PicturePartsTest::AMissingRootSaysSo() {
    QCOMPARE(m_main->window.lblNoS->toolTip(), QString());
    for (const char16_t* string : {u"2", u"5"}) { // The two that sound C.
        m_main->window.txtStr->setText(QString::fromUtf16(string));
        m_main->window.cmdFindNew_Click();
    }
    QVERIFY(m_main->workbench.Missing().rootMissing);
    QCOMPARE(m_main->window.lblNoS->toolTip(),
             QStringLiteral("Ни одна струна не даёт основного тона аккорда."));
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    PicturePartsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "pictureparts_test.moc"
