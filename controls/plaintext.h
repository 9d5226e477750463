// Texts from files, shown as they stand, whatever they look like.
#pragma once

#include <QString>

class QWidget;

// A message box with the information icon and an OK button; returns when it is closed.
void Tell(const QString& title, const QString& text, QWidget* parent);

// What setToolTip is given for the tool tip to show the text.
QString PlainToolTip(const QString& text);
