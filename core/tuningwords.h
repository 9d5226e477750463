// How the guitar is tuned, in words.
#pragma once

#include "core/mdlmain.h"

// The open notes as a tuning of the catalogue has them, string 1 first: "E,B,G,D,A,D".
QString TuningNotes(const AppState& state);

// The strings in use, the thick one first, with the first name that the catalogue has for them:
// "Tuning: D A D G B E (Low D/Drop D)".
QString TuningInWords(const AppState& state);
