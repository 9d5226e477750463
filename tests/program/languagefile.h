// What a language file has to be, byte by byte.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <span>

// A key with the built-in Russian text that a language file replaces; the room in the
// windows is made for that text.
struct LanguageKey {
    const char16_t* section;
    int number;
    const char16_t* russian;
};

// Every numbered key that the program asks for.
std::span<const LanguageKey> LanguageKeys();

// What is wrong with the bytes of a language file, a sentence for each fault: keys and
// sections missing, unknown or double, texts empty, too long for a profile file or for the
// window, line ends other than CR LF, bytes of no character. Empty when all is well.
QStringList LanguageFaults(const QByteArray& bytes);
