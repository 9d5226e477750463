#include "music/typedchord.h"

#include "core/chordtypes.h"
#include "music/names.h"

#include <QStringList>

#include <algorithm>

namespace {

struct Written {
    PitchClass root = 0;
    QString suffix;
    std::optional<PitchClass> bass;
};

// Takes a note off the text: a letter in either case and a sign.
std::optional<PitchClass> TakeNote(QStringView& text) {
    if (text.isEmpty())
        return std::nullopt;
    const auto note = SemitoneOf(text.first(1).toString().toUpper());
    if (!note)
        return std::nullopt;
    text = text.sliced(1);
    int sign = 0;
    if (text.startsWith(u'#') || text.startsWith(u'♯'))
        sign = 1;
    else if (text.startsWith(u'b') || text.startsWith(u'♭'))
        sign = -1;
    if (sign != 0)
        text = text.sliced(1);
    return (*note + sign + notesPerOctave) % notesPerOctave;
}

// "M7" is "maj7"; "min" and a dash are "m"; a plus is "aug".
QString UsualSuffix(QStringView suffix) {
    struct Spelling {
        QStringView written;
        QStringView usual;
    };
    constexpr std::array spellings{Spelling{u"maj", u"maj"}, Spelling{u"Maj", u"maj"},
                                   Spelling{u"min", u"m"},   Spelling{u"Min", u"m"},
                                   Spelling{u"M", u"maj"},   Spelling{u"-", u"m"},
                                   Spelling{u"+", u"aug"}};
    for (const auto& [written, usual] : spellings)
        if (suffix.startsWith(written))
            return usual + suffix.sliced(written.size());
    return suffix.toString();
}

std::optional<Written> ReadChord(QStringView typed) {
    Written chord;
    const auto root = TakeNote(typed);
    if (!root)
        return std::nullopt;
    chord.root = *root;
    const auto slash = typed.indexOf(u'/');
    chord.suffix = UsualSuffix(slash < 0 ? typed : typed.first(slash));
    QStringView bass = slash < 0 ? QStringView() : typed.sliced(slash + 1);
    chord.bass = TakeNote(bass);
    const bool readWhole = bass.isEmpty();
    return readWhole ? std::optional(chord) : std::nullopt;
}

// The first of an entry's alternative names that begins with the text; empty where none does.
QString AlternativeName(const TextTable& chordTypes, int entry, const QString& text) {
    const QString names = chordTypes.Field(ChordType::AltNames, entry);
    if (!names.contains(text, Qt::CaseInsensitive))
        return {};
    for (const QString& name : names.split(u','))
        if (name.trimmed().startsWith(text, Qt::CaseInsensitive))
            return name.trimmed();
    return {};
}

// Of each kind no more than are asked for at all.
struct Entries {
    std::vector<int> exact;  // The field is the text.
    std::vector<int> begins; // It begins with the text, in whatever case.
};

class Search {
public:
    Search(const TextTable& chordTypes, std::size_t most) : m_types(chordTypes), m_most(most) {}

    void FindTypes(const QString& text) {
        const Entries names = EntriesWith(ChordType::Name, text);
        for (const auto& entries : {names.exact, names.begins})
            for (const int entry : entries)
                Add({m_types.Field(ChordType::Name, entry), entry, {}, {}});
        for (int entry = 1; entry <= m_types.Count() && !Full(); ++entry)
            if (const QString name = AlternativeName(m_types, entry, text); !name.isEmpty())
                Add({m_types.Field(ChordType::Name, entry) + QStringLiteral(" (%1)").arg(name),
                     entry,
                     {},
                     {}});
    }

    void FindChords(const Written& chord) {
        const Entries suffixes = EntriesWith(ChordType::Suffix, chord.suffix);
        const Entries names = EntriesWith(ChordType::Name, chord.suffix);
        for (const auto& entries : {suffixes.exact, names.exact, suffixes.begins, names.begins})
            for (const int entry : entries)
                AddChord(chord, entry);
        for (int entry = 1; !chord.suffix.isEmpty() && entry <= m_types.Count() && !Full(); ++entry)
            if (!AlternativeName(m_types, entry, chord.suffix).isEmpty())
                AddChord(chord, entry);
    }

    std::vector<TypedChord> found;

private:
    bool Full() const { return found.size() >= m_most; }

    Entries EntriesWith(int field, const QString& text) const {
        Entries entries;
        for (int entry = 1; entry <= m_types.Count() && entries.exact.size() < m_most; ++entry) {
            if (!m_types.FieldStartsWith(field, entry, text))
                continue;
            if (m_types.FieldEquals(field, entry, text))
                entries.exact.push_back(entry);
            else if (entries.begins.size() < m_most)
                entries.begins.push_back(entry);
        }
        return entries;
    }

    void AddChord(const Written& chord, int entry) {
        if (!Full())
            Add({ChordText(NamedTypeOf(m_types, entry), chord.root,
                           chord.bass.value_or(chord.root)),
                 entry, chord.root, chord.bass});
    }

    void Add(const TypedChord& chord) {
        if (Full())
            return;
        const bool isNew = std::none_of(found.begin(), found.end(), [&](const TypedChord& other) {
            return other.entry == chord.entry && other.root == chord.root;
        });
        if (isNew)
            found.push_back(chord);
    }

    const TextTable& m_types;
    std::size_t m_most;
};

} // namespace

std::vector<TypedChord> MatchTypedChord(const TextTable& chordTypes, const QString& typed,
                                        std::size_t most) {
    const QString text = typed.trimmed();
    Search search(chordTypes, most);
    if (text.isEmpty())
        return {};
    const auto chord = ReadChord(text);
    // A capital letter begins a root rather than a type's name.
    const bool rootFirst = text.front().isUpper();
    if (chord && rootFirst)
        search.FindChords(*chord);
    search.FindTypes(text);
    if (chord && !rootFirst)
        search.FindChords(*chord);
    return search.found;
}
