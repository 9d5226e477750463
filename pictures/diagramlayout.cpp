#include "pictures/diagramlayout.h"

#include <algorithm>

namespace {

constexpr double width = 1320;
constexpr double nameHeight = 300;
constexpr double signHeight = 200;
constexpr double gridHeight = 920;
constexpr double footHeight = 140;
constexpr double stringGap = 164;
constexpr double gridLeft = (width - stringGap * (stringCount - 1)) / 2;
constexpr double signSize = 110;
constexpr double nutHeight = 44;
constexpr double largestDot = 140;
constexpr double dotOfRow = 0.78; // How much of its row's height a dot takes.
constexpr double barOfDot = 0.7;  // A bar is slimmer than the dots of the strings it sounds.
constexpr double positionGap = 36;
constexpr int mostRowsForNumbers = 5;

} // namespace

DiagramLayout::DiagramLayout(const Diagram& diagram)
    : m_named(!diagram.name.isEmpty()), m_leftHanded(diagram.leftHanded) {
    int lowest = 0;
    int highest = 0;
    const auto reach = [&](int fret) {
        if (fret < 1)
            return;
        lowest = lowest == 0 ? fret : std::min(lowest, fret);
        highest = std::max(highest, fret);
    };
    for (int string = 1; string <= stringCount; ++string)
        reach(diagram.shape.Fret(string));
    for (const ShapeBarre& barre : diagram.shape.barres)
        reach(barre.fret);
    // What fits below the nut is shown there, as players know it.
    m_firstFret = highest <= leastRows ? 1 : lowest;
    m_rows = std::max(leastRows, highest - m_firstFret + 1);
}

QSizeF DiagramLayout::Size(bool named) {
    return {width, (named ? nameHeight : 0) + signHeight + gridHeight + footHeight};
}

double DiagramLayout::GridTop() const {
    return (m_named ? nameHeight : 0) + signHeight;
}

double DiagramLayout::RowHeight() const {
    return gridHeight / m_rows;
}

double DiagramLayout::StringX(int string) const {
    const int fromLeft = m_leftHanded ? string - 1 : stringCount - string;
    return gridLeft + fromLeft * stringGap;
}

double DiagramLayout::LineY(int row) const {
    return GridTop() + row * RowHeight();
}

QRectF DiagramLayout::Grid() const {
    return {gridLeft, GridTop(), width - 2 * gridLeft, gridHeight};
}

QRectF DiagramLayout::NutRect() const {
    return {gridLeft, GridTop() - nutHeight, width - 2 * gridLeft, nutHeight};
}

QPointF DiagramLayout::DotCentre(int string, int fret) const {
    return {StringX(string), LineY(fret - m_firstFret) + RowHeight() / 2};
}

double DiagramLayout::DotSize() const {
    return std::min(largestDot, RowHeight() * dotOfRow);
}

QRectF DiagramLayout::DotRect(int string, int fret) const {
    QRectF rect(0, 0, DotSize(), DotSize());
    rect.moveCenter(DotCentre(string, fret));
    return rect;
}

QRectF DiagramLayout::BarreRect(const ShapeBarre& barre) const {
    const QPointF one = DotCentre(barre.thinnest, barre.fret);
    const QPointF other = DotCentre(barre.thickest, barre.fret);
    const double half = DotSize() * barOfDot / 2;
    return QRectF(one, other).normalized().adjusted(-half, -half, half, half);
}

QRectF DiagramLayout::SignRect(int string) const {
    QRectF rect(0, 0, signSize, signSize);
    rect.moveCenter({StringX(string), GridTop() - nutHeight - (signHeight - nutHeight) / 2});
    return rect;
}

bool DiagramLayout::FingersInDots() const {
    return m_rows <= mostRowsForNumbers;
}

QRectF DiagramLayout::FingerRect(int string) const {
    return {StringX(string) - stringGap / 2, GridTop() + gridHeight, stringGap, footHeight};
}

QRectF DiagramLayout::NameRect() const {
    return {0, 0, width, m_named ? nameHeight : 0};
}

QRectF DiagramLayout::PositionRect() const {
    // Clear of the dot on the outermost string; a second figure may reach out.
    const double room = gridLeft - largestDot / 2 - positionGap;
    return {m_leftHanded ? width - room : 0, LineY(0), room, RowHeight()};
}
