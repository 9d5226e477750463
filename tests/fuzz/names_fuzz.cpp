// Any six frets on any strings, over any records of a catalogue: names are texts without repeats,
// of what sounds alone. An input is twelve bytes, a fret and an open pitch for each string, a line
// end, and the records.
#include "core/chordtypes.h"
#include "fuzz.h"
#include "music/names.h"

#include <algorithm>

namespace {

void CheckNames(const TextTable& types, const std::vector<int>& pitches,
                const std::vector<PlayersName>& names) {
    NoteSet notes;
    for (const int pitch : pitches)
        notes.Add(pitch);
    Require(!pitches.empty() || names.empty(), "silence has no name");
    Require(notes.Count() == 0 || notes.Count() > 2 || !names.empty(), "two notes have a name");
    for (const PlayersName& name : names) {
        Require(std::count(names.begin(), names.end(), name) == 1, "no name comes twice");
        Require(!name.text.isEmpty(), "a name is a text");
        Require(name.word.english.isEmpty() || names.size() == 1, "an interval has one name");
        if (!name.chord)
            continue;
        const NamedType type = NamedTypeOf(types, name.chord->entry);
        const NoteSet foreign = notes - type.notes.Raised(name.chord->root);
        Require(foreign.Count() <= 1, "only the bass is foreign");
        Require(name.text.contains(type.suffix), "a name has its type's suffix");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, std::size_t size) {
    static const Folder folder;
    Input input(data, size);
    const QByteArray hand = input.Line();
    TextTable types = BuiltInChordTypes();
    types.AppendDataFile(folder.Write(QStringLiteral("records.dat"), input.Rest()));
    const PlayersNames players(types);
    Shape shape;
    Tuning tuning;
    for (int string = 0; string < stringCount; ++string) {
        const auto byte = [&](int place) {
            return place < hand.size() ? static_cast<unsigned char>(hand[place]) : 0;
        };
        shape.frets[static_cast<std::size_t>(string)] =
            static_cast<std::int8_t>(byte(2 * string) % 22 - 1);
        if (const int pitch = byte(2 * string + 1) % 128; pitch > 0)
            tuning[static_cast<std::size_t>(string)] = {pitch % notesPerOctave, pitch};
    }
    const auto pitches = SoundingPitches(shape, tuning);
    CheckNames(types, pitches, players.Of(pitches));
    const CatalogueChord chosen{static_cast<int>(size % notesPerOctave), types.Count()};
    CheckNames(types, pitches, players.Of(pitches, chosen));
    return 0;
}
