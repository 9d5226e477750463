// A fingering as one line of text.
#pragma once

#include "music/shape.h"

#include <QString>

#include <array>
#include <optional>

class Workbench;

// What stands on the fretboard, the bottom row first.
struct BoardFingering {
    QString chordName;
    std::optional<int> barreFret;
    std::array<std::optional<int>, 6> marks; // Frets of the finger marks; empty where hidden.
    std::optional<Shape> shape{};            // The whole of it, mutes and fingers too.
};

// What a workbench has on its neck, under this name.
BoardFingering FingeringOf(const Workbench& workbench, const QString& name);

// "Am - 011000"; with a barre, "Am - Б5/000220": its fret, and the marks counted from it.
// The numbers stand side by side, so frets of two digits and marks below the barre widen it.
QString FingeringCode(const BoardFingering& board);
