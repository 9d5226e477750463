// Names the shapes of its input, one a line, on a guitar in standard tuning: each shape, a tab,
// and its names, best first, with tabs between.
#include "core/chordtypes.h"
#include "music/names.h"

#include <QStringList>

#include <iostream>
#include <string>

int main() {
    const TextTable chordTypes = BuiltInChordTypes();
    const PlayersNames players(chordTypes);
    Tuning tuning;
    for (std::size_t string = 0; string < stringCount; ++string)
        tuning[string] = {standardPitches[string] % notesPerOctave, standardPitches[string]};
    for (std::string line; std::getline(std::cin, line);) {
        const auto shape = ReadShape(QString::fromStdString(line));
        if (!shape) {
            std::cerr << "No shape: " << line << '\n';
            return 2;
        }
        QStringList names;
        for (const PlayersName& name : players.Of(SoundingPitches(*shape, tuning)))
            names += name.text;
        std::cout << line << '\t' << names.join(u'\t').toStdString() << '\n';
    }
    return 0;
}
