#include "music/namecosts.h"

namespace {

// Left out.
constexpr int rootLeftOut = 26; // Of chords of five notes and more.
constexpr int ninthLeftOut = 3; // Of chords of six notes and more.
constexpr int thirdOfEleventhLeftOut = 4;
constexpr int thirdOfSeventhLeftOut = 20; // What else could G D F be?
constexpr int fifthLeftOut = 4;
constexpr int fifthOfTriadLeftOut = 14;
constexpr int fifthWithoutThirdLeftOut = 8; // Suspended chords lean on their fifth.
constexpr int fifthOfSixthLeftOut = 9;      // What is left is a triad's inversion.

// In the bass.
constexpr int fifthInBass = 8;
constexpr int thirdInBass = 9;
constexpr int seventhInBass = 12; // Sounding nowhere else, it is rather a triad's foreign bass.
constexpr int otherNoteInBass = 12;
constexpr int foreignBass = 14;
constexpr int foreignBassOfOthers = 26; // Players know it under major and minor triads.

constexpr NoteSet majorTriad{0, 4, 7};
constexpr NoteSet minorTriad{0, 3, 7};
constexpr NoteSet sixth{0, 4, 7, 9};
constexpr NoteSet minorSixth{0, 3, 7, 9};
constexpr NoteSet dominantSeventh{0, 4, 7, 10};
constexpr NoteSet eleventh{0, 2, 4, 5, 7, 10};
constexpr NoteSet fourthAndNinth{0, 2, 5, 7};
constexpr NoteSet thirds{3, 4};

std::optional<int> FifthCost(NoteSet type, NoteSet sounding) {
    if (type.Count() < 3 || type == fourthAndNinth)
        return std::nullopt;
    if (type.Count() == 3)
        return fifthOfTriadLeftOut;
    if ((sounding & thirds).Empty())
        return fifthWithoutThirdLeftOut;
    return type == sixth || type == minorSixth ? fifthOfSixthLeftOut : fifthLeftOut;
}

std::optional<int> CostWithout(int interval, NoteSet type, NoteSet sounding) {
    if (interval == 0 && type.Count() >= 5)
        return rootLeftOut;
    if (interval == 2 && type.Count() >= 6)
        return ninthLeftOut;
    if (interval == 4 && type == eleventh)
        return thirdOfEleventhLeftOut;
    if (interval == 4 && type == dominantSeventh && sounding.Contains(7))
        return thirdOfSeventhLeftOut;
    return interval == 7 ? FifthCost(type, sounding) : std::nullopt;
}

} // namespace

std::optional<int> OmissionCost(NoteSet type, NoteSet sounding) {
    if (!sounding.IsSubsetOf(type))
        return std::nullopt;
    int cost = 0;
    for (int interval = 0; interval < notesPerOctave; ++interval) {
        if (!(type - sounding).Contains(interval))
            continue;
        const auto without = CostWithout(interval, type, sounding);
        if (!without)
            return std::nullopt;
        cost += *without;
    }
    return cost;
}

int BassCost(NoteSet type, int interval) {
    if (!type.Contains(interval))
        return type == majorTriad || type == minorTriad ? foreignBass : foreignBassOfOthers;
    switch (interval) {
    case 0:
        return 0;
    case 3:
    case 4:
        return thirdInBass;
    case 7:
        return fifthInBass;
    case 10:
    case 11:
        return seventhInBass;
    default:
        return otherNoteInBass;
    }
}
