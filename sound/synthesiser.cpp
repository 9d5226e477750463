#include "sound/synthesiser.h"

#include <QFile>

#include <algorithm>
#include <numeric>
#include <utility>

namespace {

constexpr int drumChannel = 9;
constexpr int block = 64; // The library begins and ends notes at multiples of so many samples.

enum Controller { sustain = 64, sostenuto = 66, hold = 69, allSoundOff = 120, resetAll = 121 };

// Steps of entering a parameter, which would set another than they were meant for.
bool IsEntry(int controller) {
    constexpr int dataHigh = 6;
    constexpr int dataLow = 38;
    constexpr int portamento = 84;
    return controller == dataHigh || controller == dataLow || controller == portamento ||
           (controller >= 96 && controller <= 101);
}

} // namespace

std::unique_ptr<Synthesiser> Synthesiser::Make(const QString& soundFont) {
    const FluidSynthLibrary* library = LoadFluidSynth();
    if (library == nullptr || soundFont.isEmpty())
        return nullptr;
    fluid_settings_t* settings = library->new_fluid_settings();
    library->fluid_settings_setint(settings, "synth.chorus.active", 0);
    library->fluid_settings_setint(settings, "synth.midi-channels", sets * channelsOfAFile);
    library->fluid_settings_setnum(settings, "synth.gain", 0.7);
    std::unique_ptr<Synthesiser> made(new Synthesiser(*library, settings));
    return made->Load(soundFont) ? std::move(made) : nullptr;
}

Synthesiser::Synthesiser(const FluidSynthLibrary& library, fluid_settings_t* settings)
    : m_fluid(library),
      m_settings(settings),
      m_synth(library.new_fluid_synth(settings)),
      m_freeSets(sets) {
    std::iota(m_freeSets.begin(), m_freeSets.end(), 0);
}

Synthesiser::~Synthesiser() {
    if (m_synth != nullptr)
        m_fluid.delete_fluid_synth(m_synth);
    m_fluid.delete_fluid_settings(m_settings);
}

bool Synthesiser::Load(const QString& soundFont) {
    if (m_synth == nullptr ||
        m_fluid.fluid_synth_sfload(m_synth, QFile::encodeName(soundFont).constData(), 1) ==
            FLUID_FAILED)
        return false;
    m_fluid.fluid_settings_getnum(m_settings, "synth.sample-rate", &m_sampleRate);
    for (int controller = 0; controller < controllers; ++controller)
        m_fluid.fluid_synth_get_cc(m_synth, 0, controller,
                                   &m_fresh[static_cast<std::size_t>(controller)]);
    for (int set = 0; set < sets; ++set) {
        const int drums = set * channelsOfAFile + drumChannel;
        m_fluid.fluid_synth_set_channel_type(m_synth, drums, CHANNEL_TYPE_DRUM);
        m_fluid.fluid_synth_program_change(m_synth, drums, 0);
    }
    return true;
}

void Synthesiser::Begin(const Beginning& file) {
    const int set = m_freeSets.front();
    m_freeSets.pop_front();
    Renew(set);
    const double begin = m_now + file.delay * m_sampleRate;
    m_performances.push_back(
        {file.id, file.score, 0, begin, begin + file.length * m_sampleRate, set});
}

void Synthesiser::End(Ending files) {
    for (Performance& performance : m_performances)
        if (performance.id == files.id)
            performance.end = std::min(
                performance.end, std::max(m_now, performance.begin + files.atLeast * m_sampleRate));
}

void Synthesiser::Silence() {
    for (const Performance& performance : m_performances)
        m_freeSets.push_back(performance.set);
    m_performances.clear();
    m_lastEnd = m_now;
    m_fluid.fluid_synth_all_sounds_off(m_synth, -1);
}

double Synthesiser::Resting() const {
    return m_performances.empty() ? (m_now - m_lastEnd) / m_sampleRate : 0;
}

void Synthesiser::Render(float* left, float* right, int frames) {
    for (int done = 0; done < frames;) {
        for (Performance& performance : m_performances)
            Play(performance);
        std::erase_if(m_performances, [this](const Performance& performance) {
            const bool ended = performance.end <= m_now;
            if (ended)
                LetDieAway(performance);
            return ended;
        });
        const int count = std::min(frames - done, block);
        m_fluid.fluid_synth_write_float(m_synth, count, left, done, 1, right, done, 1);
        done += count;
        m_now += count;
    }
}

void Synthesiser::Play(Performance& performance) {
    const Score& score = *performance.score;
    for (; performance.next < score.size(); ++performance.next) {
        const double due = performance.begin + score[performance.next].seconds * m_sampleRate;
        if (due > m_now || due >= performance.end)
            return;
        Send(performance.set, score[performance.next]);
    }
}

void Synthesiser::LetDieAway(const Performance& performance) {
    const std::bitset<channelsOfAFile>& used = m_used[static_cast<std::size_t>(performance.set)];
    for (int i = 0; i < channelsOfAFile; ++i) {
        if (!used[static_cast<std::size_t>(i)])
            continue;
        const int channel = performance.set * channelsOfAFile + i;
        for (const int pedal : {sustain, sostenuto, hold})
            m_fluid.fluid_synth_cc(m_synth, channel, pedal, 0);
        m_fluid.fluid_synth_all_notes_off(m_synth, channel);
    }
    m_freeSets.push_back(performance.set);
    m_lastEnd = m_now;
}

// What of the set's last file still dies away is hardly to be heard any more.
void Synthesiser::Renew(int set) {
    auto& used = m_used[static_cast<std::size_t>(set)];
    for (int i = 0; i < channelsOfAFile; ++i)
        if (used[static_cast<std::size_t>(i)])
            RenewChannel(set * channelsOfAFile + i);
    used.reset();
}

void Synthesiser::RenewChannel(int channel) {
    constexpr int semitones = 2; // Of the bend, either way.
    m_fluid.fluid_synth_cc(m_synth, channel, resetAll, 0);
    m_fluid.fluid_synth_pitch_wheel_sens(m_synth, channel, semitones);
    for (int controller = 0; controller < controllers; ++controller) {
        const int fresh = m_fresh[static_cast<std::size_t>(controller)];
        int value = fresh;
        m_fluid.fluid_synth_get_cc(m_synth, channel, controller, &value);
        if (value != fresh && !IsEntry(controller))
            m_fluid.fluid_synth_cc(m_synth, channel, controller, fresh);
    }
    m_fluid.fluid_synth_program_change(m_synth, channel, 0);
}

void Synthesiser::Send(int set, const MidiEvent& event) {
    const int inFile = event.status & 0x0F;
    const int channel = set * channelsOfAFile + inFile;
    m_used[static_cast<std::size_t>(set)].set(static_cast<std::size_t>(inFile));
    switch (event.status & 0xF0) {
    case 0x80:
        m_fluid.fluid_synth_noteoff(m_synth, channel, event.first);
        return;
    case 0x90:
        if (event.second > 0)
            m_fluid.fluid_synth_noteon(m_synth, channel, event.first, event.second);
        else
            m_fluid.fluid_synth_noteoff(m_synth, channel, event.first);
        return;
    case 0xA0:
        m_fluid.fluid_synth_key_pressure(m_synth, channel, event.first, event.second);
        return;
    case 0xB0:
        return Control(channel, event.first, event.second);
    case 0xC0:
        m_fluid.fluid_synth_program_change(m_synth, channel, event.first);
        return;
    case 0xD0:
        m_fluid.fluid_synth_channel_pressure(m_synth, channel, event.first);
        return;
    default:
        m_fluid.fluid_synth_pitch_bend(m_synth, channel, event.second << 7 | event.first);
    }
}

// The modes of receiving are the whole synthesiser's, so they only end the channel's notes.
void Synthesiser::Control(int channel, int controller, int value) {
    constexpr int local = 122;
    if (controller <= resetAll)
        m_fluid.fluid_synth_cc(m_synth, channel, controller, value);
    else if (controller != local)
        m_fluid.fluid_synth_all_notes_off(m_synth, channel);
}
