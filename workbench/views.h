// What the pictures show of a workbench; what the pointer and the sound add is left empty.
#pragma once

#include "pictures/instrumentviews.h"
#include "workbench/workbench.h"

// For the hand that the settings name.
FretboardLayout LayoutOfFretboard(const AppState& state);

// The row that the number of a search means, 0 the lowest; nothing for a text that names none.
std::optional<int> RowOfSearch(const QString& number);

FretboardView ViewOfFretboard(const Workbench& workbench, const AppState& state);
KeyboardView ViewOfKeyboard(const Workbench& workbench);
LabelsView ViewOfLabels(const Workbench& workbench, const AppState& state);

// What is on the neck with the fingers that usually hold it, where a hand can; the neck's barre
// stays as it is.
Shape HeldOnNeck(const Workbench& workbench);
