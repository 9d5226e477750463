// The state that every window shares. The start-up routine fills it; the catalogues are
// read-only afterwards.
#pragma once

#include "core/texttable.h"

#include <QString>

#include <array>

constexpr int stringCount = 6;

// One text per row of the fretboard, or per string: the declaration says which.
using SixTexts = std::array<QString, stringCount>;

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

// The folder's text with a separator at its end, which a drive's root has already.
QString FolderPath(const QString& folder);
