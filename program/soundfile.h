// The bytes of a standard MIDI file that holds one note.
#pragma once

#include <QByteArray>

// instrument: a General MIDI program 0 to 127; note: a MIDI note 0 to 127 (60 is middle C).
// The note rings for four seconds.
QByteArray OneNoteFile(int instrument, int note);
