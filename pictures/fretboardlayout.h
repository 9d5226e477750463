// Where things lie on the fretboard, in twips from the picture's top left corner. Painter, mouse
// and screen reader ask one and the same value, so that nothing is drawn where it cannot be hit.
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
    static constexpr double markColumn = 247;    // Seven twips off the column's centre.

    bool leftHanded = false; // The nut at the right, and all x counted from there.

    bool operator==(const FretboardLayout&) const = default;

    // The x of a place so far from the nut's edge of the board.
    double FromNut(double distance) const;

    // The line on which a row's string lies.
    static double StringY(int row);

    // The line between the columns of a fret and the next, and a column's middle; 0 is the nut.
    double FretX(int fret) const;
    double FretMiddle(int fret) const;

    // The finger mark of a row at a fret; fret 0 lies beside the board, out of sight.
    QPointF MarkCentre(int row, int fret) const;
    QRectF MarkRect(int row, int fret) const;

    // The bar from just above its last row down past row 0.
    QRectF BarreRect(Barre barre) const;

    // Whether x takes hold of the bar: anywhere in its column, also above a short one.
    bool IsOnBarre(Barre barre, double x) const;

    // By how many frets, -1, 0 or 1, a drag to x moves the bar: only where that is far from it.
    int BarreStep(Barre barre, double x) const;

    // The row of a string across the board.
    static QRectF RowRect(int row);

    // Beside the board: the number of a fret below it, and a row's note at its bridge end.
    QRectF FretLabel(int fret) const;
    QRectF NoteLabel(int row) const;

    // Strictly between two fret lines: 1 to 16; empty on a line.
    std::optional<int> FretAt(double x) const;

    // Strictly between the edges of a row: 0 to 5; empty on an edge or off the rows.
    static std::optional<int> RowAt(double y);

private:
    QRectF Placed(const QRectF& fromNut) const;
};
