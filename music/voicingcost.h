// What speaks against a voicing: the lower its cost, the more usual it is.
#pragma once

#include "music/noteset.h"
#include "music/playable.h"
#include "music/strings.h"

// What is awkward for the fingers about a held shape, wherever on the neck it lies.
int HandCost(const Shape& held);

// The costs of one chord's voicings in one tuning.
class VoicingCost {
public:
    // intervals: the chord's notes over its root.
    VoicingCost(NoteSet intervals, PitchClass root, const Tuning& tuning);

    // Of a voicing of the chord, without what is awkward for the fingers.
    int Of(PackedFrets frets) const;

private:
    struct String {
        int pitch = 0;         // Open.
        int interval = 0;      // Of the open string over the root, 0 to 11.
        bool openFits = false; // The open string sounds a chord note.
    };

    NoteSet m_intervals;
    std::array<String, stringCount> m_strings;
};
