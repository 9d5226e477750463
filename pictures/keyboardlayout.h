// Where things lie on the piano, in twips. Painter, mouse and screen reader ask one and the same
// value, as with the fretboard.
#pragma once

#include <QRectF>
#include <QSizeF>

#include <optional>

struct KeyboardLayout {
    static constexpr QSizeF size{7575, 1575};

    double whiteKeyStep = 360;
    double whiteKeyWidth = 375; // Neighbouring outlines meet.
    double blackKeyWidth = 255;
    double blackKeyHeight = 1095;
    double zoneWidth = 123;

    bool operator==(const KeyboardLayout&) const = default;

    // The rectangle of a key 0 to 35; a black key lies over its white neighbours.
    QRectF KeyRect(int key) const;

    // The part of a key where nothing lies over it: a white key's below the black ones.
    QRectF FreeArea(int key) const;

    // The key that a press toggles: by zones of equal width in the upper part, which only
    // nearly follow the black keys, by white keys below; empty on any border.
    std::optional<int> KeyAt(QPointF point) const;
};
