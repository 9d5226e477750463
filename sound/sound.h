// What playback needs of the world: something that plays files, and a clock to wait by.
// Tests put a recorder and a clock moved by hand in their places.
#pragma once

#include <QStringList>

#include <functional>

class MidiPlayer {
public:
    virtual ~MidiPlayer() = default;

    // Closes what is open, also a strum, and plays the file from its start. A file that is
    // missing or broken, or a machine without sound, is silence. Nothing is waited for.
    virtual void PlayMidiFile(const QString& fileName) = 0;

    // Ends the file that PlayMidiFile began, letting it die away.
    virtual void CloseMidiFile() = 0;

    // The same, but not before it has sounded for so many seconds, should it have begun late.
    virtual void CloseWhenSounded([[maybe_unused]] double seconds) { CloseMidiFile(); }

    // Closes what is open and plays the files 30 ms apart; four seconds after the last has
    // begun, the strum ends by itself. A file that is missing or broken is silent.
    virtual void Strum(const QStringList& files) = 0;

    // Lets a strum die away before its time.
    virtual void EndStrum() = 0;

    // Whether what was asked for waits for a device that is being opened.
    virtual bool Waking() const { return false; }

    // Called when a strum has ended, for whichever reason.
    void SetStrumEnded(std::function<void()> ended) { m_strumEnded = std::move(ended); }

protected:
    void StrumEnded() const {
        if (m_strumEnded)
            m_strumEnded();
    }

private:
    std::function<void()> m_strumEnded;
};

class Clock {
public:
    virtual ~Clock() = default;

    // Seconds on a clock that never jumps.
    virtual double Now() const = 0;

    // Returns when Now() has passed the moment; window events are processed meanwhile.
    virtual void WaitUntil(double seconds) = 0;
};
