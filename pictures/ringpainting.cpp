#include "pictures/ringpainting.h"

#include <QPainter>

#include <cmath>

namespace {

// On the wood of the neck.
constexpr QColor ring(0xF7, 0xEE, 0xD6);
constexpr QColor insideRing(0x2B, 0x1B, 0x11);
constexpr QColor rootText(0x2B, 0x1B, 0x11);

constexpr int ringedFrets = 15;
constexpr double stampSize = 315; // In twips.
constexpr double ringWidth = 18;
constexpr double ringSize = 270;
constexpr double rootSize = 245;         // A square looks larger than a circle.
constexpr double ringAroundMark = 315;   // Outside a finger mark and its edge.
constexpr double squareAroundMark = 300; // Likewise.

QRectF Centred(QPointF centre, double side) {
    return {centre.x() - side / 2, centre.y() - side / 2, side, side};
}

void PaintOutline(QPainter& painter, const QRectF& rect, bool root) {
    if (root)
        painter.drawRoundedRect(rect, 30, 30);
    else
        painter.drawEllipse(rect);
}

void PaintName(QPainter& painter, const QRectF& rect, PitchClass note) {
    const QString name = NoteName(note).toString();
    QFont font = painter.font();
    font.setPixelSize(name.size() > 1 ? 135 : 165);
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(rect, Qt::AlignCenter, name);
}

bool IsUnderBarre(const FretboardView& view, int row, int fret) {
    return view.barre && view.barre->fret == fret && view.barre->Covers(row);
}

} // namespace

const QPixmap& RingStamps::Stamp(PitchClass note, bool root) {
    QPixmap& stamp = m_stamps[static_cast<std::size_t>(note) + (root ? notesPerOctave : 0)];
    if (!stamp.isNull())
        return stamp;
    const int side = static_cast<int>(std::ceil(stampSize * m_scale * m_ratio));
    stamp = QPixmap(side, side);
    stamp.setDevicePixelRatio(m_ratio);
    stamp.fill(Qt::transparent);
    QPainter painter(&stamp);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(m_scale, m_scale);
    const QRectF whole(0, 0, stampSize, stampSize);
    painter.setPen(QPen(ring, ringWidth));
    painter.setBrush(root ? ring : insideRing);
    PaintOutline(painter, Centred(whole.center(), root ? rootSize : ringSize), root);
    painter.setPen(root ? rootText : ring);
    PaintName(painter, whole, note);
    return stamp;
}

void RingStamps::Paint(QPainter& painter, const FretboardView& view, double scale) {
    const double ratio = painter.device()->devicePixelRatioF();
    if (scale != m_scale || ratio != m_ratio)
        m_stamps = {};
    m_scale = scale;
    m_ratio = ratio;
    for (int row = 0; row < stringCount; ++row) {
        const auto open = view.rings.open[static_cast<std::size_t>(row)];
        for (int fret = 1; open && fret <= ringedFrets; ++fret) {
            const PitchClass note = (*open + fret) % notesPerOctave;
            if (!view.rings.notes.Contains(note) || IsUnderBarre(view, row, fret))
                continue;
            const bool root = view.rings.root == note;
            const QPointF centre = view.layout.MarkCentre(row, fret) * scale;
            if (view.marks[static_cast<std::size_t>(row)] == fret) {
                painter.setPen(QPen(ring, ringWidth * scale));
                painter.setBrush(Qt::NoBrush);
                PaintOutline(painter,
                             Centred(centre, (root ? squareAroundMark : ringAroundMark) * scale),
                             root);
                continue;
            }
            const QPixmap& stamp = Stamp(note, root);
            const QPointF corner = centre - QPointF(stampSize, stampSize) * scale / 2;
            painter.drawPixmap(QPointF(std::round(corner.x() * ratio) / ratio,
                                       std::round(corner.y() * ratio) / ratio),
                               stamp);
        }
    }
}
