// The 36 keys of the piano: which are marked, and the colours that marking saves.
#pragma once

#include "core/notes.h"

#include <QString>

#include <array>
#include <vector>

// Red, green and blue, a byte each.
using Rgb = quint32;

constexpr Rgb whiteKeyColour = 0xFFFFFF;
constexpr Rgb blackKeyColour = 0x000000;
constexpr Rgb markColour = 0xFF0000;

bool IsBlackKey(int key);

// A key is marked exactly when its fill is pure red. Marking saves the fill first, so a key
// marked twice has red for its own colour and stays red: a chord structure with a step of 0
// shows itself that way.
class PianoKeys {
public:
    PianoKeys();

    // Each key keeps its present fill as the colour to give back.
    void SaveOwnColours();

    // A run-time error for a key outside 0 to 35.
    void Mark(int key);
    void PaintRed(int key); // Marks without saving the fill.
    void Toggle(int key);
    void ClearMarks();

    bool IsMarked(int key) const;
    Rgb Fill(int key) const;

    // Ascending.
    std::vector<int> Marked() const;

    bool operator==(const PianoKeys&) const = default;

private:
    struct Key {
        Rgb fill;
        Rgb saved;

        bool operator==(const Key&) const = default;
    };

    Key& At(int key);
    const Key& At(int key) const;

    std::array<Key, keyCount> m_keys;
};

// The names of keys, each followed by one blank.
QString KeyNames(const std::vector<int>& keys);
