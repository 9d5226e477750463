// Two notes that sound together.
#pragma once

#include "core/notes.h"
#include "core/phrase.h"

// "C–E": the lower note and the one so many semitones (1 or more) above it.
QString IntervalName(PitchClass lower, int semitones);

// "major third"; beyond an octave the word says so.
Phrase IntervalWord(int semitones);
