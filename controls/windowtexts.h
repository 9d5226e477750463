// The texts of a window, out of one table: per control, what each of its texts says and where
// that comes from.
#pragma once

#include "core/language.h"
#include "core/phrase.h"

#include <QWidget>

#include <optional>
#include <span>

enum class TextPlace {
    Caption,     // What stands on the control; of the window, its title.
    Hint,        // The tool tip. It is also the name of a control that bears no caption, and the
                 // description of one that does.
    Name,        // For a screen reader alone.
    Description, // Likewise: how it is used.
    Item,        // One row of a drop-down list; rows of the table that follow each other fill it.
    Numbered,    // The rows of a drop-down list: the text behind 1, 2, up to its count.
};

struct WindowText {
    const char16_t* control; // Its name; "Label3()" for each of an array, with %1 for its number.
    TextPlace place;
    const char16_t* russian;
    const char16_t* english; // None of a text that language files have.
    int key;                 // Of such a text, in the window's section.
    int count;               // Of Numbered rows.
};

// A phrase of ours: Russian, or English with any language file.
constexpr WindowText Ours(const char16_t* control, TextPlace place, const char16_t* russian,
                          const char16_t* english) {
    return {control, place, russian, english, 0, 0};
}

// A text that language files have under this key; builtIn without one.
constexpr WindowText OfFile(const char16_t* control, TextPlace place, int key,
                            const char16_t* builtIn, int count = 0) {
    return {control, place, builtIn, nullptr, key, count};
}

// Where the texts are taken from: Russian, or a language file and what is English beside it.
struct TextSource {
    Tongue tongue = Tongue::Russian;
    std::optional<LanguageTexts> file;

    // section: the window's in the file.
    QString Of(const WindowText& text, const QString& section) const;
};

TextSource TextsInUse(const AppState& state);

// Gives every control of the table its texts, in the table's order. A control that is not there
// is a mistake of the table and ends the program.
void ApplyTexts(QWidget& window, std::span<const WindowText> table, const QString& section,
                const TextSource& source);
