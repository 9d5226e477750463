// Prints every voicing of every built-in chord in a tuning, the usual one first.
#include "core/chordtypes.h"
#include "music/spelling.h"
#include "music/voicings.h"

#include <QStringList>
#include <QTextStream>

namespace {

// The tuning of six names, string 6 first.
std::optional<Tuning> ReadTuning(const QString& text) {
    const QStringList names = text.split(u',');
    if (names.size() != stringCount)
        return std::nullopt;
    Tuning tuning;
    for (int string = 1; string <= stringCount; ++string) {
        const auto note = SemitoneOf(names[stringCount - string]);
        if (!note)
            return std::nullopt;
        tuning[static_cast<std::size_t>(string - 1)] = StringTunedTo(string, *note);
    }
    return tuning;
}

NoteSet NotesOf(PitchClass root, const QString& structure) {
    NoteSet notes;
    for (const int key : ChordKeys(root, structure))
        notes.Add(key);
    return notes;
}

} // namespace

int main(int argc, char** argv) {
    const auto tuning = argc == 2 ? ReadTuning(QString::fromLocal8Bit(argv[1])) : std::nullopt;
    if (!tuning) {
        QTextStream(stderr) << "usage: voicings_list E,A,D,G,B,E\n";
        return 2;
    }
    QTextStream out(stdout);
    const TextTable types = BuiltInChordTypes();
    for (PitchClass root = 0; root < notesPerOctave; ++root)
        for (int type = 1; type <= types.Count(); ++type) {
            const NoteSet notes = NotesOf(root, types.Field(ChordType::Structure, type));
            out << NoteName(root) << u' ' << types.Field(ChordType::Name, type) << u'\t';
            const char* blank = "";
            for (const Voicing& voicing : FindVoicings(notes, root, *tuning).shapes) {
                const Shape shape = voicing.ToShape();
                out << blank << FretsText(shape) << u'/' << FingersText(shape);
                blank = " ";
            }
            out << u'\n';
        }
    return 0;
}
