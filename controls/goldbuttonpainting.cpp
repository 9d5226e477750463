#include "controls/goldbuttonpainting.h"

#include "controls/edge.h"
#include "controls/elided.h"
#include "controls/focusring.h"
#include "controls/lengths.h"

#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <algorithm>

namespace {

constexpr int skinBorder = 2;
constexpr int skinPiece = 19;
constexpr int skinFar = skinBorder + skinPiece; // Where a part's right and lower borders begin.
static_assert(skinFar + skinBorder == skinPartSize);

constexpr int marginX = 9;
constexpr int marginY = 5;
constexpr int pictureGap = 6;
constexpr int mostLetters = 22; // A longer caption widens the button no further and is cut.
constexpr int captionFlags = Qt::TextSingleLine | Qt::TextShowMnemonic;

// Whole pixels of the window's, also where the screen has several to one of them.
void PaintRing(QPainter& painter, const QRect& ring, const QColor& upper, const QColor& lower) {
    painter.fillRect(QRect(ring.left(), ring.bottom(), ring.width(), 1), lower);
    painter.fillRect(QRect(ring.right(), ring.top(), 1, ring.height()), lower);
    painter.fillRect(QRect(ring.left(), ring.top(), ring.width() - 1, 1), upper);
    painter.fillRect(QRect(ring.left(), ring.top(), 1, ring.height() - 1), upper);
}

// The light falls from the upper left. A single ring lies at the very edge.
void PaintEdge(QPainter& painter, QRect ring, int edge, const QPalette& palette) {
    const QColor light = palette.color(QPalette::Light);
    const QColor midlight = palette.color(QPalette::Midlight);
    const QColor shade = palette.color(QPalette::Dark);
    const QColor dark = palette.color(QPalette::Shadow);
    if ((edge & (Edge::raisedOuter | Edge::sunkenOuter)) != 0) {
        if ((edge & Edge::raisedOuter) != 0)
            PaintRing(painter, ring, midlight, dark);
        else
            PaintRing(painter, ring, shade, light);
        ring.adjust(1, 1, -1, -1);
    }
    if ((edge & Edge::raisedInner) != 0)
        PaintRing(painter, ring, light, shade);
    else if ((edge & Edge::sunkenInner) != 0)
        PaintRing(painter, ring, dark, midlight);
}

void PaintSkin(QPainter& painter, const QRect& rect, const QPixmap& skin, int part) {
    const int parts = qRound(skin.deviceIndependentSize().width()) / skinPartSize;
    const int left = (part < parts ? part : 0) * skinPartSize;
    const double scale = skin.devicePixelRatio();
    const auto copy = [&](QRect target, QRect source) {
        source.translate(left, 0);
        source.setSize(target.size());
        painter.drawPixmap(
            QRectF(target), skin,
            QRectF(QPointF(source.topLeft()) * scale, QSizeF(source.size()) * scale));
    };
    const int right = rect.width() - skinBorder;
    const int bottom = rect.height() - skinBorder;
    for (int x = skinBorder; x < right; x += skinPiece) {
        const int length = std::min(skinPiece, right - x);
        copy({x, 0, length, skinBorder}, {skinBorder, 0, 0, 0});
        copy({x, bottom, length, skinBorder}, {skinBorder, skinFar, 0, 0});
    }
    for (int y = skinBorder; y < bottom; y += skinPiece) {
        const int length = std::min(skinPiece, bottom - y);
        copy({0, y, skinBorder, length}, {0, skinBorder, 0, 0});
        copy({right, y, skinBorder, length}, {skinFar, skinBorder, 0, 0});
    }
    for (const bool far : {false, true}) {
        copy({far ? right : 0, 0, skinBorder, skinBorder}, {far ? skinFar : 0, 0, 0, 0});
        copy({far ? right : 0, bottom, skinBorder, skinBorder}, {far ? skinFar : 0, skinFar, 0, 0});
    }
}

QPainterPath Face(const QRect& rect, double inset) {
    QPainterPath face;
    face.addRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), Lengths::corner,
                        Lengths::corner);
    return face;
}

// The edges end where the corners of all controls begin; a line leads around these.
void PaintCorners(QPainter& painter, const QRect& rect, const QPalette& palette) {
    const int corner = qCeil(Lengths::corner);
    const QRect across = rect.adjusted(corner, 0, -corner, 0);
    const QRect along = rect.adjusted(0, corner, 0, -corner);
    painter.save();
    painter.setClipRegion(QRegion(rect).subtracted(across).subtracted(along));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(Face(rect, 0.5), palette.color(QPalette::Dark));
    painter.restore();
}

QPixmap Masked(const QPixmap& picture, const PictureMask& mask) {
    QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            if (line[x] == mask.colour.rgba())
                line[x] = mask.replacement.rgba();
    }
    return QPixmap::fromImage(image);
}

void PaintPicture(QPainter& painter, const QRect& place, const GoldButtonLook& look) {
    const double scale = painter.deviceTransform().m11(); // Of what is painted on in the end.
    const auto mode = look.faded ? QIcon::Disabled : QIcon::Normal;
    const QPixmap picture = look.picture.pixmap(place.size(), scale, mode);
    painter.drawPixmap(place, look.mask ? Masked(picture, *look.mask) : picture);
}

void PaintCaption(QPainter& painter, const QRect& place, const GoldButtonLook& look) {
    const int flags = captionFlags | Qt::AlignVCenter | Qt::AlignLeft;
    const QString caption =
        Elided(look.caption, painter.fontMetrics(), place.width(), Qt::TextShowMnemonic);
    if (look.captionHighlight) {
        painter.setPen(*look.captionHighlight);
        painter.drawText(place.translated(1, 1), flags, caption);
    }
    painter.setPen(look.captionColour);
    painter.drawText(place, flags, caption);
}

} // namespace

QSize GoldButtonSize(const QString& caption, QSize picture, const QFontMetrics& metrics) {
    QSize size(0, metrics.height());
    if (!caption.isEmpty())
        size.setWidth(TextWidth(caption, metrics, mostLetters * metrics.averageCharWidth(),
                                Qt::TextShowMnemonic));
    if (picture.isValid()) {
        size.rwidth() += picture.width() + (caption.isEmpty() ? 0 : pictureGap);
        size.setHeight(std::max(size.height(), picture.height()));
    }
    return size + QSize(2 * marginX, 2 * marginY);
}

void PaintGoldButton(QPainter& painter, const GoldButtonLook& look) {
    painter.save();
    if (!look.skinned)
        painter.setClipPath(Face(look.rect, 0));
    painter.fillRect(look.rect, look.palette.color(QPalette::Button));
    if (look.skinned && !look.skin.isNull())
        PaintSkin(painter, look.rect, look.skin, look.part);
    else
        PaintEdge(painter, look.rect, look.edge, look.palette);
    painter.restore();
    if (!look.skinned && look.edge != 0)
        PaintCorners(painter, look.rect, look.palette);

    const QFontMetrics metrics(painter.font());
    const QRect inner = look.rect.adjusted(marginX, 0, -marginX, 0);
    const int picture = look.pictureSize.isValid() ? look.pictureSize.width() : 0;
    const int gap = picture > 0 && !look.caption.isEmpty() ? pictureGap : 0;
    const int caption = TextWidth(look.caption, metrics, std::max(0, inner.width() - picture - gap),
                                  Qt::TextShowMnemonic);
    const int free = inner.width() - picture - gap - caption;
    int x = inner.left() + free / 2;
    if (look.alignment == 0)
        x = inner.left();
    else if (look.alignment == 1)
        x = inner.left() + free;
    if (look.pictureSize.isValid()) {
        const QRect place({x, (look.rect.height() - look.pictureSize.height()) / 2},
                          look.pictureSize);
        PaintPicture(painter, place, look);
        x += picture + gap;
    }
    PaintCaption(painter, QRect(x, 0, caption, look.rect.height()), look);
    if (look.focused)
        FocusRing::Paint(painter, QRectF(look.rect).adjusted(2, 2, -2, -2));
}
