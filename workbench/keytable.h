// What a row of the main window's key table holds.
#pragma once

class frmMain;

// Modifiers as Form_KeyDown gets them, alone or added up.
enum KeyModifier { any = -1, none = 0, shiftKey = 1, ctrlKey = 2, altKey = 4 };

struct KeyCommand {
    int key;
    int shift; // The modifiers that it wants, or any.
    void (*run)(frmMain& window);
};
