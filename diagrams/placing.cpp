#include "diagrams/placing.h"

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
