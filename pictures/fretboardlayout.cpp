#include "pictures/fretboardlayout.h"

#include <cmath>

namespace {

constexpr QSizeF labelSize{495, 255};

} // namespace

double FretboardLayout::FromNut(double distance) const {
    return leftHanded ? size.width() - distance : distance;
}

QRectF FretboardLayout::Placed(const QRectF& fromNut) const {
    QRectF placed = fromNut;
    if (leftHanded)
        placed.moveRight(FromNut(fromNut.left()));
    return placed;
}

double FretboardLayout::StringY(int row) {
    return highestString + (stringCount - 1 - row) * rowHeight;
}

double FretboardLayout::FretX(int fret) const {
    return FromNut(fret * fretWidth);
}

double FretboardLayout::FretMiddle(int fret) const {
    return FromNut((fret - 0.5) * fretWidth);
}

QPointF FretboardLayout::MarkCentre(int row, int fret) const {
    return {FromNut(markColumn + (fret - 1) * fretWidth), StringY(row)};
}

QRectF FretboardLayout::MarkRect(int row, int fret) const {
    QRectF rect(0, 0, markSize, markSize);
    rect.moveCenter(MarkCentre(row, fret));
    return rect;
}

QRectF FretboardLayout::BarreRect(Barre barre) const {
    constexpr double bottom = 2160;
    const double top = (stringCount - (barre.lastRow + 1)) * rowHeight + 200;
    return {MarkCentre(0, barre.fret).x() - markSize / 2, top, markSize, bottom - top};
}

bool FretboardLayout::IsOnBarre(Barre barre, double x) const {
    const QRectF bar = BarreRect(barre);
    return bar.left() < x && x < bar.right();
}

int FretboardLayout::BarreStep(Barre barre, double x) const {
    // Wide enough that the barre, once it has moved, does not jump back at once.
    constexpr double deadZone = 400;
    const double distance = FromNut(x) - FromNut(BarreRect(barre).center().x());
    if (std::abs(distance) <= deadZone)
        return 0;
    return distance > 0 ? 1 : -1;
}

QRectF FretboardLayout::RowRect(int row) {
    return {0, StringY(row) - rowHeight / 2, size.width(), rowHeight};
}

QRectF FretboardLayout::FretLabel(int fret) const {
    return Placed({{(fret - 1) * fretWidth, 2160}, labelSize});
}

QRectF FretboardLayout::NoteLabel(int row) const {
    return Placed({{7200, 120 + (stringCount - 1 - row) * rowHeight}, labelSize});
}

std::optional<int> FretboardLayout::FretAt(double x) const {
    const double distance = FromNut(x);
    for (int column = 0; column < fretColumns; ++column)
        if (column * fretWidth < distance && distance < (column + 1) * fretWidth)
            return column + 1;
    return std::nullopt;
}

std::optional<int> FretboardLayout::RowAt(double y) {
    for (int fromTop = 0; fromTop < stringCount; ++fromTop)
        if (firstRowTop + fromTop * rowHeight < y && y < firstRowTop + (fromTop + 1) * rowHeight)
            return stringCount - 1 - fromTop;
    return std::nullopt;
}
