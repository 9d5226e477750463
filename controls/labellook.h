// How a label looks, changed only where it differs: painting anew is what costs.
#pragma once

class QColor;
class QLabel;

// A disabled label stays grey, but takes any colour other than the normal one, too.
void SetTextColour(QLabel* label, const QColor& colour);

void SetStruckOut(QLabel* label, bool struckOut);
