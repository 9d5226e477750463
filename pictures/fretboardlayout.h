// Where things lie on the fretboard, in twips. Painter and mouse both ask here.
#pragma once

#include "music/fingering.h"
#include "music/shape.h"

#include <QRectF>
#include <QSizeF>

struct FretboardLayout {
    static constexpr QSizeF size{7215, 2175};
    static constexpr int fretColumns = 16;
    static constexpr double fretWidth = 480;
    static constexpr double rowHeight = 360;
    static constexpr double firstRowTop = 60;
    static constexpr double markSize = 255;
    static constexpr double highestString = 240; // The middle line of row 5.
    static constexpr double markColumn = 247;    // Seven twips right of the column's centre.

    // The line on which a row's string lies.
    static double StringY(int row);

    // The line between the columns of a fret and the next; 0 is the nut.
    static double FretX(int fret);

    // The finger mark of a row at a fret; fret 0 lies left of the board, out of sight.
    static QPointF MarkCentre(int row, int fret);
    static QRectF MarkRect(int row, int fret);

    // The bar from just above its last row down past row 0.
    static QRectF BarreRect(Barre barre);

    // Whether x takes hold of the bar: anywhere in its column, also above a short one.
    static bool IsOnBarre(Barre barre, double x);

    // By how many frets, -1, 0 or 1, a drag to x moves the bar: only where that is far from it.
    static int BarreStep(Barre barre, double x);

    // The row of a string across the board.
    static QRectF RowRect(int row);

    // Strictly between two fret lines: 1 to 16; empty on a line.
    static std::optional<int> FretAt(double x);

    // Strictly between the edges of a row: 0 to 5; empty on an edge or off the rows.
    static std::optional<int> RowAt(double y);
};
