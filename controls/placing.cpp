#include "controls/placing.h"

#include <QScreen>
#include <QStyle>
#include <QWidget>

#include <algorithm>
#include <array>

std::optional<QRect> PlaceBeside(const QRect& seen, const QSize& size, const QSize& smallest,
                                 const QRect& screen) {
    const std::array sides{
        QRect(QPoint(seen.right() + 1, screen.top()), screen.bottomRight()),
        QRect(screen.topLeft(), QPoint(seen.left() - 1, screen.bottom())),
        QRect(QPoint(screen.left(), seen.bottom() + 1), screen.bottomRight()),
        QRect(screen.topLeft(), QPoint(screen.right(), seen.top() - 1)),
    };
    for (const QRect& side : sides) {
        const QSize room = side.size().boundedTo(screen.size());
        if (room.width() < smallest.width() || room.height() < smallest.height())
            continue;
        QRect place(seen.topLeft(), size.boundedTo(room));
        place.moveLeft(std::clamp(place.left(), side.left(), side.right() + 1 - place.width()));
        place.moveTop(std::clamp(place.top(), side.top(), side.bottom() + 1 - place.height()));
        return place;
    }
    return std::nullopt;
}

QRect OnScreen(const QWidget& control) {
    return {control.mapToGlobal(QPoint()), control.size()};
}

void OpenBeside(QWidget& window, std::initializer_list<QRect> seen) {
    // What the window manager will put above it, as far as it is known yet.
    const QSize title(0, window.style()->pixelMetric(QStyle::PM_TitleBarHeight));
    const QSize smallest = window.minimumSizeHint().expandedTo(window.minimumSize());
    const QSize size = window.sizeHint().expandedTo(smallest);
    for (const QRect& part : seen) {
        const auto beside =
            PlaceBeside(part, size + title, smallest + title, window.screen()->availableGeometry());
        if (!beside)
            continue;
        window.resize(beside->size() - title);
        window.move(beside->topLeft());
        return;
    }
}
