#include "diagrams/chordshapes.h"

#include "core/chordtypes.h"
#include "music/nameindex.h"
#include "music/names.h"
#include "music/voicings.h"

#include <QStringList>

#include <algorithm>

namespace {

constexpr qsizetype mostKnown = 1000;

struct TypeNotes {
    QStringView suffix;
    NoteSet notes;
};

// What players write and the catalogue may lack.
constexpr std::array<TypeNotes, 10> otherTypes{{
    {u"5", {0, 7}},
    {u"dim7", {0, 3, 6, 9}},
    {u"add11", {0, 4, 5, 7}},
    {u"7#11", {0, 4, 6, 7, 10}},
    {u"maj7b5", {0, 4, 6, 11}},
    {u"maj7#5", {0, 4, 8, 11}},
    {u"9b5", {0, 2, 4, 6, 10}},
    {u"7sus2", {0, 2, 7, 10}},
    {u"9sus4", {0, 2, 5, 7, 10}},
    {u"sus", {0, 5, 7}},
}};

// The note that a text begins with, and how many characters it takes.
struct LeadingNote {
    PitchClass note = 0;
    qsizetype size = 0; // 0 where there is none.
};

LeadingNote NoteAtFrontOf(QStringView text) {
    constexpr QStringView letters = u"CDEFGABH";
    constexpr std::array<PitchClass, 8> naturals{0, 2, 4, 5, 7, 9, 11, 11};
    const qsizetype letter = text.isEmpty() ? -1 : letters.indexOf(text[0]);
    if (letter < 0)
        return {};
    const PitchClass natural = naturals[static_cast<std::size_t>(letter)];
    const QChar sign = text.size() > 1 ? text[1] : QChar();
    if (sign == u'#' || sign == u'♯')
        return {(natural + 1) % notesPerOctave, 2};
    if (sign == u'b' || sign == u'♭')
        return {(natural + notesPerOctave - 1) % notesPerOctave, 2};
    return {natural, 1};
}

std::optional<NoteSet> NotesOfType(QStringView suffix, const TextTable& chordTypes) {
    for (int entry = 1; entry <= chordTypes.Count(); ++entry)
        if (chordTypes.FieldEquals(ChordType::Suffix, entry, suffix))
            return NamedTypeOf(chordTypes, entry).notes;
    for (const TypeNotes& type : otherTypes)
        if (type.suffix == suffix)
            return type.notes;
    for (int entry = 1; entry <= chordTypes.Count(); ++entry)
        if (chordTypes.FieldContains(ChordType::AltNames, entry, suffix) &&
            chordTypes.Field(ChordType::AltNames, entry)
                .split(QStringLiteral(", "))
                .contains(suffix))
            return NamedTypeOf(chordTypes, entry).notes;
    return std::nullopt;
}

PitchClass BassOf(const Shape& shape, const Tuning& tuning) {
    const std::vector<int> pitches = SoundingPitches(shape, tuning);
    return pitches.empty() ? -1
                           : *std::min_element(pitches.begin(), pitches.end()) % notesPerOctave;
}

} // namespace

std::optional<NamedChord> ReadChordName(QStringView name, const TextTable& chordTypes) {
    const LeadingNote root = NoteAtFrontOf(name);
    if (root.size == 0)
        return std::nullopt;
    const QStringView type = name.sliced(root.size);
    // A type may have a "/" of its own.
    if (const auto notes = NotesOfType(type, chordTypes))
        return NamedChord{root.note, notes->Raised(root.note), std::nullopt};
    const qsizetype slash = type.lastIndexOf(u'/');
    if (slash < 0)
        return std::nullopt;
    const LeadingNote bass = NoteAtFrontOf(type.sliced(slash + 1));
    const auto notes = NotesOfType(type.first(slash), chordTypes);
    if (!notes || bass.size == 0 || bass.size != type.size() - slash - 1)
        return std::nullopt;
    return NamedChord{root.note, notes->Raised(root.note), bass.note};
}

std::optional<Shape> FirstVoicing(const NamedChord& chord, const Tuning& tuning) {
    const auto voicings = FindVoicings(chord.notes, chord.root, tuning).shapes;
    if (!chord.bass || *chord.bass == chord.root)
        return voicings.empty() ? std::nullopt : std::optional(voicings[0].ToShape());
    NoteSet withBass = chord.notes;
    withBass.Add(*chord.bass);
    for (const Voicing& voicing : FindVoicings(withBass, chord.root, tuning).shapes)
        if (BassOf(voicing.frets.ToShape(), tuning) == *chord.bass)
            return voicing.ToShape();
    return voicings.empty() ? std::nullopt : std::optional(voicings[0].ToShape());
}

std::optional<Shape> ChordShapes::operator()(const QString& name) {
    const Tuning tuning = TuningOf(*m_state);
    if (tuning != m_tuning || m_known.size() >= mostKnown)
        m_known.clear();
    m_tuning = tuning;
    const auto known = m_known.constFind(name);
    if (known != m_known.constEnd())
        return *known;
    const auto chord = ReadChordName(name, m_state->ChordTypes);
    return *m_known.insert(name, chord ? FirstVoicing(*chord, tuning) : std::nullopt);
}
