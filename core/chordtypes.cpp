// The built-in chord types.
#include "core/chordtypes.h"

#include <array>

namespace {

// clang-format off
// Repeated notations and the folded ninths are meant as they stand.
constexpr auto builtInChordTypes = std::to_array<QStringView>({
    // Name, AltNames, Suffix, Structure
    u"maj",        u"maj",                                               u"",           u"43",
    u"min",        u"m, min, -, minor",                                  u"m",          u"34",
    u"aug",        u"aug, 5+, +5, #5, +, augm, augm5, augmented",        u"aug",        u"44",
    u"dim",        u"Уменьшенное трезвучие",                             u"dim",        u"33",
    u"sus2",       u"sus2, suspended 2",                                 u"sus2",       u"25",
    u"sus4",       u"Трезвучие с задержанием четвертой ступени",         u"sus4",       u"52",
    u"7",          u"7, 7th, dominant seventh, dominant 7",              u"7",          u"433",
    u"m7",         u"Малый минорный септаккорд",                         u"m7",         u"343",
    u"6",          u"6, Maj6, Major Sixth, 6th",                         u"6",          u"432",
    u"m6",         u"Минорный секстаккорд",                              u"m6",         u"342",
    u"maj7",       u"Большой мажорный септаккорд",                       u"maj7",       u"434",
    u"mmaj7",      u"Большой минорный септаккорд",                       u"mmaj7",      u"344",
    u"add9",       u"Мажорное трезвучие с добавленной девятой ступенью", u"add9",       u"223",
    u"madd9",      u"Минорное трезвучие с добавленной девятой ступенью", u"madd9",      u"214",
    u"9",          u"9",                                                 u"9",          u"2233",
    u"m9",         u"m9",                                                u"m9",         u"2143",
    u"maj9",       u"maj9",                                              u"maj9",       u"2234",
    u"mmaj9",      u"mmaj9",                                             u"mmaj9",      u"2144",
    u"11",         u"11",                                                u"11",         u"22123",
    u"m11",        u"m11",                                               u"m11",        u"21223",
    u"maj11",      u"maj11",                                             u"maj11",      u"22124",
    u"mmaj11",     u"mmaj11",                                            u"mmaj11",     u"21224",
    u"13",         u"13",                                                u"13",         u"22321",
    u"m13",        u"m13",                                               u"m13",        u"21421",
    u"maj13",      u"maj13",                                             u"maj13",      u"22322",
    u"mmaj13",     u"mmaj13",                                            u"mmaj13",     u"21422",
    u"6add9",      u"6add9",                                             u"6add9",      u"2232",
    u"m6add9",     u"m6add9",                                            u"m6add9",     u"2142",
    u"7add11",     u"7add11",                                            u"7add11",     u"4123",
    u"m7add11",    u"m7add11",                                           u"m7add11",    u"3223",
    u"maj7add11",  u"maj7add11",                                         u"maj7add11",  u"4124",
    u"mmaj7add11", u"mmaj7add11",                                        u"mmaj7add11", u"3224",
    u"7add13",     u"7add13",                                            u"7add13",     u"4321",
    u"m7add13",    u"m7add13",                                           u"m7add13",    u"3421",
    u"maj7add13",  u"maj7add13",                                         u"maj7add13",  u"4322",
    u"mmaj7add13", u"mmaj7add13",                                        u"mmaj7add13", u"3422",
    u"7b5",        u"7b5",                                               u"7b5",        u"424",
    u"7#5",        u"7#5",                                               u"7#5",        u"442",
    u"7b9",        u"7b9",                                               u"7b9",        u"1333",
    u"7#9",        u"7#9",                                               u"7#9",        u"3133",
    u"7#5b9",      u"7#5b9",                                             u"7#5b9",      u"1342",
    u"m7b5",       u"m7b5",                                              u"m7b5",       u"334",
    u"m7#5",       u"m7#5",                                              u"m7#5",       u"352",
    u"m7b9",       u"m7b9",                                              u"m7b9",       u"1243",
    u"9#11",       u"9#11",                                              u"9#11",       u"22213",
    u"9b13",       u"9b13",                                              u"9b13",       u"22312",
    u"6sus4",      u"6sus4",                                             u"6sus4",      u"522",
    u"7sus4",      u"7sus4",                                             u"7sus4",      u"523",
    u"maj7sus4",   u"maj7sus4",                                          u"maj7sus4",   u"524",
    u"9sus4",      u"9sus4",                                             u"9sus4",      u"232",
});
// clang-format on

static_assert(builtInChordTypes.size() == std::size_t{50} * 4);

} // namespace

TextTable BuiltInChordTypes() {
    TextTable table({QStringLiteral("типы аккордов"), QStringLiteral("the chord types")},
                    ChordType::Reserved, 4);
    table.Build(builtInChordTypes);
    return table;
}
