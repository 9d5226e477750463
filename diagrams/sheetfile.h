// The sheet's text as a file: single-byte text with CR LF line ends.
#pragma once

#include <QString>

constexpr qint64 longestSheet = 50000; // Bytes of a file that can be opened.

// The size of a file in bytes; a run-time error where there is no file.
qint64 SheetSize(const QString& path);

// The text, its lines ended by LF. In the file CR LF, LF and CR all end a line; the end of
// the last line may be missing. A run-time error when it cannot be read.
QString ReadSheet(const QString& path);

// Replaces the file by the text and one more line end, whole or not at all. A run-time error
// that names the reason when it cannot be written, or the characters that the code page does
// not have; the old file stays then.
void WriteSheet(const QString& path, const QString& text);
