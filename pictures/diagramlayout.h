// Where things lie on a chord diagram: strings upright, string 6 at the left, the frets from
// above. Painter and tests both ask here.
#pragma once

#include "music/shape.h"

#include <QRectF>
#include <QSizeF>
#include <QString>

// A shape as it is shown to a reader.
struct Diagram {
    QString name; // Above the shape; no room is kept for an empty one.
    Shape shape;
    bool leftHanded = false; // Mirrored: string 6 at the right.

    bool operator==(const Diagram&) const = default;
};

// All measures are twips of a diagram at its natural size, in which it is printed; what paints
// it larger or smaller scales them all alike.
class DiagramLayout {
public:
    static constexpr int leastRows = 4;

    explicit DiagramLayout(const Diagram& diagram);

    // The natural size of a diagram with a name, and of one without.
    static QSizeF Size(bool named);
    QSizeF Size() const { return Size(m_named); }

    // The fret of the uppermost row: 1 where the nut is drawn, otherwise the position number.
    int FirstFret() const { return m_firstFret; }
    bool HasNut() const { return m_firstFret == 1; }

    // How many frets are shown, so many that all of the shape lie in them.
    int Rows() const { return m_rows; }

    // The upright line of a string, 1 to 6.
    double StringX(int string) const;

    // The line on the far side of a row, counted from 1; 0 is the uppermost line.
    double LineY(int row) const;

    // All strings from the uppermost line to the lowest.
    QRectF Grid() const;
    QRectF NutRect() const;

    // Where a finger stops a string at a fret that is shown.
    QPointF DotCentre(int string, int fret) const;
    double DotSize() const;
    QRectF DotRect(int string, int fret) const;

    // The bar between the strings that it spans, rounded ends included.
    QRectF BarreRect(const ShapeBarre& barre) const;

    // Above a string: the ring of an open one, the cross of a muted one.
    QRectF SignRect(int string) const;

    // Whether the dots are large enough for the fingers' numbers; otherwise these stand below
    // the strings.
    bool FingersInDots() const;
    QRectF FingerRect(int string) const;

    // Where the texts stand; the name is centred, the position number beside its row.
    QRectF NameRect() const;
    QRectF PositionRect() const;

private:
    double GridTop() const;
    double RowHeight() const;

    bool m_named;
    bool m_leftHanded;
    int m_firstFret = 1;
    int m_rows = leastRows;
};
