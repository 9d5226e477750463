// Painting a chord diagram, alike on screen, on paper and into a file.
#pragma once

#include "pictures/diagramlayout.h"

#include <QColor>

class QPainter;

struct DiagramColours {
    QColor ink;     // Texts, the nut, dots and bars, the signs above the strings.
    QColor lines;   // Strings and frets.
    QColor dotText; // The fingers' numbers in the dots.
};

DiagramColours ScreenDiagramColours();
DiagramColours PaperDiagramColours();

// The part of the place that the diagram fills: as large as fits, its proportions kept, in the
// middle.
QRectF DiagramPlace(const QRectF& place, const Diagram& diagram);

// Paints it there, on whatever lies behind. A name too long for its room is set smaller and in
// the end cut with an ellipsis.
void PaintDiagram(QPainter& painter, const QRectF& place, const Diagram& diagram,
                  const DiagramColours& colours);
