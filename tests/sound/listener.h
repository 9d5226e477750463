// Hears the notes in a recording of one channel, 44,100 samples a second: the attack of each
// by its brightness, its pitch by autocorrelation.
#pragma once

#include <vector>

struct HeardNote {
    double pitch; // As MIDI counts, the cents behind the point; 0 for a noise without a pitch.
    double begin; // Seconds.
};

// Notes from the guitar's lowest E to two octaves above middle C, one after the other.
std::vector<HeardNote> Listen(const std::vector<float>& samples);

// The loudness of a pitch, as MIDI counts, between two moments.
double Loudness(const std::vector<float>& samples, double pitch, double from, double to);

// How many seconds a note goes on as it does in another recording, where nobody ends it. Notes
// that follow may hold the pitch, too, and make it longer.
double LengthOf(const HeardNote& note, const std::vector<float>& samples, const HeardNote& alone,
                const std::vector<float>& samplesAlone);
