// What all controls have in common to look at: one corner, one line around what can be operated.
#pragma once

#include <QPainter>

// A filled face with a line around it, within the rectangle.
void PaintFace(QPainter& painter, const QRectF& rect, const QColor& fill, const QPen& line);

// A small triangle in the middle, pointing up or down.
void PaintArrow(QPainter& painter, const QRectF& rect, bool up, bool enabled);

// A face that is ticked, or struck through where it is checked half; a round one that is chosen
// where it is on.
void PaintCheck(QPainter& painter, const QRectF& rect, Qt::CheckState state, bool enabled);
void PaintOption(QPainter& painter, const QRectF& rect, bool on, bool enabled);
