// What is said when the settings file cannot be written.
#pragma once

#include "core/phrase.h"

class QWidget;

// Tells why the settings were not saved. True where the user wants it tried again.
bool TrySavingAgain(const Phrase& reason, const QString& title, Tongue tongue, QWidget* parent);
