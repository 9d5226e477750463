// A text of our own in the two languages that the program speaks by itself.
#pragma once

#include <QString>

enum class Tongue { Russian, English };

// What the language files have no key for: tool tips, accessible names, reports.
struct Phrase {
    QString russian;
    QString english;

    const QString& In(Tongue tongue) const { return tongue == Tongue::Russian ? russian : english; }
};
