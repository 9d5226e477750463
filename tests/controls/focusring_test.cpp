// The focus ring: the same on every control, inside it, shown by keys and not by the mouse.
#include "controls/application.h"
#include "controls/colours.h"
#include "controls/dropdown.h"
#include "controls/focusring.h"
#include "controls/goldbutton.h"
#include "controls/listbox.h"
#include "controls/upscrollbar.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

namespace {

int RingPixels(QWidget& window) {
    const QImage image = window.grab().toImage();
    const QColor ring = Colours::focus;
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == ring ? 1 : 0;
    return count;
}

} // namespace

class FocusRingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TheSameOnEveryControl_data();
    void TheSameOnEveryControl();
    void APressTakesItAway();
    void AKeyBringsItBack();
    void ADialogOpenedByTheMouseShowsNone();
    void ItLiesInsideItsArea();
};

void FocusRingTest::TheSameOnEveryControl_data() {
    QTest::addColumn<std::function<QWidget*()>>("make");
    const auto add = [](const char* kind, const std::function<QWidget*()>& make) {
        QTest::newRow(kind) << make;
    };
    add("list", [] {
        auto* list = new ListBox(QStringLiteral("list"));
        list->SetTexts({QStringLiteral("one"), QStringLiteral("two")});
        list->SelectRow(0);
        return list;
    });
    add("drop-down list", [] { return new DropDown(QStringLiteral("list")); });
    add("skinned button", [] { return new GoldButton(QStringLiteral("button")); });
    add("push button", [] { return new QPushButton(QStringLiteral("OK")); });
    add("check box", [] { return new QCheckBox(QStringLiteral("Remember")); });
    add("text field", [] { return new QLineEdit(QStringLiteral("m7")); });
    add("text of several lines", [] { return new QPlainTextEdit(QStringLiteral("x32010")); });
    add("scroll bar", [] { return new UpScrollBar(QStringLiteral("bar"), 1, 6); });
}

void FocusRingTest::TheSameOnEveryControl() {
    QFETCH(const std::function<QWidget*()>, make);
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* other = new QPushButton(QStringLiteral("other"));
    QWidget* control = make();
    layout->addWidget(other);
    layout->addWidget(control);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::mouseClick(other, Qt::LeftButton);
    QVERIFY(other->hasFocus());
    QCOMPARE(RingPixels(window), 0);
    QTest::keyClick(other, Qt::Key_Tab);
    QVERIFY(control->hasFocus());
    QVERIFY(RingPixels(window) > 60);
    const QRect inner = QRect(control->pos(), control->size()).adjusted(-1, -1, 1, 1);
    const QImage image = window.grab().toImage();
    const QColor ring = Colours::focus;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            QVERIFY(image.pixelColor(x, y) != ring || inner.contains(x, y));
    QTest::mouseClick(other, Qt::LeftButton);
    QCOMPARE(RingPixels(window), 0);
}

void FocusRingTest::APressTakesItAway() {
    GoldButton button(QStringLiteral("button"));
    button.show();
    QVERIFY(QTest::qWaitForWindowActive(&button));
    QTest::keyClick(&button, Qt::Key_Tab);
    QVERIFY(FocusRing::IsShown(&button));
    QTest::mousePress(&button, Qt::LeftButton);
    QVERIFY(button.hasFocus());
    QVERIFY(!FocusRing::IsShown(&button));
    QTest::mouseRelease(&button, Qt::LeftButton);
    QVERIFY(!FocusRing::IsShown(&button));
}

void FocusRingTest::AKeyBringsItBack() {
    UpScrollBar bar(QStringLiteral("bar"), 1, 6);
    bar.resize(20, 100);
    bar.show();
    QVERIFY(QTest::qWaitForWindowActive(&bar));
    QTest::mouseClick(&bar, Qt::LeftButton);
    bar.setFocus(Qt::MouseFocusReason);
    QCOMPARE(RingPixels(bar), 0);
    QTest::keyClick(&bar, Qt::Key_Up);
    QVERIFY(RingPixels(bar) > 0);
}

void FocusRingTest::ADialogOpenedByTheMouseShowsNone() {
    GoldButton opener(QStringLiteral("opener"));
    opener.show();
    QVERIFY(QTest::qWaitForWindowActive(&opener));
    QTest::mouseClick(&opener, Qt::LeftButton);
    QDialog dialog;
    auto* layout = new QVBoxLayout(&dialog);
    auto* first = new QCheckBox(QStringLiteral("first"));
    layout->addWidget(first);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTRY_VERIFY(first->hasFocus());
    QVERIFY(!FocusRing::IsShown(first));
    QTest::keyClick(first, Qt::Key_Tab);
    QVERIFY(FocusRing::IsShown(QApplication::focusWidget()));
}

void FocusRingTest::ItLiesInsideItsArea() {
    QImage image(60, 60, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainterPath area;
    area.addRect(10, 10, 40, 40);
    QPainterPath hidden;
    hidden.addRect(10, 10, 12, 20);
    area = area.subtracted(hidden);
    QPainter painter(&image);
    FocusRing::Paint(painter, area);
    painter.end();
    QCOMPARE(image.pixelColor(49, 30), QColor(Colours::focus)); // Just inside,
    QCOMPARE(image.pixelColor(50, 30), QColor(Qt::black));      // nothing outside,
    QCOMPARE(image.pixelColor(15, 15), QColor(Qt::black));      // nor in what is cut out,
    QCOMPARE(image.pixelColor(22, 20), QColor(Colours::focus)); // but beside it,
    QCOMPARE(image.pixelColor(35, 35), QColor(Qt::black));      // and not in the middle.
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    FocusRingTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "focusring_test.moc"
