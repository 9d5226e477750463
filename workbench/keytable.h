// What a row of the main window's key table holds.
#pragma once

class frmMain;

// Modifiers as Form_KeyDown gets them, alone or added up.
enum KeyModifier { any = -1, none = 0, shiftKey = 1, ctrlKey = 2, altKey = 4 };

// What a key does that is held down.
enum class Held { Repeats, OnePress };

struct KeyCommand {
    int key;
    int shift; // The modifiers that it wants, or any.
    void (*run)(frmMain& window);
    Held held = Held::Repeats;
};
