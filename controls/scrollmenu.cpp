#include "controls/scrollmenu.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QScrollBar>

#include <utility>

namespace {

// The value whose place along the bar is the pointer's.
int ValueAt(const QScrollBar& bar, QPoint place) {
    const bool upright = bar.orientation() == Qt::Vertical;
    const double length = upright ? bar.height() : bar.width();
    const double part = (upright ? place.y() : place.x()) / length;
    const double share = bar.invertedAppearance() ? 1 - part : part;
    return bar.minimum() + qRound(share * (bar.maximum() - bar.minimum()));
}

void ShowMenu(QScrollBar* bar, const QContextMenuEvent& event) {
    auto* menu = new QMenu(bar);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [menu, bar](const QString& text, QAbstractSlider::SliderAction action) {
        QObject::connect(menu->addAction(text), &QAction::triggered, bar,
                         [bar, action] { bar->triggerAction(action); });
    };
    const bool upright = bar->orientation() == Qt::Vertical;
    // The two ways, the one towards the smaller value first.
    const auto addBoth = [&](const QString& back, const QString& on,
                             QAbstractSlider::SliderAction less,
                             QAbstractSlider::SliderAction more) {
        if (bar->invertedAppearance())
            std::swap(less, more);
        add(back, less);
        add(on, more);
    };
    const int value = ValueAt(*bar, event.pos());
    QObject::connect(menu->addAction(QScrollBar::tr("Scroll here")), &QAction::triggered, bar,
                     [bar, value] { bar->setValue(value); });
    menu->addSeparator();
    addBoth(upright ? QScrollBar::tr("Top") : QScrollBar::tr("Left edge"),
            upright ? QScrollBar::tr("Bottom") : QScrollBar::tr("Right edge"),
            QAbstractSlider::SliderToMinimum, QAbstractSlider::SliderToMaximum);
    menu->addSeparator();
    addBoth(upright ? QScrollBar::tr("Page up") : QScrollBar::tr("Page left"),
            upright ? QScrollBar::tr("Page down") : QScrollBar::tr("Page right"),
            QAbstractSlider::SliderPageStepSub, QAbstractSlider::SliderPageStepAdd);
    menu->addSeparator();
    addBoth(upright ? QScrollBar::tr("Scroll up") : QScrollBar::tr("Scroll left"),
            upright ? QScrollBar::tr("Scroll down") : QScrollBar::tr("Scroll right"),
            QAbstractSlider::SliderSingleStepSub, QAbstractSlider::SliderSingleStepAdd);
    menu->popup(event.globalPos());
}

class ScrollMenus : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* bar =
            event->type() == QEvent::ContextMenu ? qobject_cast<QScrollBar*>(watched) : nullptr;
        if (bar != nullptr)
            ShowMenu(bar, *static_cast<QContextMenuEvent*>(event));
        return bar != nullptr;
    }
};

} // namespace

void InstallScrollMenus() {
    qApp->installEventFilter(new ScrollMenus(qApp));
}
