// ChordPro files: a sheet's text taken from one, and written as one.
#pragma once

#include "diagrams/sheetdocument.h"

constexpr qint64 longestImport = 1'000'000; // Bytes of a file that can be imported.

// The text of a file in UTF-8, with or without a mark, otherwise in code page 1251; its lines
// ended by LF, without the end of the last one. A run-time error when it cannot be read or is
// no text.
QString ReadChordProFile(const QString& path);

// The sheet's text with definitions in place of its codes, each chord's shape and name once;
// other lines stay as they are.
QString ChordProText(const QString& text, const SheetQuestions& questions);

// Replaces the file by the text in UTF-8 and one more line end, whole or not at all. A run-time
// error that names the reason when it cannot be written.
void WriteChordProFile(const QString& path, const QString& text);
