// Playing the marked keys, or the strings as they are fingered, one note after another.
#pragma once

#include "core/mdlmain.h"
#include "sound/sound.h"

#include <bitset>
#include <functional>
#include <optional>

// What playback asks about a row of the fretboard when its turn comes.
struct RowSound {
    bool enabled = true;     // A muted string is passed over.
    std::optional<int> mark; // The fret of its finger mark.
    QString soundNumber;     // Of the open string; one less is one semitone higher.
};

// What playback reads while it runs.
struct PlaybackSource {
    std::function<bool(int key)> keyMarked;
    std::function<RowSound(int row)> row;
    std::function<std::optional<int>()> barreFret;
    std::function<bool()> repeats;
};

// The file of a key 0 to 35, and of a string's sound number less the fret it is stopped at.
// A number text that is no number is 0; a number without a file is silence.
QString KeySoundFile(const QString& appPath, int key);
QString StringSoundFile(const QString& appPath, const QString& soundNumber, int fret);

// Plays the file and returns when it has sounded for so long, from when it began; events are
// processed meanwhile.
void PlayForSeconds(MidiPlayer& midi, Clock& clock, const QString& file, double seconds);

// The fret that a row sounds: its mark's, else the barre's, else 0.
int SoundingFret(const RowSound& row, std::optional<int> barreFret);

// Rows from the sixth string, the thickest, to the first.
std::array<int, stringCount> RowsFromThickToThin(bool thinStringAtBottom);

class Playback {
public:
    Playback(AppState& state, MidiPlayer& midi, Clock& clock, PlaybackSource source);
    ~Playback();
    Playback(const Playback&) = delete;
    Playback& operator=(const Playback&) = delete;

    // Called whenever another key or string begins or ends to sound.
    void SetShow(std::function<void()> show) { m_show = std::move(show); }

    // Half a second a note when fast, else a second. Returns when the loop has ended; events
    // are processed meanwhile, so a second call runs nested in the first. A call nested deeper
    // than the stack bears does nothing.
    void PlayKeys(bool fast);
    void PlayStrings(bool fast);

    // All strings that are not muted, from the sixth to the first, as one. Returns at once,
    // and leaves running loops alone.
    void Strum();

    // Lets every running loop finish its pass, and a strum die away.
    void Stop();

    // Ends every loop without another note: the window is closing.
    void Abandon();

    std::optional<int> SoundingKey() const { return m_soundingKey; }
    std::bitset<stringCount> SoundingRows() const;

private:
    class Beat;

    void Repeat(bool fast, const std::function<void(Beat&)>& pass);
    void EndLoops();
    QString FileOfRow(const RowSound& sound) const;
    void ShowSounding(std::optional<int> key, std::optional<int> row);
    void Show() const;

    AppState& m_state;
    MidiPlayer& m_midi;
    Clock& m_clock;
    PlaybackSource m_source;
    std::function<void()> m_show;
    std::optional<int> m_soundingKey;
    std::optional<int> m_soundingRow;
    std::bitset<stringCount> m_strummedRows;
    int m_ends = 0;  // How often all loops were ended.
    int m_depth = 0; // How many loops run, each nested in the one before.
    bool m_abandoned = false;
};
