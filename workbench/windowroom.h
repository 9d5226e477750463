// How the main window shares out its room among the pictures, the strip of diagrams and what
// stands beside them.
#pragma once

#include "workbench/choosegroup.h"
#include "workbench/seegroup.h"
#include "workbench/trygroup.h"

class QScreen;

// What the screen has for a window without its frame, in pixels.
QSize RoomWithin(const QScreen& screen);

// screen: the room that it has for windows, in pixels.

// At the largest scale of the pictures, in steps of a half, that leaves a fifth of the screen
// free; on a small screen as large as there is room.
QSize BestSize(const QWidget& window, const SeeGroup& see, const QSize& screen);

// On a screen too small for it the strip goes, before the neck has to shrink.
void GiveStripItsRoom(const QWidget& window, const SeeGroup& see, const QSize& screen);

// What the pictures leave of the window goes to the rows of the strip, half as large again at
// most, while eight diagrams stand beside each other; in a large window all letters grow, too,
// the chord's name among the first.
void ShareRoom(QWidget& window, const ChooseGroup& choose, const SeeGroup& see,
               const TryGroup& tried);
