// How the main window shares out its room among the pictures, the strip of diagrams and what
// stands beside them.
#pragma once

#include "workbench/seegroup.h"

// screen: the room that it has for windows, in pixels.

// At the largest scale of the pictures, in steps of a half, that leaves a fifth of the screen
// free; on a small screen as large as there is room.
QSize BestSize(const QWidget& window, const SeeGroup& see, const QSize& screen);

// On a screen too small for it the strip goes, before the neck has to shrink.
void GiveStripItsRoom(const QWidget& window, const SeeGroup& see, const QSize& screen);

// The diagrams grow into the room that the pictures leave, half as much again at most, while
// eight stand beside each other.
void GrowDiagrams(const SeeGroup& see);
