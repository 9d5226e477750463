// The parts of the two pictures: what each is called and what can be done with it, for the
// keyboard and for a screen reader.
#pragma once

#include "controls/picturepart.h"
#include "workbench/workbench.h"

// What the parts run; it must outlive them. Rows count from the lowest, 0.
struct FretboardCommands {
    std::function<void(int row, std::optional<int> fret)> press;
    std::function<void(int row)> nextNote;
    std::function<void(int row)> mute;
    std::function<void()> switchBarre;
    std::function<void(int fret)> moveBarre; // 1 to barreFrets.
    std::function<void()> clear;
    std::function<void()> copyDiagram{};
    std::function<void()> saveDiagram{};
};

struct KeyboardCommands {
    std::function<void(int key)> toggle;
    std::function<void()> clear;
};

// The rows from the top, then the barre.
PictureParts FretboardParts(const Workbench& workbench, const AppState& state,
                            const FretboardCommands& commands);

// The keys from the left.
PictureParts KeyboardParts(const Workbench& workbench, Tongue tongue,
                           const KeyboardCommands& commands);
