// Painting the fretboard, in twips.
#pragma once

#include "pictures/instrumentviews.h"

class QPainter;

// The bare neck: wood, frets, inlays, and strings as thick as their order asks.
void PaintNeck(QPainter& painter, const FretboardLayout& layout, bool thinStringAtBottom);

// What lies on it: barre, finger marks, muted and sounding strings.
void PaintMarks(QPainter& painter, const FretboardView& view);
