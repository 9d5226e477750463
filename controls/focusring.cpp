#include "controls/focusring.h"

#include "controls/colours.h"
#include "controls/lengths.h"

#include <QApplication>
#include <QFocusEvent>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>

namespace {

// Whether the keyboard was used last. The focus that a program gives counts as the keyboard's.
class Watch : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            Use(false);
            break;
        case QEvent::KeyPress:
            Use(true);
            break;
        case QEvent::FocusIn:
            Follow(watched, static_cast<QFocusEvent*>(event)->reason());
            break;
        default:
            break;
        }
        return false;
    }

    bool keyboard = true;

private:
    void Use(bool byKeyboard) {
        if (keyboard == byKeyboard)
            return;
        keyboard = byKeyboard;
        if (QWidget* focus = QApplication::focusWidget())
            focus->update();
    }

    void Follow(const QObject* watched, Qt::FocusReason reason) {
        // A dialog that opens sends such an event for its looks, without the focus.
        const auto* control = qobject_cast<const QWidget*>(watched);
        if (control == nullptr || !control->hasFocus())
            return;
        if (reason == Qt::MouseFocusReason)
            Use(false);
        else if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                 reason == Qt::ShortcutFocusReason || reason == Qt::OtherFocusReason)
            Use(true);
    }
};

Watch* watch = nullptr;

} // namespace

void FocusRing::Install() {
    if (watch != nullptr)
        return;
    watch = new Watch(qApp);
    QObject::connect(watch, &QObject::destroyed, [] { watch = nullptr; });
    qApp->installEventFilter(watch);
}

bool FocusRing::IsShown(const QWidget* control) {
    return control != nullptr && control->hasFocus() && (watch == nullptr || watch->keyboard);
}

void FocusRing::Paint(QPainter& painter, const QPainterPath& area) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipPath(area, Qt::IntersectClip);
    // Half of each line lies outside the area.
    for (const QPen& pen : {QPen(Colours::besideFocus, 6), QPen(Colours::focus, 4)})
        painter.strokePath(area, pen);
    painter.restore();
}

void FocusRing::Paint(QPainter& painter, const QRectF& area) {
    QPainterPath path;
    path.addRoundedRect(area, Lengths::corner, Lengths::corner);
    Paint(painter, path);
}
