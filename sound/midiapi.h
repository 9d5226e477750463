// Playing MIDI files, one at a time, through a synthesiser that comes to life at the first.
#pragma once

#include "sound/sound.h"

#include <QByteArray>
#include <QTimer>

#include <chrono>
#include <memory>

class MidiAPI : public MidiPlayer {
public:
    // appPath: the program's folder, where a sound font of the user's own may lie.
    // ringing: how long after a note the device is kept. An open device asks for samples
    // thousands of times a minute, also for silence, so it is not kept for ever.
    explicit MidiAPI(QString appPath, std::chrono::milliseconds ringing = std::chrono::seconds(10));
    ~MidiAPI() override;

    void PlayMidiFile(const QString& fileName) override;
    void CloseMidiFile() override;

    const QString& CurrentMidiFile() const { return m_currentMidiFile; }
    bool MidiOpen() const { return m_midiOpen; }
    bool HoldsDevice() const;

private:
    class Synthesiser;

    bool Wake();

    QString m_appPath;
    std::unique_ptr<Synthesiser> m_synthesiser;
    bool m_tried = false; // After a failure to open a device no note tries again.
    QString m_currentMidiFile;
    bool m_midiOpen = false;
    QTimer m_ringing;
};

// The bytes of a MIDI file; empty for one that is missing, cut off, no MIDI file or too large
// to be a note's.
QByteArray ReadMidiFile(const QString& fileName);

// The sound font to play with: one beside the program, else the desktop's; empty for none.
QString FindSoundFont(const QString& appPath);
