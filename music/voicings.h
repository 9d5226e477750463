// Every way to play a chord, the usual one first.
#pragma once

#include "music/fingernumbers.h"
#include "music/playable.h"

// A shape that plays a chord, and the fingers that hold it.
struct Voicing {
    PackedFrets frets;
    FingerNumbers fingers;

    Shape ToShape() const { return HeldBy(frets.ToShape(), fingers); }
};

// What the rules gave way on where a tuning left nothing, each on top of the one before.
enum class GaveWay { OnNothing, OnOneNote, OnTwoNotes, OnTheSpan, OnTheThirdString };

struct Voicings {
    std::vector<Voicing> shapes; // The usual one first.
    GaveWay gaveWay = GaveWay::OnNothing;
};

// notes: the chord's, the root among them; otherwise, and with too many for six strings, there
// are no shapes.
Voicings FindVoicings(NoteSet notes, PitchClass root, const Tuning& tuning);
