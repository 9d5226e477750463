// Laying a shape on the neck, and which chord the neck and the keys ask for.
#include "core/chordtypes.h"
#include "music/spelling.h"
#include "workbench/workbench.h"

#include <algorithm>

namespace {

NoteSet NotesOf(const std::vector<int>& keys) {
    NoteSet notes;
    for (const int key : keys)
        notes.Add(key);
    return notes;
}

} // namespace

ChordToPlay Workbench::ToPlay() const {
    ChordToPlay toPlay;
    ChordOnStrings& chord = toPlay.chord;
    chord.tuning = TuningOf(*m_state);
    const auto marked = m_keys.Marked();
    if (marked.empty())
        return toPlay;
    chord.notes = NotesOf(marked);
    chord.root = marked.front() % notesPerOctave;
    const auto root = SemitoneOf(m_rootName);
    if (m_rootRow < 0 || m_typeRow < 0 || !root)
        return toPlay;
    const int entry = m_typeRow + 1;
    const QString structure = m_state->ChordTypes.Field(ChordType::Structure, entry);
    if (NotesOf(ChordKeys(*root, structure)) != chord.notes)
        return toPlay;
    chord.root = *root;
    toPlay.bass = m_preferredBass;
    toPlay.name = m_rootName + m_state->ChordTypes.Field(ChordType::Suffix, entry);
    return toPlay;
}

// The neck's bar starts at the bottom row, and all strings that have no mark sound at its fret.
std::optional<Barre> Workbench::BarreFor(const Shape& shape) const {
    for (const ShapeBarre& held : shape.barres) {
        const int oneEnd = RowOfString(held.thinnest, m_state->ThinStringAtBottom);
        const int otherEnd = RowOfString(held.thickest, m_state->ThinStringAtBottom);
        if (std::min(oneEnd, otherEnd) != 0)
            continue;
        const bool someRingOpen =
            std::any_of(shape.frets.begin(), shape.frets.end(), [](int fret) { return fret == 0; });
        if (!someRingOpen && held.fret <= barreFrets)
            return Barre{held.fret, std::max(oneEnd, otherEnd)};
    }
    return std::nullopt;
}

void Workbench::LayShape(const Shape& shape) {
    if (!m_ownMutes) {
        m_ownMutes.emplace();
        for (std::size_t row = 0; row < stringCount; ++row)
            (*m_ownMutes)[row] = !m_rows[row].enabled;
    }
    m_barre = BarreFor(shape);
    if (m_barre) {
        m_barreFretRow = m_barre->fret - 1;
        m_barreStringsRow = m_barre->lastRow;
    }
    for (int row = 0; row < stringCount; ++row) {
        const int string = StringOfRow(row, m_state->ThinStringAtBottom);
        const int fret = std::max(0, shape.Fret(string));
        const bool barred = m_barre && m_barre->Covers(row) && fret == m_barre->fret;
        StringRow& laid = At(row);
        laid.enabled = shape.Sounds(string);
        laid.mark = fret > 0 && !barred ? std::optional(fret) : std::nullopt;
        laid.currentFret = laid.automaticFret = fret;
        laid.note = NoteAt(row, fret);
    }
    m_hand = NeckShape();
    FindMissing();
}

void Workbench::TakeBackMutes() {
    if (!m_ownMutes)
        return;
    for (std::size_t row = 0; row < stringCount; ++row)
        m_rows[row].enabled = !(*m_ownMutes)[row];
    m_ownMutes.reset();
}

std::vector<PlayersName> Workbench::NamesOfHand(const PlayersNames& names) const {
    constexpr std::size_t mostNames = 4;
    std::optional<CatalogueChord> chosen;
    if (m_rootRow >= 0 && m_typeRow >= 0)
        chosen = {m_rootRow, m_typeRow + 1};
    const auto pitches = SoundingPitches(NeckShape(), TuningOf(*m_state));
    std::vector<PlayersName> found = names.Of(pitches, chosen);
    found.resize(std::min(found.size(), mostNames));
    return found;
}
