// The skinned button: what it tells its container, and when it paints itself anew.
#include "controls/application.h"
#include "controls/goldbutton.h"

#include <QDragMoveEvent>
#include <QDropEvent>
#include <QMetaProperty>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

namespace {

// Counts how often the button paints itself, and can be dropped upon without a desktop.
class WatchedButton : public GoldButton {
public:
    using GoldButton::dragMoveEvent;
    using GoldButton::dropEvent;
    using GoldButton::GoldButton;

    int painted = 0;

protected:
    void paintEvent(QPaintEvent* event) override {
        GoldButton::paintEvent(event);
        ++painted;
    }
};

// What the container was told of a drag.
struct Drag {
    const QMimeData* data;
    int shift;
    QPointF place;

    bool operator==(const Drag&) const = default;
};

} // namespace

class GoldButtonEventsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ASetterPaintsAnew_data();
    void ASetterPaintsAnew();
    void AReleaseOutsideClicksNothing();
    void ADragOverIsPassedOn();
    void ADropIsPassedOn();
};

void GoldButtonEventsTest::ASetterPaintsAnew_data() {
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    QPixmap picture(20, 20);
    picture.fill(Qt::green);
    const QVariant icon = QVariant::fromValue(QIcon(picture));
    const auto add = [](const char* property, const QVariant& value) {
        QTest::newRow(property) << QByteArray(property) << value;
    };
    add("Caption", QStringLiteral("Play"));
    add("Enabled", false);
    add("Alignment", 0);
    for (const char* colour : {"HoverColor", "ForeColor", "DownColor", "SkinDisabledText",
                               "SkinHighlight", "PictureBackColor", "MaskColor"})
        add(colour, QColor(1, 2, 3));
    for (const char* edge : {"OnUp", "OnDown", "OnHover"})
        add(edge, 9);
    add("Style", 1);
    add("UseMaskColor", true);
    add("SkinPicture", picture);
    for (const char* shown : {"Picture", "PictureHover", "PictureDown", "PictureDisabled"})
        add(shown, icon);
    add("Font", QFont(QStringLiteral("Arial"), 22));
}

void GoldButtonEventsTest::ASetterPaintsAnew() {
    QFETCH(const QByteArray, property);
    QFETCH(const QVariant, value);
    WatchedButton button(QStringLiteral("cmdTest"));
    button.resize(120, 40);
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    QTRY_VERIFY(button.painted > 0);
    QCoreApplication::processEvents();
    button.painted = 0;
    QVERIFY(button.setProperty(property.constData(), value));
    QTRY_VERIFY(button.painted > 0);
}

void GoldButtonEventsTest::AReleaseOutsideClicksNothing() {
    GoldButton button(QStringLiteral("cmdTest"));
    button.resize(120, 40);
    button.show();
    QSignalSpy click(&button, &GoldButton::Click);
    QSignalSpy up(&button, &GoldButton::MouseUp);
    QSignalSpy enter(&button, &GoldButton::MouseEnter);
    QSignalSpy leave(&button, &GoldButton::MouseExit);
    const auto move = [&button](QPointF place, Qt::MouseButtons buttons) {
        QMouseEvent event(QEvent::MouseMove, place, button.mapToGlobal(place), Qt::NoButton,
                          buttons, {});
        QCoreApplication::sendEvent(&button, &event);
    };
    move({5, 5}, Qt::NoButton);
    QCOMPARE(enter.size(), 1);
    QTest::mousePress(&button, Qt::LeftButton, {}, {5, 5});
    move({300, 5}, Qt::LeftButton);
    QTest::mouseRelease(&button, Qt::LeftButton, {}, {300, 5});
    QCOMPARE(click.size(), 0);
    QCOMPARE(up.size(), 1);
    QCOMPARE(leave.size(), 1); // The hover has ended, without a move to tell it.
    QCOMPARE(button.CurrentState(), GoldButton::State::Normal);
}

void GoldButtonEventsTest::ADragOverIsPassedOn() {
    WatchedButton button(QStringLiteral("cmdTest"));
    QMimeData data;
    std::vector<Drag> over;
    connect(&button, &GoldButton::OLEDragOver,
            [&over](const QMimeData* dragged, int shift, double x, double y) {
                over.push_back({dragged, shift, {x, y}});
            });
    data.setText(QStringLiteral("x32010"));
    QDragMoveEvent move({7, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::ShiftModifier);
    button.dragMoveEvent(&move);
    QVERIFY(over == (std::vector{Drag{&data, 1, {7, 9}}}));
    QVERIFY(move.isAccepted());
}

void GoldButtonEventsTest::ADropIsPassedOn() {
    WatchedButton button(QStringLiteral("cmdTest"));
    QMimeData data;
    std::vector<Drag> dropped;
    connect(&button, &GoldButton::OLEDragDrop,
            [&dropped](const QMimeData* dragged, int shift, double x, double y) {
                dropped.push_back({dragged, shift, {x, y}});
            });
    data.setText(QStringLiteral("x32010"));
    QDropEvent drop(QPointF(7, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::ControlModifier);
    button.dropEvent(&drop);
    QVERIFY(dropped == (std::vector{Drag{&data, 2, {7, 9}}}));
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    GoldButtonEventsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "goldbuttonevents_test.moc"
