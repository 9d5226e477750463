// The main window's key table.
#pragma once

#include <Qt>

#include <span>

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

// The keys that have a command, in the order in which they are looked for: the first row that
// fits is run. Arrows that are not among them move the focus to the fretboard.
std::span<const KeyCommand> KeyTable();

// The row of a key; null for a key that has no command.
const KeyCommand* FindCommand(int key, int shift);

constexpr bool IsArrow(int key) {
    return key == Qt::Key_Down || key == Qt::Key_Up || key == Qt::Key_Left || key == Qt::Key_Right;
}
