#include "music/playable.h"

#include "music/fingernumbers.h"

#include <algorithm>

NoteSet OmittableNotes(NoteSet intervals) {
    constexpr int ninth = 2;
    constexpr int third = 4;
    constexpr int fifth = 7;
    NoteSet omittable;
    // A sus2 with a fourth would be nothing without its fifth.
    if (intervals.Count() >= 4 && intervals != NoteSet({0, 2, 5, 7}))
        omittable.Add(fifth);
    if (intervals.Count() >= 6)
        omittable.Add(ninth);
    if (intervals == NoteSet({0, 2, 4, 5, 7, 10}))
        omittable.Add(third);
    return omittable & intervals;
}

namespace {

// Frets as bits, bit 0 the open string.
using FretSet = unsigned;

constexpr FretSet openFret = 1;

constexpr FretSet FretsTo(int last) {
    return (2U << last) - 1;
}

// What the strings taken so far make of the hand; small, as it is passed on by the thousand.
struct Hand {
    PackedFrets frets;
    NoteSet missing;            // Of the notes that have to sound.
    std::uint16_t reaching = 0; // The frets whose finger can take a further string.
    std::int8_t lowest = 0;     // Stopped fret; 0 while none is.
    std::int8_t highest = 0;
    std::int8_t fingers = 0;
    std::int8_t sounding = 0;
    std::int8_t innerMutes = 0;
    std::int8_t mutes = 0; // Since the last sounding string.
};

bool HasAtMost(NoteSet notes, int count) {
    unsigned bits = notes.Bits();
    for (; count > 0; --count)
        bits &= bits - 1;
    return bits == 0;
}

// Takes string by string, the thick one first, and turns back where nothing can follow.
class Search {
public:
    Search(NoteSet intervals, PitchClass root, const Tuning& tuning, const VoicingRules& rules)
        : m_rules(rules), m_required(intervals - OmittableNotes(intervals)) {
        for (int string = 1; string <= stringCount; ++string) {
            if (const auto& open = tuning[Index(string)])
                AddNotes(m_strings[Index(string)], intervals, open->note - root);
            AddReach(string);
        }
    }

    std::vector<PackedFrets> Run() {
        Take(stringCount, {.frets = {}, .missing = m_required});
        return std::move(m_found);
    }

private:
    static constexpr std::size_t fretCount = highestVoicingFret + 1;
    static constexpr std::size_t widestReach = 2 * widestSpan + 1;

    struct String {
        FretSet frets = 0;                    // Those that sound a chord note.
        std::array<NoteSet, fretCount> notes; // By fret, none where it sounds no chord note.
        // The notes of this and the thinner strings, open or at a fret or so many further ones.
        std::array<std::array<NoteSet, widestReach>, fretCount> reach;
    };

    static std::size_t Index(int string) { return static_cast<std::size_t>(string - 1); }

    static void AddNotes(String& string, NoteSet intervals, int openInterval) {
        for (std::size_t fret = 0; fret < fretCount; ++fret) {
            const NoteSet note{openInterval + static_cast<int>(fret)};
            if (!note.IsSubsetOf(intervals))
                continue;
            string.frets |= openFret << fret;
            string.notes[fret] = note;
        }
    }

    // The thinner strings have theirs already.
    void AddReach(int string) {
        String& own = m_strings[Index(string)];
        for (std::size_t from = 1; from < fretCount; ++from) {
            NoteSet notes = own.notes[0];
            for (std::size_t further = 0; further < widestReach; ++further) {
                if (from + further < fretCount)
                    notes = notes | own.notes[from + further];
                own.reach[from][further] = notes;
                if (string > 1)
                    own.reach[from][further] =
                        notes | m_strings[Index(string - 1)].reach[from][further];
            }
        }
    }

    void Take(int string, Hand hand) {
        if (string == 0) {
            if (IsWhole(hand))
                m_found.push_back(hand.frets);
            return;
        }
        if (!CanBecomeWhole(string, hand))
            return;
        Take(string - 1, Muted(hand));
        if (hand.innerMutes + hand.mutes > m_rules.innerMutes)
            return;
        const String& own = m_strings[Index(string)];
        for (FretSet frets = own.frets & Within(hand); frets != 0; frets &= frets - 1) {
            const int fret = std::countr_zero(frets);
            Hand further = fret == 0 ? Open(hand) : Stopped(hand, fret);
            if (further.fingers > fingerCount)
                continue;
            further.frets.Set(string, fret);
            further.missing = further.missing - own.notes[static_cast<std::size_t>(fret)];
            Take(string - 1, further);
        }
    }

    static Hand Muted(Hand hand) {
        if (hand.sounding > 0)
            ++hand.mutes;
        return hand;
    }

    static Hand Sounding(Hand hand) {
        ++hand.sounding;
        hand.innerMutes = static_cast<std::int8_t>(hand.innerMutes + hand.mutes);
        hand.mutes = 0;
        return hand;
    }

    static Hand Open(Hand hand) {
        hand.reaching = 0;
        return Sounding(hand);
    }

    static Hand Stopped(Hand hand, int fret) {
        const auto place = static_cast<std::int8_t>(fret);
        hand.lowest = hand.lowest == 0 ? place : std::min(hand.lowest, place);
        hand.highest = std::max(hand.highest, place);
        const FretSet finger = openFret << fret;
        if ((hand.reaching & finger) == 0)
            ++hand.fingers;
        // None lies over a lower fret.
        hand.reaching = static_cast<std::uint16_t>((hand.reaching & FretsTo(fret)) | finger);
        return Sounding(hand);
    }

    // The lowest and the highest fret that the span leaves, once a string is stopped.
    int From(const Hand& hand) const { return std::max(1, hand.highest - m_rules.span); }
    int To(const Hand& hand) const { return hand.lowest + m_rules.span; }

    FretSet Within(const Hand& hand) const {
        if (hand.lowest == 0)
            return FretsTo(highestVoicingFret);
        const FretSet stopped = FretsTo(To(hand)) & ~FretsTo(From(hand) - 1);
        return stopped | openFret;
    }

    bool IsWhole(const Hand& hand) const {
        return hand.sounding >= m_rules.leastStrings && !hand.missing.Contains(0) &&
               HasAtMost(hand.missing, m_rules.omitted);
    }

    // Whether the string and the thinner ones may bring what is missing.
    bool CanBecomeWhole(int string, const Hand& hand) const {
        if (hand.sounding + string < m_rules.leastStrings ||
            !HasAtMost(hand.missing, string + m_rules.omitted))
            return false;
        if (hand.lowest == 0)
            return true;
        const int from = From(hand);
        const auto& reach = m_strings[Index(string)].reach[static_cast<std::size_t>(from)];
        return HasAtMost(hand.missing - reach[static_cast<std::size_t>(To(hand) - from)],
                         m_rules.omitted);
    }

    const VoicingRules m_rules;
    const NoteSet m_required;
    std::array<String, stringCount> m_strings;
    std::vector<PackedFrets> m_found;
};

} // namespace

Shape PackedFrets::ToShape() const {
    Shape shape;
    for (int string = 1; string <= stringCount; ++string)
        shape.frets[static_cast<std::size_t>(string - 1)] = static_cast<std::int8_t>(Of(string));
    return shape;
}

std::vector<PackedFrets> PlayableVoicings(NoteSet intervals, PitchClass root, const Tuning& tuning,
                                          const VoicingRules& rules) {
    if (!intervals.Contains(0))
        return {};
    return Search(intervals, root, tuning, rules).Run();
}
