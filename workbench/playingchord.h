// The chord that a workbench asks for, with every way to play it.
#pragma once

#include "core/phrase.h"
#include "music/voicings.h"
#include "workbench/workbench.h"

class PlayingChord {
public:
    // Looks them up anew where the workbench asks for another chord, and says whether it did.
    bool Follow(const Workbench& workbench);

    const ChordToPlay& Chord() const { return m_chord; }
    const Voicings& Found() const { return m_found; }

    // What a way to play it is called: the chord, or where that has no name, what it sounds.
    QString NameOf(const Shape& shape, const PlayersNames& names) const;

private:
    ChordToPlay m_chord;
    Voicings m_found;
};
