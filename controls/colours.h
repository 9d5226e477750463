// Every colour of the windows, in one place: a light variant and a dark one.
#pragma once

#include <QBrush>
#include <QColor>

enum class Scheme { Light, Dark };

namespace Colours {

// The scheme that every shade is seen in. It only changes what is painted from now on: whoever
// sets it paints the windows anew.
Scheme CurrentScheme();
void UseScheme(Scheme scheme);

// One colour in both schemes; used where a colour is asked, it is that of the scheme in use.
class Shade {
public:
    constexpr Shade(QRgb light, QRgb dark) : m_light(light), m_dark(dark) {}

    QColor In(Scheme scheme) const { return {scheme == Scheme::Dark ? m_dark : m_light}; }
    QColor Now() const { return In(CurrentScheme()); }
    operator QColor() const { return Now(); }
    operator QBrush() const { return Now(); }

private:
    QRgb m_light;
    QRgb m_dark;
};

// Windows and controls.
constexpr Shade window(0xF6F2EA, 0x24211D);
constexpr Shade field(0xFFFEFB, 0x1A1815); // Lists and text boxes.
constexpr Shade fieldStripe(0xF4EFE4, 0x211E1A);
constexpr Shade text(0x221D18, 0xEDE6DA);
constexpr Shade quietText(0x5E5449, 0xBDB2A2); // Captions of frames, hints.
constexpr Shade mutedText(0x6D6459, 0xABA193); // Disabled controls, muted strings.
constexpr Shade frame(0xF3EEE5, 0x2A2621);     // Inside a frame.
constexpr Shade line(0xCDC2B0, 0x4A433A);      // Frames and dividers: they part, they mark nothing.
constexpr Shade edge(0x8C806E, 0x8C8171);      // Around what can be operated.
constexpr Shade buttonFace(0xEFE8DB, 0x3A342C);
constexpr Shade pointedFace(0xEFE8DB, 0xD8CBB0); // Of a button whose caption is blue.
constexpr Shade checked(0xDCCFB6, 0x5A4B34);     // The face of a button that is switched on.
constexpr Shade buttonShadow(0xA89B87, 0x16130F);
constexpr Shade buttonDark(0x6B6052, 0x0C0A08);
constexpr Shade selection(0x8C4A1C, 0xE2A45C);    // Behind the selected row, and what stands out.
constexpr Shade dimSelection(0xE0D3BC, 0x4D4133); // Of a list that rules nothing now.
constexpr Shade selectionText(0xFFFFFF, 0x1C140A);
constexpr Shade focus(0x1F5FAE, 0x7DB4F0);       // The ring around what the keyboard works on.
constexpr Shade besideFocus(0xFFFFFF, 0x1A1815); // Inside it: one of the two is seen anywhere.
constexpr Shade found(0xFFD966, 0x7A5A12);       // Behind words that were looked for.
constexpr Shade toolTip(0xFFFBE6, 0x3B352C);

// Behind the prescribed black, blue and red, which a dark window would swallow.
constexpr Shade plate(0xF6F2EA, 0xD8CBB0); // Around the neck.
constexpr QColor onPlate(0x22, 0x1D, 0x18);
constexpr QColor mutedOnPlate(0x5A, 0x51, 0x46);
constexpr QColor paper(0xFF, 0xFE, 0xFB); // Where red can be read, too.

// On the wood of the neck, which is the same in both.
constexpr QColor onWood(0xFF, 0xFE, 0xFB);
constexpr QColor onWoodText(0x22, 0x1D, 0x18);
constexpr QColor onWoodRing(0x1F, 0x5F, 0xAE);

// Prescribed on the instruments.
constexpr QColor mark(0xFF, 0x00, 0x00);
constexpr QColor highlight(0x00, 0x00, 0xFF);
constexpr QColor normalText(0x00, 0x00, 0x00);
constexpr QColor whiteKey(0xFF, 0xFF, 0xFF);
constexpr QColor blackKey(0x00, 0x00, 0x00);

} // namespace Colours
