#include "sound/playback.h"

#include "core/notes.h"
#include "core/numbers.h"

#include <QScopeGuard>

#include <utility>

QString KeySoundFile(const QString& appPath, int key) {
    return appPath + QStringLiteral("sounds/keys/") + QString::number(key) + QStringLiteral(".mid");
}

QString StringSoundFile(const QString& appPath, const QString& soundNumber, int fret) {
    return appPath + QStringLiteral("sounds/strings/") +
           QString::number(LeadingNumber(soundNumber) - fret, 'g', 15) + QStringLiteral(".mid");
}

int SoundingFret(const RowSound& row, std::optional<int> barreFret) {
    return row.mark.value_or(barreFret.value_or(0));
}

std::array<int, stringCount> RowsFromThickToThin(bool thinStringAtBottom) {
    std::array<int, stringCount> rows{};
    for (int i = 0; i < stringCount; ++i)
        rows[static_cast<std::size_t>(i)] = thinStringAtBottom ? stringCount - 1 - i : i;
    return rows;
}

// The steps of one loop. Each is counted from the step before, not from when the last wait
// came back, so that small delays do not add up.
class Playback::Beat {
public:
    Beat(Playback& playback, bool fast)
        : m_playback(playback), m_pause(fast ? 0.5 : 1.0), m_step(playback.m_clock.Now()) {}

    void Play(const QString& file) {
        m_sounded = true;
        m_playback.m_midi.PlayMidiFile(file);
        Wait();
        m_playback.m_midi.CloseMidiFile();
    }

    void Wait() {
        const double now = m_playback.m_clock.Now();
        if (now - m_step > m_pause)
            m_step = now; // A nested loop played meanwhile.
        m_step += m_pause;
        m_playback.m_clock.WaitUntil(m_step);
    }

    // Whether anything sounded since the last call.
    bool Sounded() { return std::exchange(m_sounded, false); }

private:
    Playback& m_playback;
    double m_pause;
    double m_step;
    bool m_sounded = false;
};

Playback::Playback(AppState& state, MidiPlayer& midi, Clock& clock, PlaybackSource source)
    : m_state(state), m_midi(midi), m_clock(clock), m_source(std::move(source)) {}

void Playback::PlayKeys(bool fast) {
    Repeat(fast, [this](Beat& beat) {
        for (int key = 0; key < keyCount && !m_abandoned; ++key) {
            if (!m_source.keyMarked(key))
                continue;
            ShowSounding(key, std::nullopt);
            beat.Play(KeySoundFile(m_state.AppPath, key));
        }
    });
}

void Playback::PlayStrings(bool fast) {
    Repeat(fast, [this](Beat& beat) {
        for (const int row : RowsFromThickToThin(m_state.ThinStringAtBottom)) {
            const RowSound sound = m_source.row(row);
            if (!sound.enabled || m_abandoned)
                continue;
            ShowSounding(std::nullopt, row);
            beat.Play(StringSoundFile(m_state.AppPath, sound.soundNumber,
                                      SoundingFret(sound, m_source.barreFret())));
        }
    });
}

void Playback::Repeat(bool fast, const std::function<void(Beat&)>& pass) {
    m_state.IsPlaying = true;
    const auto silence = qScopeGuard([this] { ShowSounding(std::nullopt, std::nullopt); });
    auto failed = qScopeGuard([this] { m_state.IsPlaying = false; });
    Beat beat(*this, fast);
    do {
        pass(beat);
        if (m_abandoned)
            return;
        if (!m_source.repeats())
            m_state.IsPlaying = false;
        else if (!beat.Sounded() && m_state.IsPlaying)
            beat.Wait(); // An empty loop costs nothing and can be stopped.
    } while (m_state.IsPlaying && !m_abandoned);
    failed.dismiss();
}

void Playback::Stop() {
    m_state.IsPlaying = false;
}

void Playback::Abandon() {
    m_abandoned = true;
    m_state.IsPlaying = false;
    m_midi.CloseMidiFile();
}

void Playback::ShowSounding(std::optional<int> key, std::optional<int> row) {
    m_soundingKey = key;
    m_soundingRow = row;
    if (m_show && !m_abandoned)
        m_show();
}
