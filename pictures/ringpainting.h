// Rings over the whole neck: wherever a note of the chord or the scale lies, with its name.
#pragma once

#include "pictures/instrumentviews.h"

#include <QPixmap>

class QPainter;

// There may be ninety of them, so each note is painted once and stamped.
class RingStamps {
public:
    // painter: in the picture's own pixels. scale: pixels to a twip. Marks and the barre belong on
    // top: a ring goes around a mark, and leaves out the places beneath the bar.
    void Paint(QPainter& painter, const FretboardView& view, double scale);

private:
    const QPixmap& Stamp(PitchClass note, bool root);

    double m_scale = 0; // What the stamps are painted for...
    double m_ratio = 0; // ...and the screen's own.
    std::array<QPixmap, std::size_t{2} * notesPerOctave> m_stamps;
};
