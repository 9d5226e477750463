// Where things lie on the piano, in twips. Painter and mouse both ask here.
#pragma once

#include <QRectF>
#include <QSizeF>

#include <optional>

struct KeyboardLayout {
    static constexpr QSizeF size{7575, 1575};
    static constexpr double whiteKeyStep = 360;
    static constexpr double whiteKeyWidth = 375; // Neighbouring outlines meet.
    static constexpr double blackKeyWidth = 255;
    static constexpr double blackKeyHeight = 1095;
    static constexpr double zoneWidth = 123;

    // The rectangle of a key 0 to 35; a black key lies over its white neighbours.
    static QRectF KeyRect(int key);

    // The part of a key where nothing lies over it: a white key's below the black ones.
    static QRectF FreeArea(int key);

    // The key that a press toggles: by zones of equal width in the upper part, which only
    // nearly follow the black keys, by white keys below; empty on any border.
    static std::optional<int> KeyAt(QPointF point);
};
