// The shape of a chord that a text only names.
#pragma once

#include "core/mdlmain.h"
#include "music/noteset.h"
#include "music/shape.h"
#include "music/strings.h"

#include <QHash>

#include <optional>

struct NamedChord {
    PitchClass root = 0;
    NoteSet notes;
    std::optional<PitchClass> bass; // Where the name has one, behind a "/".

    bool operator==(const NamedChord&) const = default;
};

// "F#m7/C#": a root, A to H with # or b, then how the catalogue writes a type behind it, or
// one of its other notations. Nothing for a name that is none.
std::optional<NamedChord> ReadChordName(QStringView name, const TextTable& chordTypes);

// The first voicing of a chord, with its bass lowest where one is asked for and there is such a
// voicing; nothing where there is none at all.
std::optional<Shape> FirstVoicing(const NamedChord& chord, const Tuning& tuning);

// Both, for the strings as they are tuned now; it remembers what it was asked before.
class ChordShapes {
public:
    // state: must outlive it.
    explicit ChordShapes(const AppState& state) : m_state(&state) {}

    std::optional<Shape> operator()(const QString& name);

private:
    const AppState* m_state;
    Tuning m_tuning;
    QHash<QString, std::optional<Shape>> m_known;
};
