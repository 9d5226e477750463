// Telling the user a text from a file.
#pragma once

#include <QString>

class QWidget;

// A message box with the information icon and an OK button, which shows the text as it stands,
// whatever it looks like; returns when it is closed.
void Tell(const QString& title, const QString& text, QWidget* parent);
