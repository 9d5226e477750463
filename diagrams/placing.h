// Where a window opens so that it leaves a part of another one free.
#pragma once

#include <QRect>

#include <optional>

// The place of a window on the screen beside what is to be seen: right of it, left of it, below
// or above, where there is room first; nothing where there is none. size: of the window with
// its frame; it gives way to smallest before the side is given up.
std::optional<QRect> PlaceBeside(const QRect& seen, const QSize& size, const QSize& smallest,
                                 const QRect& screen);
