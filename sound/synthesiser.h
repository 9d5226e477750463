// Music into samples, block by block: each file of notes on channels of its own, so that its
// volume, bend, program and pedal, and the ends of its notes, are nobody else's.
#pragma once

#include "sound/fluidsynth.h"
#include "sound/midifile.h"

#include <array>
#include <bitset>
#include <deque>
#include <memory>

// A file that is to be played: from when, counted from now, and for how long.
struct Beginning {
    int id; // For End; several files may share one.
    std::shared_ptr<const Score> score;
    double delay;  // Seconds.
    double length; // Seconds; infinite while nobody knows.
};

// The end of the files of an id, where they have sounded for so many seconds at least. It makes
// none of them longer.
struct Ending {
    int id;
    double atLeast;
};

// Used by one thread at a time.
class Synthesiser {
public:
    // Null where the library or the sound font does not allow it.
    static std::unique_ptr<Synthesiser> Make(const QString& soundFont);

    ~Synthesiser();
    Synthesiser(const Synthesiser&) = delete;
    Synthesiser& operator=(const Synthesiser&) = delete;

    double SampleRate() const { return m_sampleRate; }

    void Begin(const Beginning& file);

    // Lets the notes of these files die away; an id that is none any more does nothing.
    void End(Ending files);

    // Ends everything at once: the next samples are heard at another time.
    void Silence();

    // The next samples, left and right.
    void Render(float* left, float* right, int frames);

    // Seconds rendered since the last file ended; 0 while one plays.
    double Resting() const;

private:
    static constexpr int channelsOfAFile = 16;
    static constexpr int sets = 16;
    static constexpr int controllers = 120; // Beyond are commands.

    // A file while it is played.
    struct Performance {
        int id;
        std::shared_ptr<const Score> score;
        std::size_t next;
        double begin; // Both in samples.
        double end;
        int set;
    };

    Synthesiser(const FluidSynthLibrary& library, fluid_settings_t* settings);

    bool Load(const QString& soundFont);
    void Renew(int set);
    void RenewChannel(int channel);
    void Play(Performance& performance);
    void Send(int set, const MidiEvent& event);
    void Control(int channel, int controller, int value);
    void LetDieAway(const Performance& performance);

    const FluidSynthLibrary& m_fluid;
    fluid_settings_t* m_settings;
    fluid_synth_t* m_synth;
    double m_sampleRate = 0;
    double m_now = 0; // Samples rendered.
    double m_lastEnd = 0;
    std::deque<Performance> m_performances;
    std::deque<int> m_freeSets; // The one that rests longest first.
    std::array<std::bitset<channelsOfAFile>, sets> m_used{};
    std::array<int, controllers> m_fresh{}; // The controllers of a channel never used.
};
