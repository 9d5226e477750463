// Painting the skinned button: one operation for every state.
#pragma once

#include <QFontMetrics>
#include <QIcon>
#include <QPalette>
#include <QPixmap>

#include <optional>

class QPainter;

constexpr int skinPartSize = 23; // A part's pixels, wide and high.

// A picture's pixels of one colour are shown in another.
struct PictureMask {
    QColor colour;
    QColor replacement;
};

struct GoldButtonLook {
    QRect rect;
    QPalette palette;
    int part = 0; // The number of the state, and of its part in the skin.
    int edge = 0; // Flags of Edge; a skinned button has its skin instead.
    bool skinned = false;
    QPixmap skin;
    QString caption;
    QColor captionColour;
    std::optional<QColor> captionHighlight; // One pixel to the right and below the caption.
    int alignment = 2;
    QIcon picture;
    QSize pictureSize;
    bool faded = false;
    std::optional<PictureMask> mask;
    bool focused = false;
};

void PaintGoldButton(QPainter& painter, const GoldButtonLook& look);

// What caption and picture, side by side, ask for.
QSize GoldButtonSize(const QString& caption, QSize picture, const QFontMetrics& metrics);
