// How many chords the program knows.
#pragma once

#include <QtGlobal>

// The rows of the main window's lists of roots and chord types.
struct ChordRows {
    int roots = 0;
    int types = 0;
};

// Roots times types; a run-time error where the product does not fit in 16 bits.
qint16 ChordCount(const ChordRows& rows);
