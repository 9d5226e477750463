#include "heardchord.h"

#include "core/numbers.h"
#include "tests/sound/listener.h"
#include "tests/sound/recording.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int soundNumberOfNoteZero = 84;
constexpr int lowest = 40; // That the ear knows.
constexpr int highest = 84;

std::vector<int> Asked(const Workbench& workbench, bool thinStringAtBottom) {
    std::vector<int> pitches;
    for (const int row : RowsFromThickToThin(thinStringAtBottom)) {
        const RowSound sound = workbench.SoundOfRow(row);
        const double number =
            LeadingNumber(sound.soundNumber) - SoundingFret(sound, workbench.ShownBarreFret());
        if (sound.enabled)
            pitches.push_back(soundNumberOfNoteZero - static_cast<int>(number));
    }
    return pitches;
}

QString InWords(const std::vector<int>& pitches) {
    QStringList words;
    for (const int pitch : pitches)
        words += QString::number(pitch);
    return words.join(u' ');
}

} // namespace

std::optional<QString> BrokenChord(const Workbench& workbench, const AppState& state) {
    const std::vector<int> asked = Asked(workbench, state.ThinStringAtBottom);
    if (asked.empty() || std::any_of(asked.begin(), asked.end(),
                                     [](int pitch) { return pitch < lowest || pitch > highest; }))
        return std::nullopt;
    AppState own;
    own.AppPath = QStringLiteral(SOUND_FOLDER "/../");
    own.ThinStringAtBottom = state.ThinStringAtBottom;
    Recording recording(own.AppPath);
    Playback playback(own, recording.Midi(), recording,
                      {[](int) { return false; },
                       [&](int row) { return workbench.SoundOfRow(row); },
                       [&] { return workbench.ShownBarreFret(); }, [] { return false; }});
    playback.PlayStrings(true);
    recording.WaitUntil(recording.Now() + 0.3);
    std::vector<int> heard;
    for (const HeardNote& note : Listen(recording.Heard()))
        heard.push_back(static_cast<int>(std::lround(note.pitch)));
    return heard == asked ? QString()
                          : InWords(asked) + QStringLiteral(" is heard as ") + InWords(heard);
}
