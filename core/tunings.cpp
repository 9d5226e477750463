// The built-in tunings.
#include "core/tunings.h"

#include <array>

namespace {

// clang-format off
// Spellings are the program's own; flat tunings are written with sharps.
constexpr auto builtInTunings = std::to_array<QStringView>({
    // Name, Notes of the strings 1 to 6
    u"Low D/Drop D",                       u"E,B,G,D,A,D",
    u"Open D",                             u"D,A,F#,D,A,D",
    u"Open E",                             u"E,B,G#,E,B,E",
    u"Open G",                             u"D,B,G,D,G,D",
    u"Open C",                             u"E,C,G,C,G,C",
    u"Open A",                             u"E,C#,A,E,A,E",
    u"Open Cm",                            u"D#,C,G,C,G,C",
    u"Open Dm",                            u"D,A,F,D,A,D",
    u"Open Em",                            u"E,B,G,E,B,E",
    u"Open Gm",                            u"D,A#,G,D,G,D",
    u"Open Am",                            u"E,C,A,E,A,E",
    u"C6",                                 u"E,A,G,C,G,C",
    u"C#m",                                u"E,C#,G#,C#,G#,C#",
    u"Cadd9",                              u"D,C,G,E,G,C",
    u"Cmaj Pentatonic",                    u"G,E,D,C,A,G",
    u"Cyail C",                            u"E,C,G,E,G,C",
    u"DADDAD [Double DAD]",                u"D,A,D,D,A,D",
    u"DADEAD",                             u"D,A,E,D,A,D",
    u"Dsuspended [DAGAD]",                 u"D,A,G,D,A,D",
    u"D7 Tuning",                          u"D,C,F#,D,A,D",
    u"Dmaj7",                              u"C#,A,F#,D,A,D",
    u"Eb Tuning [Strings half step down]", u"D#,A#,F#,C#,G#,D#",
    u"Fmin7(Fm7)",                         u"D#,G#,D#,C,G#,F",
    u"G6 Tuning",                          u"E,B,G,D,G,D",
    u"G7",                                 u"D,B,F,D,G,D",
    u"Gabby C",                            u"E,B,G,E,G,C",
    u"Gmaj7 [Double slack Tuning]",        u"D,B,F#,D,G,D",
    u"Gmin7(Gm7)",                         u"D,D#,F,D,G,D",
    u"Gsus",                               u"D,C,G,D,G,D",
    u"A7",                                 u"E,C#,G,E,A,E",
    u"A9",                                 u"E,D#,C,G,B,E",
    u"Amaj7",                              u"E,C#,G#,E,A,E",
    u"Asus",                               u"D,A,E,D,A,D",
    u"Lute Tuning",                        u"E,B,F#,D,A,E",
    u"Perfect Fouth [Perfect 4th]",        u"F,C,G,D,A,E",
    u"Wahine Slack Tuning",                u"D,A,F,C,A#,F",
});
// clang-format on

static_assert(builtInTunings.size() == std::size_t{36} * 2);

} // namespace

TextTable BuiltInTunings() {
    TextTable table({QStringLiteral("строи"), QStringLiteral("the tunings")}, TuningDef::Notes, 2);
    table.Build(builtInTunings);
    return table;
}
