// The six strings as they are tuned: notes with their pitches.
#pragma once

#include "core/mdlmain.h"
#include "core/notes.h"

#include <array>
#include <optional>

// A string as it is tuned: its note and how high it is.
struct OpenString {
    PitchClass note = 0;
    int midi = 0; // 60 is the middle C; 69 is 440 Hz.

    bool operator==(const OpenString&) const = default;
};

// By string, the thin one first; empty where a string's text names no note.
using Tuning = std::array<std::optional<OpenString>, stringCount>;

// The pitches of E B G D A E, the thin string first.
constexpr std::array<int, stringCount> standardPitches{64, 59, 55, 50, 45, 40};

// The string 1 to 6 with the note of the text (one of the twelve names, in sharps): empty for
// any other text. The pitch is that note's nearest to the pitch of the sound number, which is
// read as playback reads it (84 less the number), and a tritone goes up; a number without digits,
// or that leads beyond 0 to 127, says nothing, and the pitch is the nearest to the standard string.
std::optional<OpenString> TunedString(int string, const QString& noteName,
                                      const QString& soundNumber);

// A string that only its note is known of: the nearest to the standard string.
OpenString StringTunedTo(int string, PitchClass note);

// The strings that lie on the neck now.
Tuning TuningOf(const AppState& state);
