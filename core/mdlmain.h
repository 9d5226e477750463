// The state that every window shares. The start-up routine fills it; the catalogues are
// read-only afterwards.
#pragma once

#include "core/texttable.h"

#include <QString>

#include <array>

constexpr int stringCount = 6;

// The string, 1 the thin one to 6, that lies in a row of the fretboard, row 0 the lowest; and
// the row of a string.
constexpr int StringOfRow(int row, bool thinStringAtBottom) {
    return thinStringAtBottom ? row + 1 : stringCount - row;
}
constexpr int RowOfString(int string, bool thinStringAtBottom) {
    return thinStringAtBottom ? string - 1 : stringCount - string;
}

// One text per row of the fretboard, or per string: the declaration says which.
using SixTexts = std::array<QString, stringCount>;

extern const QString defaultLanguage; // "Default": the built-in Russian texts.

struct UiTexts {
    QString NoSuchChordType;
    QString StructureExists;
    QString AltNamesLabel;
    QString Attention;
};

struct AppState {
    AppState();

    TextTable ChordTypes;
    TextTable Scales;
    TextTable Tunings;

    SixTexts StringNotes;  // The open notes by row of the fretboard, the bottom row first.
    SixTexts SoundNumbers; // By row as well: the number of each open string's sound file, as text.
    bool ThinStringAtBottom = true;
    bool LeftHanded = false; // The neck is drawn mirrored, its nut at the right.

    bool IsPlaying = false; // A playback loop runs; the stop button clears it.
    QString AppPath;        // The program's folder, ending in the path separator.
    QString LanguageFile;   // Its full path, or "Default" for the built-in Russian texts.
    UiTexts UiText;

    bool IsDefaultLanguage() const;

    // The language of the texts that no language file replaces.
    Tongue InterfaceTongue() const;

    // The settings file in the program's folder.
    QString SettingsFile() const;
};

// The steps of start-up that need no window: each adds the records of its data file, where there
// is one, to the built-in ones. A run-time error ends the start.
void ReadChordTypes(AppState& state);
void ReadScales(AppState& state);
void ReadTunings(AppState& state);

// The folder's text with a separator at its end, which a drive's root has already.
QString FolderPath(const QString& folder);
