// A shape in words, for tool tips and screen readers.
#pragma once

#include "core/phrase.h"
#include "music/shape.h"
#include "music/voicingchoice.h"

// "C, x32010: string 6 muted, string 5 third fret, ring finger, ...", from the thick string to
// the thin one. name: what the shape is called; may be empty.
QString ShapeInWords(const QString& name, const Shape& shape, Tongue tongue);

// "2 frets and 1 string moved, 1 finger lifted or set".
QString MovementInWords(const HandMovement& movement, Tongue tongue);

// How many voicings are shown of how many, which rule gave way, or why there are none.
QString VoicingsInWords(int shown, const Voicings& voicings, const ChordOnStrings& chord,
                        Tongue tongue);
