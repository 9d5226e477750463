// What playback needs of the world: something that plays a file, and a clock to wait by.
// Tests put a recorder and a clock moved by hand in their places.
#pragma once

#include <QString>

class MidiPlayer {
public:
    virtual ~MidiPlayer() = default;

    // Closes what is open and plays the file from its start. A file that is missing or
    // broken, or a machine without sound, is silence.
    virtual void PlayMidiFile(const QString& fileName) = 0;

    // Ends the note that sounds, letting it die away.
    virtual void CloseMidiFile() = 0;
};

class Clock {
public:
    virtual ~Clock() = default;

    // Seconds on a clock that never jumps.
    virtual double Now() const = 0;

    // Returns when Now() has passed the moment; window events are processed meanwhile.
    virtual void WaitUntil(double seconds) = 0;
};
