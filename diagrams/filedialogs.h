// The two file dialogs of the sheet.
#pragma once

#include <QString>

class QWidget;

// The filter with every "|" replaced by NUL: descriptions and patterns in turn.
QString FilterToNulls(const QString& filter);

// The chosen path without blanks and NULs at its end; the empty text when cancelled. folder:
// what the dialog shows first; the empty text leaves it to the toolkit.
QString OpenFileDialog(QWidget* ownerWindow, const QString& title, const QString& filter,
                       const QString& folder = {});

// The same for a file to write: "txt" is added where the name has no extension, and a file
// that is there already is overwritten only when the user says so. What is asked about is the
// file that will be written.
QString SaveFileDialog(QWidget* ownerWindow, const QString& title, const QString& filter,
                       const QString& folder = {});
