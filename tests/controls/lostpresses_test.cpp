// Presses whose release goes elsewhere, and clicks into a field that asks for a text.
#include "controls/application.h"
#include "controls/goldbutton.h"
#include "controls/promptfield.h"
#include "controls/twippicture.h"
#include "controls/upscrollbar.h"

#include <QBoxLayout>
#include <QDialog>
#include <QSignalSpy>
#include <QTest>

namespace {

class Bar : public UpScrollBar {
public:
    using UpScrollBar::repeatAction;
    using UpScrollBar::UpScrollBar;
};

// A modal dialog comes and gets the release, as when a key opens it during the press.
void LoseReleaseTo(QWidget& window) {
    QDialog dialog(&window);
    dialog.setModal(true);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::mouseRelease(&dialog, Qt::LeftButton);
    dialog.close();
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

void Move(QWidget& widget, QPointF place, Qt::MouseButtons buttons) {
    QMouseEvent move(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton, buttons,
                     {});
    QCoreApplication::sendEvent(&widget, &move);
}

} // namespace

class LostPressesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ADialogEndsThePressOnAPicture();
    void AnOrdinaryReleaseEndsItOnce();
    void ADialogStopsAScrollBar();
    void AButtonLeftByTheFocusIsNotPressedAgain();
    void AButtonThatIsDraggedOffDoesNotLookHovered();
    void AClickIntoThePromptSelectsIt();
    void ATextOfTheUsersOwnGetsAnOrdinaryClick();
    void AskingAgainSelectsAnyText();
};

void LostPressesTest::ADialogEndsThePressOnAPicture() {
    TwipPicture picture(QStringLiteral("picture"), {7215, 2175}, 1);
    picture.resize(481, 145);
    picture.show();
    QVERIFY(QTest::qWaitForWindowActive(&picture));
    QSignalSpy up(&picture, &TwipPicture::MouseUp);
    QTest::mousePress(&picture, Qt::LeftButton, {}, {10, 10});
    QCOMPARE(up.size(), 0);
    LoseReleaseTo(picture);
    QCOMPARE(up.size(), 1);
}

void LostPressesTest::AnOrdinaryReleaseEndsItOnce() {
    TwipPicture picture(QStringLiteral("picture"), {7215, 2175}, 1);
    picture.resize(481, 145);
    picture.show();
    QVERIFY(QTest::qWaitForWindowActive(&picture));
    QSignalSpy up(&picture, &TwipPicture::MouseUp);
    QTest::mouseClick(&picture, Qt::LeftButton, {}, {10, 10});
    LoseReleaseTo(picture);
    QCOMPARE(up.size(), 1);
}

void LostPressesTest::ADialogStopsAScrollBar() {
    Bar bar(QStringLiteral("bar"), 1, 6);
    bar.resize(20, 100);
    bar.show();
    QVERIFY(QTest::qWaitForWindowActive(&bar));
    QTest::mousePress(&bar, Qt::LeftButton, {}, {10, 4});
    QCOMPARE(bar.value(), 2);
    QVERIFY(bar.repeatAction() != QAbstractSlider::SliderNoAction);
    LoseReleaseTo(bar);
    QTest::keyClick(&bar, Qt::Key_PageUp);
    QCOMPARE(bar.value(), 3);                                      // The key turns it as ever,
    QCOMPARE(bar.repeatAction(), QAbstractSlider::SliderNoAction); // and nothing else does.
}

void LostPressesTest::AButtonLeftByTheFocusIsNotPressedAgain() {
    GoldButton button(QStringLiteral("button"));
    button.resize(100, 40);
    button.show();
    QVERIFY(QTest::qWaitForWindowActive(&button));
    button.setFocus();
    QSignalSpy click(&button, &GoldButton::Click);
    QTest::mousePress(&button, Qt::LeftButton, {}, {50, 20});
    button.clearFocus();
    Move(button, {51, 20}, Qt::LeftButton);
    QCOMPARE(button.CurrentState(), GoldButton::State::Normal);
    QTest::mouseRelease(&button, Qt::LeftButton, {}, {51, 20});
    QCOMPARE(click.size(), 0);
    QTest::mouseClick(&button, Qt::LeftButton, {}, {50, 20}); // The next press is a new one.
    QCOMPARE(click.size(), 1);
}

void LostPressesTest::AButtonThatIsDraggedOffDoesNotLookHovered() {
    GoldButton button(QStringLiteral("button"));
    button.resize(100, 40);
    button.show();
    QVERIFY(QTest::qWaitForWindowActive(&button));
    QSignalSpy left(&button, &GoldButton::MouseExit);
    Move(button, {50, 20}, Qt::NoButton);
    QCOMPARE(button.CurrentState(), GoldButton::State::Hover);
    QTest::mousePress(&button, Qt::LeftButton, {}, {50, 20});
    QCOMPARE(button.CurrentState(), GoldButton::State::Down);
    Move(button, {300, 20}, Qt::LeftButton);
    QCOMPARE(button.CurrentState(), GoldButton::State::Normal);
    Move(button, {50, 20}, Qt::LeftButton);
    QCOMPARE(button.CurrentState(), GoldButton::State::Down);
    Move(button, {300, 20}, Qt::LeftButton);
    QCOMPARE(left.size(), 0);
    QTest::mouseRelease(&button, Qt::LeftButton, {}, {300, 20});
    QCOMPARE(left.size(), 1); // The release outside ends the hover.
    QCOMPARE(button.CurrentState(), GoldButton::State::Normal);
}

void LostPressesTest::AClickIntoThePromptSelectsIt() {
    PromptField field(QStringLiteral("field"));
    field.SetPrompt(QStringLiteral("Enter a chord type"));
    field.resize(200, 30);
    field.show();
    QVERIFY(QTest::qWaitForWindowActive(&field));
    field.deselect();
    QTest::mousePress(&field, Qt::LeftButton, {}, {30, 15});
    Move(field, {33, 15}, Qt::LeftButton);
    QTest::mouseRelease(&field, Qt::LeftButton, {}, {33, 15});
    QCOMPARE(field.selectedText(), QStringLiteral("Enter a chord type"));
    QTest::mouseDClick(&field, Qt::LeftButton, {}, {30, 15});
    QCOMPARE(field.selectedText(), QStringLiteral("Enter a chord type"));
    QTest::keyClicks(&field, QStringLiteral("m7"));
    QCOMPARE(field.text(), QStringLiteral("m7"));
}

void LostPressesTest::ATextOfTheUsersOwnGetsAnOrdinaryClick() {
    PromptField field(QStringLiteral("field"));
    field.SetPrompt(QStringLiteral("Enter a chord type"));
    field.setText(QStringLiteral("minor seventh"));
    field.resize(200, 30);
    field.show();
    QVERIFY(QTest::qWaitForWindowActive(&field));
    QTest::mouseClick(&field, Qt::LeftButton, {}, {10, 15});
    QCOMPARE(field.selectedText(), QString());
    QVERIFY(field.cursorPosition() < 5);
}

void LostPressesTest::AskingAgainSelectsAnyText() {
    PromptField field(QStringLiteral("field"));
    field.setText(QStringLiteral("m77"));
    field.show();
    QVERIFY(QTest::qWaitForWindowActive(&field));
    field.clearFocus();
    field.AskAgain();
    QVERIFY(field.hasFocus());
    QCOMPARE(field.selectedText(), QStringLiteral("m77"));
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    LostPressesTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "lostpresses_test.moc"
