#include "pictures/neckpainting.h"

#include "controls/colours.h"
#include "music/shape.h"
#include "pictures/fretboardlayout.h"

#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

constexpr QColor wood(0x54, 0x35, 0x22);
constexpr QColor woodDark(0x3C, 0x25, 0x17);
constexpr QColor woodLight(0x6A, 0x45, 0x2D);
constexpr QColor binding(0xE9, 0xDD, 0xC2);
constexpr QColor nut(0xF4, 0xEC, 0xD8);
constexpr QColor pearl(0xE6, 0xE2, 0xD6);
constexpr QColor fretBright(0xE4, 0xE0, 0xD8);
constexpr QColor fretShade(0x8A, 0x83, 0x78);
constexpr QColor plainString(0xE2, 0xE0, 0xDA);
constexpr QColor woundString(0xC9, 0xA6, 0x5A);
constexpr QColor shadow(0, 0, 0, 90);
constexpr QColor sounding(0xFF, 0xD2, 0x4A);
constexpr QColor markEdge(0x8E, 0x00, 0x00);
constexpr QColor rootRing(0xF7, 0xEE, 0xD6);
constexpr QColor chosenRow(0xFF, 0xE2, 0xA8, 44);
constexpr QColor chosenRowEnd(0xFF, 0xD2, 0x4A);

constexpr double neckTop = 75;
constexpr double neckBottom = 2145;
constexpr double inlaySize = 150;

double Gauge(int string) {
    constexpr std::array<double, stringCount> gauges{14, 18, 24, 32, 42, 54};
    return gauges[static_cast<std::size_t>(string - 1)];
}

void PaintWood(QPainter& painter) {
    const QRectF neck(0, neckTop, FretboardLayout::size.width(), neckBottom - neckTop);
    QLinearGradient roundness(neck.topLeft(), neck.bottomLeft());
    roundness.setColorAt(0, woodDark);
    roundness.setColorAt(0.25, wood);
    roundness.setColorAt(0.5, woodLight);
    roundness.setColorAt(0.75, wood);
    roundness.setColorAt(1, woodDark);
    painter.fillRect(neck, roundness);
    // Grain: streaks along the neck, strewn so evenly irregular that no pattern shows.
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (int streak = 0; streak < 150; ++streak) {
        const double x = std::fmod(streak * 4637.0, neck.width() + 1800) - 1800;
        const double y = neckTop + std::fmod(streak * 1279.0, neck.height() - 20);
        const double length = 900 + streak % 7 * 260;
        const QColor shade = streak % 3 == 0 ? QColor(255, 220, 180, 14) : QColor(0, 0, 0, 34);
        painter.fillRect(QRectF(x, y, length, 15), shade);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRectF(0, neckTop - 30, neck.width(), 30), binding);
    painter.fillRect(QRectF(0, neckBottom, neck.width(), 30), binding);
}

void PaintInlay(QPainter& painter, double x, double y) {
    const QRectF dot(x - inlaySize / 2, y - inlaySize / 2, inlaySize, inlaySize);
    QRadialGradient shine(dot.center() - QPointF(30, 30), inlaySize);
    shine.setColorAt(0, pearl.lighter(108));
    shine.setColorAt(1, pearl.darker(125));
    painter.setPen(Qt::NoPen);
    painter.setBrush(shine);
    painter.drawEllipse(dot);
}

void PaintInlays(QPainter& painter, const FretboardLayout& layout) {
    const double middle = (FretboardLayout::StringY(2) + FretboardLayout::StringY(3)) / 2;
    for (const int fret : {3, 5, 7, 9, 12, 15}) {
        const double x = layout.FretMiddle(fret);
        if (fret == 12) {
            PaintInlay(painter, x, middle - FretboardLayout::rowHeight);
            PaintInlay(painter, x, middle + FretboardLayout::rowHeight);
        } else {
            PaintInlay(painter, x, middle);
        }
    }
}

void PaintFrets(QPainter& painter, const FretboardLayout& layout) {
    const double height = neckBottom - neckTop;
    const auto fromNut = [&](double from, double to) {
        return QRectF(QPointF(layout.FromNut(from), neckTop),
                      QPointF(layout.FromNut(to), neckBottom))
            .normalized();
    };
    painter.fillRect(fromNut(0, 45), nut);
    painter.fillRect(fromNut(45, 60), shadow);
    for (int fret = 1; fret < FretboardLayout::fretColumns; ++fret) {
        const double x = layout.FretX(fret);
        painter.fillRect(QRectF(x - 15, neckTop, 30, height), fretBright);
        painter.fillRect(QRectF(x + 5, neckTop, 10, height), fretShade);
        painter.fillRect(QRectF(x + 15, neckTop, 15, height), shadow);
    }
}

void PaintString(QPainter& painter, int row, int string) {
    const double y = FretboardLayout::StringY(row);
    const double width = FretboardLayout::size.width();
    const double gauge = Gauge(string);
    const QColor metal = string <= 3 ? plainString : woundString;
    painter.fillRect(QRectF(0, y + gauge / 2, width, 14 + gauge / 3), shadow);
    QLinearGradient round(0, y - gauge / 2, 0, y + gauge / 2);
    round.setColorAt(0, metal.lighter(115));
    round.setColorAt(0.45, metal);
    round.setColorAt(1, metal.darker(170));
    painter.fillRect(QRectF(0, y - gauge / 2, width, gauge), round);
}

void PaintSounding(QPainter& painter, int row, int string) {
    QPainterPath wave;
    const double y = FretboardLayout::StringY(row);
    const double swing = 34 + Gauge(string) / 2;
    const double width = FretboardLayout::size.width();
    wave.moveTo(0, y);
    wave.quadTo(width / 2, y - 2 * swing, width, y);
    wave.quadTo(width / 2, y + 2 * swing, 0, y);
    QColor glow = sounding;
    glow.setAlpha(110);
    painter.setBrush(glow);
    painter.setPen(QPen(sounding, 15));
    painter.drawPath(wave);
}

// A light along the string, and a wedge at its bridge end.
void PaintChosenRow(QPainter& painter, const FretboardLayout& layout, int row) {
    constexpr double nutWidth = 60;
    constexpr double wedge = 100;
    const double end = FretboardLayout::size.width();
    const double y = FretboardLayout::StringY(row);
    const double half = FretboardLayout::rowHeight / 2 - 15;
    painter.setPen(Qt::NoPen);
    painter.setBrush(chosenRow);
    painter.drawRect(
        QRectF(QPointF(layout.FromNut(nutWidth), y - half), QPointF(layout.FromNut(end), y + half))
            .normalized());
    painter.setBrush(chosenRowEnd);
    painter.drawPolygon(QPolygonF({{layout.FromNut(end), y - wedge},
                                   {layout.FromNut(end), y + wedge},
                                   {layout.FromNut(end - wedge), y}}));
}

// The prescribed colour fills the mark; its edge lies outside, and so does the ring of a root.
void PaintFinger(QPainter& painter, const QRectF& disc, bool root) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(shadow);
    painter.drawEllipse(disc.translated(12, 22).adjusted(-6, -6, 6, 6));
    if (root) {
        painter.setBrush(rootRing);
        painter.drawEllipse(disc.adjusted(-42, -42, 42, 42));
    }
    painter.setBrush(markEdge);
    painter.drawEllipse(disc.adjusted(-15, -15, 15, 15));
    painter.setBrush(Colours::mark);
    painter.drawEllipse(disc);
}

// Which finger it is, at the right of the centre, which keeps its colour: three pixels, and what
// the letter's edge takes of the next.
void PaintFingerNumber(QPainter& painter, QPointF centre, int finger) {
    if (finger == 0)
        return;
    constexpr double end = 120;
    constexpr double letterShare = 0.7; // Of a digit's height, its width.
    const double pixel = 1 / painter.deviceTransform().m11();
    const double begin = std::max(22.0, 2.6 * pixel);
    const QRectF beside(begin, -75, end - begin, 150);
    QFont font = painter.font();
    font.setPixelSize(qFloor((end - begin) / letterShare));
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Colours::onWood);
    painter.drawText(beside.translated(centre), Qt::AlignCenter, QString::number(finger));
}

// The bar has its number once, in its lowest row that no mark of its own hides.
void PaintBarreNumber(QPainter& painter, const FretboardView& view) {
    for (int row = 0; row <= view.barre->lastRow; ++row) {
        const auto index = static_cast<std::size_t>(row);
        if (!view.marks[index] && view.fingers[index] > 0)
            return PaintFingerNumber(painter, view.layout.MarkCentre(row, view.barre->fret),
                                     view.fingers[index]);
    }
}

// Where the next click would set a finger, and the note that it would give.
void PaintPointed(QPainter& painter, const QRectF& disc, const QString& note) {
    painter.setPen(QPen(Colours::onWoodRing, 20));
    painter.setBrush(Colours::onWood);
    painter.drawEllipse(disc);
    QFont font = painter.font();
    font.setPixelSize(note.size() > 1 ? 135 : 165);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Colours::onWoodText);
    painter.drawText(disc, Qt::AlignCenter, note);
}

void PaintBarre(QPainter& painter, const QRectF& bar) {
    painter.fillRect(bar.translated(22, 0), shadow);
    painter.fillRect(bar.adjusted(-12, -12, 12, 12), markEdge);
    painter.fillRect(bar, Colours::mark);
}

} // namespace

void PaintNeck(QPainter& painter, const FretboardLayout& layout, bool thinStringAtBottom) {
    painter.fillRect(QRectF(QPointF(0, 0), FretboardLayout::size), Colours::plate.Now());
    PaintWood(painter);
    PaintInlays(painter, layout);
    PaintFrets(painter, layout);
    for (int row = 0; row < stringCount; ++row)
        PaintString(painter, row, StringOfRow(row, thinStringAtBottom));
}

void PaintMarks(QPainter& painter, const FretboardView& view) {
    if (view.chosenRow)
        PaintChosenRow(painter, view.layout, *view.chosenRow);
    for (int row = 0; row < stringCount; ++row) {
        if (!view.muted[static_cast<std::size_t>(row)])
            continue;
        const double y = FretboardLayout::StringY(row);
        QPen gaps(woodDark, 66);
        gaps.setDashPattern({1.6, 1.6});
        painter.setPen(gaps);
        painter.drawLine(QPointF(view.layout.FromNut(60), y),
                         QPointF(view.layout.FromNut(FretboardLayout::size.width()), y));
    }
    for (int row = 0; row < stringCount; ++row)
        if (view.soundingRows[static_cast<std::size_t>(row)])
            PaintSounding(painter, row, StringOfRow(row, view.thinStringAtBottom));
    if (view.barre)
        PaintBarre(painter, view.layout.BarreRect(*view.barre));
    for (int row = 0; row < stringCount; ++row)
        if (const auto fret = view.marks[static_cast<std::size_t>(row)]) {
            // While all places of its notes have rings, the root's is among them.
            const bool root = view.roots[static_cast<std::size_t>(row)] && view.rings.notes.Empty();
            PaintFinger(painter, view.layout.MarkRect(row, *fret), root);
            PaintFingerNumber(painter, view.layout.MarkCentre(row, *fret),
                              view.fingers[static_cast<std::size_t>(row)]);
        }
    if (view.barre)
        PaintBarreNumber(painter, view);
    if (!view.pointed || view.pointedNote.isEmpty())
        return;
    const auto [row, fret] = *view.pointed;
    if (view.marks[static_cast<std::size_t>(row)] != fret)
        PaintPointed(painter, view.layout.MarkRect(row, fret), view.pointedNote);
}
