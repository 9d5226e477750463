// Any notes on strings tuned to anything: what is found sounds them and can be held; and any
// frets at all are held by fingers in order or by none.
#include "fuzz.h"
#include "music/voicings.h"

#include <algorithm>

namespace {

void CheckFingers(const Shape& shape) {
    for (int string = 1; string <= stringCount; ++string) {
        Require((shape.Finger(string) > 0) == (shape.Fret(string) > 0), "a finger on every stop");
        for (int other = string + 1; other <= stringCount; ++other)
            if (shape.Finger(string) > 0 && shape.Finger(other) > 0) {
                if (shape.Finger(string) == shape.Finger(other))
                    Require(shape.Fret(string) == shape.Fret(other), "a finger on one fret");
                if (shape.Finger(string) < shape.Finger(other))
                    Require(shape.Fret(string) <= shape.Fret(other), "fingers in order");
            }
    }
    for (const ShapeBarre& barre : shape.barres)
        for (int string = barre.thinnest; string <= barre.thickest; ++string)
            Require(!shape.Sounds(string) || shape.Fret(string) >= barre.fret,
                    "nothing sounds through a finger");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, std::size_t size) {
    const QByteArray bytes = Input(data, size).Rest().leftJustified(15, '\0');
    const auto byte = [&bytes](int place) { return static_cast<quint8>(bytes[place]); };

    Tuning tuning;
    for (int string = 1; string <= stringCount; ++string)
        if (const int midi = byte(string + 2); midi < 128)
            tuning[static_cast<std::size_t>(string - 1)] = {midi % notesPerOctave, midi};
    const NoteSet notes = NoteSet::OfBits(static_cast<unsigned>(byte(0) | byte(1) << 8));
    const PitchClass root = byte(2) % notesPerOctave;
    const Voicings found = FindVoicings(notes, root, tuning);
    std::vector<std::uint32_t> seen;
    for (const Voicing& voicing : found.shapes) {
        seen.push_back(voicing.frets.Bits());
        const Shape shape = voicing.ToShape();
        CheckFingers(shape);
        NoteSet sounding;
        for (int string = 1; string <= stringCount; ++string)
            if (shape.Sounds(string))
                sounding.Add(tuning[static_cast<std::size_t>(string - 1)]->note +
                             shape.Fret(string));
        Require(sounding.IsSubsetOf(notes) && sounding.Contains(root), "the chord's own notes");
    }
    std::sort(seen.begin(), seen.end());
    Require(std::adjacent_find(seen.begin(), seen.end()) == seen.end(), "each shape once");

    Shape any;
    for (std::size_t string = 0; string < stringCount; ++string)
        any.frets[string] = static_cast<std::int8_t>(byte(static_cast<int>(string) + 9) % 22 - 1);
    const Shape held = WithFingers(any);
    if (FindFingers(any))
        CheckFingers(held);
    else
        Require(held.barres.empty() && held.fingers == Shape().fingers, "no half a hand");
    return 0;
}
