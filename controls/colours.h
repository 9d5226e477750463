// Every colour of the windows, in one place. Light whatever the desktop wears, so that the
// black, blue and red of the instruments read well.
#pragma once

#include <QColor>

namespace Colours {

// Windows and controls.
constexpr QColor window(0xF6, 0xF2, 0xEA);
constexpr QColor field(0xFF, 0xFE, 0xFB); // Lists and text boxes.
constexpr QColor fieldStripe(0xF4, 0xEF, 0xE4);
constexpr QColor text(0x22, 0x1D, 0x18);
constexpr QColor quietText(0x5E, 0x54, 0x49); // Captions of frames, hints: 6.5 to 1 on window.
constexpr QColor mutedText(0x70, 0x67, 0x5C); // Disabled controls, muted strings.
constexpr QColor frame(0xF3, 0xEE, 0xE5);     // Inside a frame.
constexpr QColor line(0xCD, 0xC2, 0xB0);      // Frames and dividers.
constexpr QColor buttonFace(0xEF, 0xE8, 0xDB);
constexpr QColor buttonLight(0xFF, 0xFF, 0xFF);
constexpr QColor buttonShadow(0xA8, 0x9B, 0x87);
constexpr QColor buttonDark(0x6B, 0x60, 0x52);
constexpr QColor selection(0x8C, 0x4A, 0x1C); // Behind the selected row; white text on it.
constexpr QColor selectionText(0xFF, 0xFF, 0xFF);
constexpr QColor focus(0x1F, 0x5F, 0xAE);           // The ring around what the keyboard works on.
constexpr QColor focusOnPictures(0xFF, 0xFF, 0xFF); // Beside that ring where all is dark.
constexpr QColor found(0xFF, 0xD9, 0x66); // Behind words that were looked for.
constexpr QColor toolTip(0xFF, 0xFB, 0xE6);

// Prescribed on the instruments.
constexpr QColor mark(0xFF, 0x00, 0x00);
constexpr QColor behindMark(0x00, 0x00, 0x00); // Red text reads at 5.2 to 1 here, at 3.6 on window.
constexpr QColor highlight(0x00, 0x00, 0xFF);
constexpr QColor normalText(0x00, 0x00, 0x00);
constexpr QColor whiteKey(0xFF, 0xFF, 0xFF);
constexpr QColor blackKey(0x00, 0x00, 0x00);

} // namespace Colours
