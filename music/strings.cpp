#include "music/strings.h"

#include "core/numbers.h"
#include "music/shape.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int pitchOfSoundZero = 84;
constexpr int highestPitch = 127;

int NearestPitch(PitchClass note, int wanted) {
    const int above = ((note - wanted) % notesPerOctave + notesPerOctave) % notesPerOctave;
    return above <= notesPerOctave / 2 ? wanted + above : wanted + above - notesPerOctave;
}

std::optional<int> PitchOf(const QString& soundNumber) {
    if (std::none_of(soundNumber.begin(), soundNumber.end(),
                     [](QChar c) { return c >= u'0' && c <= u'9'; }))
        return std::nullopt;
    const double pitch = std::nearbyint(pitchOfSoundZero - LeadingNumber(soundNumber));
    if (!(pitch >= 0 && pitch <= highestPitch))
        return std::nullopt;
    return static_cast<int>(pitch);
}

} // namespace

OpenString StringTunedTo(int string, PitchClass note) {
    return {note, NearestPitch(note, standardPitches[static_cast<std::size_t>(string - 1)])};
}

std::optional<OpenString> TunedString(int string, const QString& noteName,
                                      const QString& soundNumber) {
    const auto note = SemitoneOf(noteName);
    if (!note)
        return std::nullopt;
    if (const auto wanted = PitchOf(soundNumber)) {
        const int pitch = NearestPitch(*note, *wanted);
        if (pitch >= 0 && pitch <= highestPitch)
            return OpenString{*note, pitch};
    }
    return StringTunedTo(string, *note);
}

Tuning TuningOf(const AppState& state) {
    Tuning tuning;
    for (int row = 0; row < stringCount; ++row) {
        const int string = StringOfRow(row, state.ThinStringAtBottom);
        const auto index = static_cast<std::size_t>(row);
        tuning[static_cast<std::size_t>(string - 1)] =
            TunedString(string, state.StringNotes[index], state.SoundNumbers[index]);
    }
    return tuning;
}
