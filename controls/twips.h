// Window measures in twips, 1/1440 inch.
#pragma once

#include <QWidget>

// The pixels of one twip on the widget's screen, not rounded.
inline double PixelsPerTwip(const QWidget& widget) {
    return widget.logicalDpiX() / 1440.0;
}
