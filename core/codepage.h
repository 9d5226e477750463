// The code page of every file that the program reads or writes: Cyrillic text,
// one byte a letter (1251), or the system's own ANSI page on Windows.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

// Whether every byte means the same in any code page.
bool IsAscii(QByteArrayView bytes);

// Every byte gives a character; one that is no letter gives U+FFFD or a control character.
QString FromAnsi(QByteArrayView bytes);

// A character outside the code page is written as "?".
QByteArray ToAnsi(QStringView text);

// The characters of the text that the code page does not have, each once, in the
// order of their first appearance; empty when the text can be written whole.
QString OutsideAnsi(QStringView text);
