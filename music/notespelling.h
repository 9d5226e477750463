// Sharps and flats as players write them; the prescribed lists and labels stay in sharps.
#pragma once

#include "music/noteset.h"

#include <QString>

// The root of a chord whose notes are given as intervals over it: Bb, Eb and F# always, C# and
// G# where the chord has a minor third, Db and Ab otherwise.
QString RootName(PitchClass root, NoteSet chord);

// A note of that chord by its degree over the root: A/C#, Cm/Eb. What would need two signs gets
// its plainest name.
QString ChordNoteName(PitchClass root, NoteSet chord, int interval);

// The note that lies so many letters (C D E F G A B, round and round) and so many semitones
// above a note that is written as given.
QString NoteAbove(const QString& note, PitchClass pitch, int letters, int semitones);
