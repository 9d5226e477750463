// The fingers of every hand that the search for voicings meets, each worked out once.
#pragma once

#include "music/fingernumbers.h"
#include "music/playable.h"

// How a voicing is usually held, and what it costs in the order of voicings.
struct HeldHand {
    FingerNumbers fingers;
    int cost = 0;
};

// The frets must be held by four fingers.
HeldHand FindHand(PackedFrets frets);
