// A colour as the button's properties keep it.
#pragma once

#include <QColor>
#include <QMetaType>

class QPalette;

// 32 bits: 0x00BBGGRR or, with the high bit set, the number of a system colour.
struct OleColor {
    quint32 value = 0;

    static constexpr OleColor Rgb(int red, int green, int blue) {
        return {static_cast<quint32>(red | green << 8 | blue << 16)};
    }
    static constexpr OleColor System(quint32 index) { return {0x80000000U | index}; }

    // A system colour is looked up in the palette; a number that none has is the button's face.
    QColor In(const QPalette& palette) const;

    bool operator==(const OleColor&) const = default;
};

Q_DECLARE_METATYPE(OleColor)

// Lets a property of this type be written and read as a QColor or as a number. Called once
// by the first button.
void RegisterOleColor();
