// The built-in scales.
#include "core/scales.h"

#include <array>

namespace {

// clang-format off
// Spellings and repeated degree lists are the program's own: each name is an entry.
constexpr auto builtInScales = std::to_array<QStringView>({
    // Name, Degrees
    u"Harmonic Minor",     u"1,3,4,6,8,9,12",
    u"Melodic Minor",      u"1,3,4,6,8,10,12",
    u"Hungarian Major",    u"1,4,5,7,8,10,11",
    u"Hungarian Minor",    u"1,3,4,7,8,9,12",
    u"Chromatic",          u"1,2,3,4,5,6,7,8,9,10,11,12",
    u"Romanian Minor",     u"1,3,4,7,8,10,11",
    u"Pentatonic Major",   u"1,3,5,8,10",
    u"Pentatonic Minor",   u"1,4,6,8,11",
    u"Pentatonic Blues",   u"1,4,6,7,8,11",
    u"Pentatonic Neutral", u"1,3,6,8,11",
    u"Ionian",             u"1,3,5,6,8,10,12",
    u"Aeolian",            u"1,3,4,6,8,9,11",
    u"Dorian",             u"1,3,4,6,8,10,11",
    u"Myxolidian",         u"1,3,5,6,8,10,11",
    u"Phrygian",           u"1,2,4,6,8,9,11",
    u"Lydian",             u"1,3,5,7,8,10,12",
    u"Locrian",            u"1,2,4,6,7,9,11",
    u"Dim Half",           u"1,2,4,5,7,8,10,11",
    u"Dim Whole",          u"1,3,4,6,7,9,10,12",
    u"Whole",              u"1,3,5,7,9,11",
    u"Augmented",          u"1,4,5,8,9,12",
    u"Gypsy 1",            u"1,2,5,6,8,9,11",
    u"Gypsy 2",            u"1,2,5,6,8,9,12",
    u"Enigmatic",          u"1,2,5,7,9,11,12",
    u"Neopolitan Major",   u"1,2,4,6,8,10,12",
    u"Neopolitan Minor",   u"1,2,4,6,8,9,12",
    u"Flamenco",           u"1,2,4,5,6,8,9,11",
    u"Mixol b9#9",         u"1,2,4,5,6,8,10,11",
    u"Mixol b6",           u"1,3,5,6,8,9,11",
    u"Phrygian #6",        u"1,2,4,6,8,10,11",
    u"Lydian augmented",   u"1,3,5,7,9,10,11",
    u"Lydian b7",          u"1,3,5,7,8,10,11",
    u"Locrian #2",         u"1,3,4,6,7,9,11",
    u"Superlocrian",       u"1,2,4,5,7,9,11",
    u"Oriental",           u"1,2,5,6,7,10,11",
    u"Double Harmonic",    u"1,2,5,6,8,9,12",
    u"Hirajoshi",          u"1,5,6,10,12",
    u"Kumoi",              u"1,5,6,10,12",
    u"Iwato",              u"1,5,6,10,12",
    u"Hindu",              u"1,3,5,6,8,9,11",
    u"Spanish 8 Tone",     u"1,2,4,5,6,7,9,11",
    u"Pelog",              u"1,2,4,8,11",
    u"Hungarian Gypsy",    u"1,3,4,7,8,9,11",
    u"Phrygian Major",     u"1,2,5,6,8,9,11",
    u"Locrian Major",      u"1,3,5,6,7,9,11",
    u"Lidian Minor",       u"1,3,5,7,8,9,11",
    u"Overtone",           u"1,3,5,7,8,10,11",
    u"Leading Whole Tone", u"1,3,5,7,9,11,12",
    u"Arabian",            u"1,3,5,6,7,9,11",
    u"Balinese",           u"1,2,4,8,9",
    u"Mohammedan",         u"1,3,4,6,8,9,12",
    u"Javanese",           u"1,2,4,6,8,10,11",
    u"Persian",            u"1,2,5,6,7,9,12",
    u"Algerian",           u"1,3,4,7,8,9,12",
    u"Byzantine",          u"1,2,5,6,8,9,12",
    u"Hawaiian",           u"1,3,4,6,8,10,12",
    u"Jewish",             u"1,3,5,6,9,10,12",
    u"Mongolian",          u"1,3,5,8,10",
    u"Ethiopian",          u"1,3,4,6,8,10,11",
    u"Spanish",            u"1,3,5,6,8,9,11",
    u"Egyptian",           u"1,3,6,8,11",
    u"Japanese",           u"1,2,6,8,9",
    u"Chinese 1",          u"1,3,6,8,10",
    u"Chinese 2",          u"1,5,7,8,12",
    u"Major",              u"1,3,5,6,8,10,12",
    u"Minor",              u"1,3,4,6,8,9,11",
});
// clang-format on

static_assert(builtInScales.size() == std::size_t{66} * 2);

} // namespace

TextTable BuiltInScales() {
    TextTable table({QStringLiteral("лады"), QStringLiteral("the scales")}, ScaleDef::Degrees, 2);
    table.Build(builtInScales);
    return table;
}
