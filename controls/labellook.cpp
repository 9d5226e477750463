#include "controls/labellook.h"

#include "controls/colours.h"

#include <QLabel>

void SetTextColour(QLabel* label, const QColor& colour) {
    QPalette palette = label->palette();
    if (palette.color(QPalette::Active, QPalette::WindowText) == colour)
        return;
    palette.setColor(QPalette::WindowText, colour);
    // A muted string's label is grey, but still turns blue under the pointer.
    if (colour == Colours::normalText)
        palette.setColor(QPalette::Disabled, QPalette::WindowText, Colours::mutedOnPlate);
    label->setPalette(palette);
}

void SetStruckOut(QLabel* label, bool struckOut) {
    QFont font = label->font();
    if (font.strikeOut() == struckOut)
        return;
    font.setStrikeOut(struckOut);
    label->setFont(font);
}
