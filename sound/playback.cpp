#include "sound/playback.h"

#include "core/notes.h"
#include "core/numbers.h"

#include <QScopeGuard>

#include <utility>

namespace {

// Opening a device may take longer than anybody wants to wait for it.
void AwaitSound(const MidiPlayer& midi, Clock& clock) {
    constexpr double step = 0.002;
    constexpr double longest = 0.2;
    const double last = clock.Now() + longest;
    for (double next = clock.Now() + step; midi.Waking() && next < last;
         next = clock.Now() + step) {
        clock.WaitUntil(next);
        if (clock.Now() < next)
            return; // The program ends.
    }
}

} // namespace

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
        rows[static_cast<std::size_t>(i)] = RowOfString(stringCount - i, thinStringAtBottom);
    return rows;
}

void PlayForSeconds(MidiPlayer& midi, Clock& clock, const QString& file, double seconds) {
    midi.PlayMidiFile(file);
    AwaitSound(midi, clock);
    clock.WaitUntil(clock.Now() + seconds);
    midi.CloseWhenSounded(seconds);
}

// The notes of one loop, each for its whole pause from when it begins to sound: what is late
// is never made up for.
class Playback::Beat {
public:
    Beat(Playback& playback, bool fast) : m_playback(playback), m_pause(fast ? 0.5 : 1.0) {}

    void Play(const QString& file) {
        m_sounded = true;
        PlayForSeconds(m_playback.m_midi, m_playback.m_clock, file, m_pause);
    }

    void Wait() { m_playback.m_clock.WaitUntil(m_playback.m_clock.Now() + m_pause); }

    // Whether anything sounded since the last call.
    bool Sounded() { return std::exchange(m_sounded, false); }

private:
    Playback& m_playback;
    double m_pause;
    bool m_sounded = false;
};

Playback::Playback(AppState& state, MidiPlayer& midi, Clock& clock, PlaybackSource source)
    : m_state(state), m_midi(midi), m_clock(clock), m_source(std::move(source)) {
    m_midi.SetStrumEnded([this] {
        m_strummedRows.reset();
        Show();
    });
}

Playback::~Playback() {
    m_midi.SetStrumEnded({});
}

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
            beat.Play(FileOfRow(sound));
        }
    });
}

void Playback::Strum() {
    QStringList files;
    std::bitset<stringCount> rows;
    for (const int row : RowsFromThickToThin(m_state.ThinStringAtBottom)) {
        const RowSound sound = m_source.row(row);
        if (!sound.enabled)
            continue;
        files += FileOfRow(sound);
        rows.set(static_cast<std::size_t>(row));
    }
    m_midi.Strum(files);
    m_strummedRows = rows;
    Show();
}

QString Playback::FileOfRow(const RowSound& sound) const {
    return StringSoundFile(m_state.AppPath, sound.soundNumber,
                           SoundingFret(sound, m_source.barreFret()));
}

void Playback::Repeat(bool fast, const std::function<void(Beat&)>& pass) {
    constexpr int deepest = 256;
    if (m_depth == deepest || m_abandoned)
        return;
    ++m_depth;
    m_state.IsPlaying = true;
    const auto silence = qScopeGuard([this] {
        --m_depth;
        ShowSounding(std::nullopt, std::nullopt);
    });
    auto failed = qScopeGuard([this] { EndLoops(); });
    const int ends = m_ends;
    Beat beat(*this, fast);
    do {
        pass(beat);
        if (m_abandoned)
            return;
        // A loop that was ended stays so, also where another was begun meanwhile.
        if (m_ends != ends)
            break;
        if (!m_source.repeats())
            EndLoops();
        else if (!beat.Sounded())
            beat.Wait(); // An empty loop costs nothing and can be stopped.
    } while (m_ends == ends && !m_abandoned);
    failed.dismiss();
}

void Playback::EndLoops() {
    m_state.IsPlaying = false;
    ++m_ends;
}

void Playback::Stop() {
    EndLoops();
    m_midi.EndStrum();
}

void Playback::Abandon() {
    m_abandoned = true;
    EndLoops();
    m_midi.CloseMidiFile();
    m_midi.EndStrum();
}

std::bitset<stringCount> Playback::SoundingRows() const {
    std::bitset<stringCount> rows = m_strummedRows;
    if (m_soundingRow)
        rows.set(static_cast<std::size_t>(*m_soundingRow));
    return rows;
}

void Playback::ShowSounding(std::optional<int> key, std::optional<int> row) {
    m_soundingKey = key;
    m_soundingRow = row;
    Show();
}

void Playback::Show() const {
    if (m_show && !m_abandoned)
        m_show();
}
