// Interface languages: Russian is built in, another comes from a file beside the program.
#pragma once

#include "core/profile.h"

#include <QStringList>

struct AppState;

extern const QString missingLanguageText; // Shown where a language file lacks a key.

// The texts of one language file. A file that cannot be read lacks every key.
class LanguageTexts {
public:
    explicit LanguageTexts(const QString& path);

    // The text of a numbered key; "LANG FILE ERROR!" where it is missing.
    QString Text(const QString& section, int key) const;

    // The language's own name for itself, as the list of languages shows it.
    QString DisplayName() const;

private:
    ProfileFile m_file;
};

enum class LanguageChoice { BuiltIn, File, FileMissing };

// What the name of a language in the settings leads to. A folder is no language file; what
// cannot be read is one, whose texts are missing.
LanguageChoice FindLanguage(const AppState& state, const QString& name);

// Sets LanguageFile to the language of the settings; a missing file gives the built-in texts.
LanguageChoice ChooseLanguage(AppState& state, const QString& name);

// Writes the built-in language into the settings, so that the next start does not miss the file
// again.
void ForgetLanguage(const AppState& state);

// The names of the language files in the program's folder, "*.lng" in any letter case,
// sorted by name: the same order whenever it is asked for.
QStringList LanguageFiles(const QString& appPath);

// The built-in texts of messages, in force while no language file is.
struct UiTexts;
UiTexts BuiltInUiTexts();

// Those of a language file.
UiTexts UiTextsOf(const LanguageTexts& texts);
