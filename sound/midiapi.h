// Playing MIDI files through a synthesiser that comes to life at the first.
#pragma once

#include "sound/output.h"
#include "sound/sound.h"

#include <QElapsedTimer>
#include <QTimer>

#include <memory>
#include <vector>

class SoundThread;
struct Beginning;

class MidiAPI : public MidiPlayer {
public:
    // appPath: the program's folder, where a sound font of the user's own may lie.
    explicit MidiAPI(QString appPath);

    // With another device than the machine's, given back so many seconds after a note.
    MidiAPI(QString appPath, std::unique_ptr<Output> output, double rest = 8);
    ~MidiAPI() override;

    void PlayMidiFile(const QString& fileName) override;
    void CloseMidiFile() override;
    void CloseWhenSounded(double seconds) override;
    void Strum(const QStringList& files) override;
    void EndStrum() override;
    bool Waking() const override;

    const QString& CurrentMidiFile() const { return m_currentMidiFile; }
    bool MidiOpen() const { return m_midiOpen; }
    bool HoldsDevice() const;

    // Whether anything waits for a device that is being opened, however long that takes.
    bool Waiting() const;

private:
    void Begin(std::vector<Beginning> files);
    void End(int id, double atLeast = 0);
    void EndStrumAfter(double seconds);

    QString m_appPath;
    std::unique_ptr<Output> m_output; // Until the thread is started at the first note.
    double m_rest;
    std::unique_ptr<SoundThread> m_thread;
    QString m_currentMidiFile;
    bool m_midiOpen = false;
    int m_lastId = 0;
    int m_fileId = 0;
    int m_strumId = 0;
    QTimer m_strumming;
    QElapsedTimer m_asked;     // Since a note was to begin, the one before having begun...
    bool m_neverBegan = false; // ...which it had not.
};
