#include "pictures/keyboardlayout.h"

#include "music/pianokeys.h"

#include <algorithm>

namespace {

// The white key that a key is, or that a black key stands to the left of.
int WhiteKeyAtOrAbove(int key) {
    const auto found = std::lower_bound(WhiteKeyNotes.begin(), WhiteKeyNotes.end(), key);
    return static_cast<int>(found - WhiteKeyNotes.begin());
}

// The number of the strip of this width that x lies in, strictly inside it.
std::optional<int> StripAt(double x, double width, int count) {
    for (int strip = 0; strip < count; ++strip)
        if (strip * width < x && x < (strip + 1) * width)
            return strip;
    return std::nullopt;
}

} // namespace

QRectF KeyboardLayout::KeyRect(int key) const {
    const double left = WhiteKeyAtOrAbove(key) * whiteKeyStep;
    if (IsBlackKey(key))
        return {left - 120, 0, blackKeyWidth, blackKeyHeight};
    return {left, 0, whiteKeyWidth, size.height()};
}

QRectF KeyboardLayout::FreeArea(int key) const {
    QRectF area = KeyRect(key);
    if (!IsBlackKey(key))
        area.setTop(blackKeyHeight);
    return area;
}

std::optional<int> KeyboardLayout::KeyAt(QPointF point) const {
    if (point.y() < blackKeyHeight) {
        const auto zone = StripAt(point.x(), zoneWidth, static_cast<int>(KeyZoneNotes.size()));
        return zone ? std::optional(KeyZoneNote(*zone)) : std::nullopt;
    }
    if (point.y() > blackKeyHeight) {
        const auto white = StripAt(point.x(), whiteKeyStep, static_cast<int>(WhiteKeyNotes.size()));
        return white ? std::optional(WhiteKeyNote(*white)) : std::nullopt;
    }
    return std::nullopt;
}
