// The settings that the program keeps in tonvik.ini: one record, read whole and written whole.
#pragma once

#include "core/language.h"
#include "core/mdlmain.h"

#include <optional>

// How the strings lie and are tuned: the value of "User" in the section "Settings".
enum class StringLayout {
    StandardThinAtTop = 1,
    StandardThinAtBottom = 2,
    UserThinAtTop = 3,
    UserThinAtBottom = 4,
};

// The layout of a "User" text; any text that is none of "1" to "4" is "1".
StringLayout LayoutOf(const QString& user);

bool ThinAtBottom(StringLayout layout);

// The six strings by string number (string 1, the thin one, first): note names and sound
// numbers. A sound number counts semitones downwards: one less is one semitone higher.
struct OpenStrings {
    SixTexts notes;
    SixTexts soundNumbers;
};

extern const OpenStrings standardStrings; // E B G D A E

// In which colours the windows are shown: the value of "Scheme" in the section "Settings".
enum class SchemeChoice { AsDesktop, Light, Dark };

// Everything that the settings file holds; its defaults are those of a missing file. Values
// are not checked.
struct Settings {
    StringLayout layout = StringLayout::StandardThinAtBottom;
    QString tuningRow = QStringLiteral("3"); // Of the list of tunings; counts with a user tuning.
    OpenStrings strings = standardStrings;
    std::optional<QString> language; // A file beside the program; empty where the file is silent.
    bool leftHanded = false;
    SchemeChoice scheme = SchemeChoice::AsDesktop; // For whoever shows windows.

    QString Language() const { return language.value_or(defaultLanguage); }
    bool HasUserTuning() const {
        return layout == StringLayout::UserThinAtTop || layout == StringLayout::UserThinAtBottom;
    }
};

Settings ReadSettings(const ProfileFile& file);

// Sets the keys in the order in which they are prescribed; the rest of the file stays. What the
// program adds to the format is written only where it is not at its default or stands there.
void WriteSettings(ProfileFile& file, const Settings& settings);

// Whether the settings file gives the name back as it is: a name with letters that the code page
// lacks, or blanks around it, is another one there.
bool CanBeRemembered(const QString& language);

// Hands strings over to the rows of the fretboard: with the thin string at the bottom
// row 0, the lowest, takes string 1, otherwise string 6.
void LayStrings(AppState& state, const OpenStrings& strings, bool thinStringAtBottom);

// Puts the settings into force, but for the language, which waits for the next start, and the
// scheme, which is seen and not known here.
void UseSettings(AppState& state, const Settings& settings);
