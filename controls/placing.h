// Where a window opens so that it leaves a part of another one free.
#pragma once

#include <QRect>

#include <initializer_list>
#include <optional>

class QWidget;

// The place of a window on the screen beside what is to be seen: right of it, left of it, below
// or above, where there is room first; nothing where there is none. size: of the window with
// its frame; it gives way to smallest before the side is given up.
std::optional<QRect> PlaceBeside(const QRect& seen, const QSize& size, const QSize& smallest,
                                 const QRect& screen);

// Where a control lies on the screen.
QRect OnScreen(const QWidget& control);

// Gives a window that is not shown yet its place beside the first of these, in screen pixels, that
// leaves it room; beside none, it stays where it was.
void OpenBeside(QWidget& window, std::initializer_list<QRect> seen);
