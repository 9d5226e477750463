// What the left hand does on the six strings, string 1 the thin one to 6 the thick one, however
// they lie on the picture.
#pragma once

#include "core/mdlmain.h"

#include <QString>

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

struct Barre;

// One finger, or the neck's bar, across several strings.
struct ShapeBarre {
    int fret = 1;
    int thinnest = 1; // The strings it spans, also those between that it does not sound.
    int thickest = stringCount;
    int finger = 0; // 1 the index to 4 the little finger; 0 where none is known.

    bool operator==(const ShapeBarre&) const = default;
};

struct Shape {
    static constexpr int muted = -1;

    // By string, the thin one first: the fret, 0 for open, or muted.
    std::array<std::int8_t, stringCount> frets{muted, muted, muted, muted, muted, muted};

    // By string: the finger that stops it, 1 the index to 4 the little finger; 0 for none.
    std::array<std::int8_t, stringCount> fingers{};

    std::vector<ShapeBarre> barres;

    // string: 1 to 6.
    int Fret(int string) const { return frets[static_cast<std::size_t>(string - 1)]; }
    int Finger(int string) const { return fingers[static_cast<std::size_t>(string - 1)]; }
    bool Sounds(int string) const { return Fret(string) != muted; }

    bool operator==(const Shape&) const = default;
};

// The frets from string 6 to string 1 as players write them: "x32010"; from fret ten on in
// parentheses: "(10)(12)(12)x(10)x".
QString FretsText(const Shape& shape);

// The fingers likewise, 0 for none: "032010".
QString FingersText(const Shape& shape);

// The shape of such a text of frets, without fingers; nothing for any other text. Frets reach
// to 99.
std::optional<Shape> ReadShape(QStringView frets);

// The strings under a barre of rows; its finger is not known.
ShapeBarre BarreOnStrings(const Barre& barre, bool thinStringAtBottom);
