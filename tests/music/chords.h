// Chords and tunings by name, for tests of what is played on the strings.
#pragma once

#include "core/chordtypes.h"
#include "music/noteset.h"
#include "music/spelling.h"
#include "music/strings.h"

#include <QStringList>

// Six names, string 6 first, as players say them; an unknown name is a string without a note.
inline Tuning TunedTo(const QString& names) {
    const QStringList parts = names.split(u',');
    Tuning tuning;
    for (int string = 1; string <= stringCount; ++string)
        if (const auto note = SemitoneOf(parts.value(stringCount - string)))
            tuning[static_cast<std::size_t>(string - 1)] = StringTunedTo(string, *note);
    return tuning;
}

inline Tuning StandardTuning() {
    return TunedTo(QStringLiteral("E,A,D,G,B,E"));
}

// "F# m7": the root and the built-in type with a blank between.
struct NamedChord {
    explicit NamedChord(const QString& name) {
        const qsizetype blank = name.indexOf(u' ');
        root = SemitoneOf(name.left(blank)).value();
        const TextTable types = BuiltInChordTypes();
        for (int type = 1; type <= types.Count(); ++type)
            if (types.Field(ChordType::Name, type) == name.mid(blank + 1))
                for (const int key : ChordKeys(root, types.Field(ChordType::Structure, type)))
                    notes.Add(key);
    }

    PitchClass root = 0;
    NoteSet notes; // Empty for a type that is none.
};
