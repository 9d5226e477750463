// What the pictures on buttons are drawn with: on a square of 24 units, in the window's colours.
#pragma once

#include "controls/colours.h"

#include <QPainter>

#include <initializer_list>

QPen Line(const QColor& colour = Colours::text, double width = 1.8);

// What is painted from here: areas of the colour without a line, or lines of it.
void Fill(QPainter& painter, const QColor& colour = Colours::selection);
void Stroke(QPainter& painter, const QColor& colour = Colours::text);

void Strokes(QPainter& painter, std::initializer_list<QLineF> lines);

void PaintKeys(QPainter& painter, const QRectF& area);    // Three white keys with two black ones.
void PaintStrings(QPainter& painter, const QRectF& area); // Three strings over two frets.
void PaintTriangle(QPainter& painter, QPointF tip, double size); // It points to the right.
void PaintArrow(QPainter& painter, QPointF from, QPointF to);    // Up or down.
void PaintSheet(QPainter& painter, const QRectF& area);
void PaintQuestionMark(QPainter& painter, QPointF centre, double height);
