// Numbers read out of text that a person typed.
#pragma once

#include "core/phrase.h"

#include <QStringView>

// The number that the text begins with, blanks before it skipped: "3.7 frets" is 3.7.
// A text that begins with no number, the empty text among them, is 0.
double LeadingNumber(QStringView text);

// The number that LeadingNumber reads, as it was typed; a text without one in quotes. For
// reports, which must not name a number that nobody typed.
Phrase AsTyped(QStringView text);

// Rounded to a whole number, a half to the even one; a run-time error outside 16 bits.
int ToInteger16(double number);
