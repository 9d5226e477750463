#include "music/nameindex.h"

#include "core/chordtypes.h"
#include "music/namecosts.h"

#include <algorithm>
#include <map>

namespace {

NoteSet NotesOfStructure(const QString& structure) {
    NoteSet notes{0};
    int interval = 0;
    for (const QChar step : structure) {
        if (step >= u'0' && step <= u'9')
            interval = (interval + step.unicode() - u'0') % notesPerOctave;
        notes.Add(interval);
    }
    return notes;
}

const KnownType* FindKnown(NoteSet notes, QStringView suffix) {
    const auto found =
        std::find_if(knownTypes.begin(), knownTypes.end(), [&](const KnownType& known) {
            return known.notes == notes && known.suffix == suffix;
        });
    return found == knownTypes.end() ? nullptr : &*found;
}

bool HasKnownNotes(NoteSet notes) {
    return std::any_of(knownTypes.begin(), knownTypes.end(),
                       [&](const KnownType& known) { return known.notes == notes; });
}

} // namespace

NamedType NamedTypeOf(const TextTable& chordTypes, int entry) {
    NamedType type{chordTypes.Field(ChordType::Suffix, entry),
                   NotesOfStructure(chordTypes.Field(ChordType::Structure, entry)), otherTypeCost,
                   entry};
    if (const KnownType* known = FindKnown(type.notes, type.suffix))
        type.cost = known->cost;
    return type;
}

NameIndex::NameIndex(const TextTable& chordTypes) {
    ReadTypes(chordTypes);
    for (const NamedType& type : m_types)
        AddFits(type);
    std::stable_sort(m_fits.begin(), m_fits.end(), [](const Fit& a, const Fit& b) {
        return a.sounding.Bits() < b.sounding.Bits();
    });
}

void NameIndex::ReadTypes(const TextTable& chordTypes) {
    const int builtIn = BuiltInChordTypes().Count();
    std::array<int, knownTypes.size()> entryOfKnown{};
    std::map<unsigned, int> latestInFile; // By notes.
    for (int entry = 1; entry <= chordTypes.Count(); ++entry) {
        const NoteSet notes = NotesOfStructure(chordTypes.Field(ChordType::Structure, entry));
        const KnownType* known = HasKnownNotes(notes)
                                     ? FindKnown(notes, chordTypes.Field(ChordType::Suffix, entry))
                                     : nullptr;
        if (known) {
            int& first = entryOfKnown[static_cast<std::size_t>(known - knownTypes.data())];
            first = first == 0 ? entry : first;
        } else if (entry <= builtIn) {
            m_types.push_back(NamedTypeOf(chordTypes, entry));
        } else {
            latestInFile[notes.Bits()] = entry;
        }
    }
    for (const auto& [notes, entry] : latestInFile)
        m_types.push_back(NamedTypeOf(chordTypes, entry));
    for (std::size_t i = 0; i < knownTypes.size(); ++i)
        m_types.push_back({knownTypes[i].suffix.toString(), knownTypes[i].notes, knownTypes[i].cost,
                           entryOfKnown[i]});
}

void NameIndex::AddFits(const NamedType& type) {
    // Every way to leave out some of the notes that may be.
    constexpr unsigned omissible = NoteSet{0, 2, 4, 7}.Bits();
    const unsigned all = type.notes.Bits() & omissible;
    for (unsigned leftOut = all;; leftOut = (leftOut - 1) & all) {
        const NoteSet sounding = type.notes - NoteSet::OfBits(leftOut);
        if (const auto cost = OmissionCost(type.notes, sounding))
            m_fits.push_back({sounding, &type, type.cost + *cost});
        if (leftOut == 0)
            return;
    }
}

std::span<const NameIndex::Fit> NameIndex::Fits(NoteSet sounding) const {
    const auto [first, last] = std::equal_range(
        m_fits.begin(), m_fits.end(), Fit{sounding, nullptr, 0},
        [](const Fit& a, const Fit& b) { return a.sounding.Bits() < b.sounding.Bits(); });
    return {first, last};
}
