// Painting the piano, in twips.
#pragma once

#include "pictures/instrumentviews.h"

class QPainter;

// Every key in its fill colour, white keys first, a marked one with its name.
void PaintKeyboard(QPainter& painter, const KeyboardView& view);
