// The ring around what the keyboard works on: one look on every control and every part of a
// picture. A press with the mouse takes it away, a key brings it back.
#pragma once

class QPainter;
class QPainterPath;
class QRectF;
class QWidget;

namespace FocusRing {

// Follows mouse and keys of the application from now on.
void Install();

// Whether the control has the focus and shows it.
bool IsShown(const QWidget* control);

// Paints the ring along the border of the area, inside it.
void Paint(QPainter& painter, const QPainterPath& area);
void Paint(QPainter& painter, const QRectF& area);

} // namespace FocusRing
