#include "workbench/playingchord.h"

#include "music/voicingchoice.h"

bool PlayingChord::Follow(const Workbench& workbench) {
    ChordToPlay chord = workbench.ToPlay();
    if (chord == m_chord)
        return false;
    m_chord = std::move(chord);
    m_found = FindVoicings(m_chord.chord.notes, m_chord.chord.root, m_chord.chord.tuning);
    if (m_chord.bass)
        PutBassFirst(m_found.shapes, m_chord.chord, *m_chord.bass);
    return true;
}

QString PlayingChord::NameOf(const Shape& shape, const PlayersNames& names) const {
    if (!m_chord.name.isEmpty())
        return m_chord.name;
    const auto found = names.Of(SoundingPitches(shape, m_chord.chord.tuning));
    return found.empty() ? QString() : found.front().text;
}
