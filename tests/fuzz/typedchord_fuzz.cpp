// Any text typed as a chord, over any records of a catalogue: what is offered is there, and
// there are no more rows than asked for. An input is a line that is typed, and the records.
#include "core/chordtypes.h"
#include "core/codepage.h"
#include "fuzz.h"
#include "music/typedchord.h"

#include <algorithm>

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, std::size_t size) {
    static const Folder folder;
    Input input(data, size);
    const QString typed = FromAnsi(input.Line());
    TextTable types = BuiltInChordTypes();
    types.AppendDataFile(folder.Write(QStringLiteral("records.dat"), input.Rest()));
    const auto all = MatchTypedChord(types, typed, static_cast<std::size_t>(types.Count()) * 2);
    for (const TypedChord& chord : all) {
        Require(chord.entry >= 1 && chord.entry <= types.Count(), "a type is of the catalogue");
        Require(!chord.root || (*chord.root >= 0 && *chord.root < notesPerOctave), "a root is one");
        Require(!chord.bass || chord.root, "a bass has a root");
        Require(std::count(all.begin(), all.end(), chord) == 1, "no row comes twice");
    }
    const auto few = MatchTypedChord(types, typed, 8);
    Require(few.size() == std::min<std::size_t>(all.size(), 8), "no more rows than asked for");
    Require(std::equal(few.begin(), few.end(), all.begin()), "the likeliest come first");
    return 0;
}
