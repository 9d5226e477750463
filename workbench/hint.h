// What the line under the fret numbers says.
#pragma once

#include "workbench/seegroup.h"
#include "workbench/workbench.h"

// What the pointer is at in the main window.
struct Pointed {
    std::optional<BoardPlace> place = std::nullopt; // On the neck...
    std::optional<int> key = std::nullopt;          // ...or on the piano.
    const TwipPicture* restsOn = nullptr; // The picture on which the pointer has come to rest.
    bool chord = false;                   // On the chord's name.
    bool wiped = false;                   // Where a press has just taken everything off the neck.

    bool operator==(const Pointed&) const = default;
};

// Shows on the board where a press would put a finger.
void ShowPointed(FretboardView& board, const Pointed& pointed, const Workbench& workbench);

// What the pointer is at, or else the keyboard's focus. The notice, which may be empty, gives way
// to the pointer alone.
QString HintAt(const Pointed& pointed, const SeeGroup& see, const Workbench& workbench,
               const AppState& state, const QString& notice);
