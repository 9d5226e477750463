// From a string's note name to its place in the note wheel and to its sound number.
#pragma once

#include <QStringView>

// The position of a name in the middle octave of the note table, counted from 1: 13 (C) to
// 24 (B); 0 for a text that is none of the twelve names.
quint8 NoteIndexOf(QStringView name);

// The sound number of a string 1 to 6 whose open note is the one of this name nearest to the
// string's standard note; six semitones either way go upwards. Numbers run down as pitch goes
// up. 0 for any other string.
quint8 SoundNumberFor(quint8 stringNo, QStringView name);
