// What holds in the windows whatever somebody does. Each says what is broken, or nothing.
#pragma once

#include "workbench/frmmain.h"

class frmDiags;

// The strip has the chord that the marked keys ask for, found anew, and each row sounds nothing
// but its notes.
QString BrokenStrip(frmMain& window);

// lblSounds says what a naming from scratch finds.
QString BrokenNames(frmMain& window, const AppState& state);

// Undo leads back to the state that was before, and as many steps of redo to the present one.
// Nothing may have been undone or forgotten between.
QString BrokenHistory(frmMain& window, const Workbench& before);

// The diagrams that a reading of the text finds are those that the pages show, in their order.
QString BrokenSheet(const frmDiags& sheet);

// What a left-handed player sees on the neck and the lists is what a right-handed one sees.
QString BrokenMirror(const Workbench& rightHanded, const Workbench& leftHanded);
