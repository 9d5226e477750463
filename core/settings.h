// The settings that the program keeps in tonvik.ini: the strings and their order.
#pragma once

#include "core/mdlmain.h"

class ProfileFile;

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

// What the settings say; the defaults where they say nothing. Values are not checked.
StringLayout ReadLayout(const ProfileFile& settings);
OpenStrings ReadOpenStrings(const ProfileFile& settings);

void WriteOpenStrings(ProfileFile& settings, const OpenStrings& strings);

// Hands strings over to the rows of the fretboard: with the thin string at the bottom
// row 0, the lowest, takes string 1, otherwise string 6.
void LayStrings(AppState& state, const OpenStrings& strings, bool thinStringAtBottom);

// Reads the strings and their order from the settings file.
void LoadStartUpSettings(AppState& state);
