// Painting the pages of the sheet, alike on screen, on paper and into a file.
#pragma once

#include "diagrams/sheetpages.h"

#include <QFont>

class QPainter;

// The letters of a style, in twips.
QFont FontOf(TextStyle style);

// How wide the letters make a text. It remembers what it was asked before.
class FontWidths {
public:
    double operator()(TextStyle style, const QString& text) const;
};

// One twip is one unit of the painter, its origin the corner of the paper; black on whatever lies
// behind.
void PaintPage(QPainter& painter, const SheetPage& page);
