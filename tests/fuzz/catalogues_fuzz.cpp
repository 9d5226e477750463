// Any bytes as chords.dat, scales.dat and tunings.dat: every record is counted, every field
// can be read, and chords are named and found by what stands there.
#include "core/chordtypes.h"
#include "core/codepage.h"
#include "core/notes.h"
#include "core/scales.h"
#include "core/tunings.h"
#include "fuzz.h"
#include "music/spelling.h"

#include <cmath>

namespace {

// The pieces of a file between its line ends, found in the simplest way.
QList<QByteArray> Pieces(QByteArray bytes) {
    QList<QByteArray> pieces;
    if (bytes.isEmpty())
        return pieces;
    for (qsizetype end = 0; (end = bytes.indexOf("\r\n")) >= 0; bytes.remove(0, end + 2))
        pieces += bytes.left(end);
    return pieces << bytes;
}

TextTable Append(TextTable table, int lines, const QString& path, const QList<QByteArray>& pieces) {
    const int builtIn = table.Count();
    table.AppendDataFile(path);
    Require(table.Count() == builtIn + pieces.size() / lines, "whole records count");
    for (int i = 0; i < (table.Count() - builtIn) * lines; ++i) {
        const int entry = builtIn + 1 + i / lines;
        const int field = 1 + i % lines;
        const QString text = table.Field(field, entry);
        Require(text == FromAnsi(pieces[i]), "a field is its line");
        Require(ToAnsi(text) == pieces[i], "a field keeps every byte");
        Require(table.FieldEquals(field, entry, text), "a field equals itself");
        Require(table.FieldContains(field, entry, text.mid(text.size() / 2)),
                "a field contains its end");
    }
    return table;
}

void FindAndName(const TextTable& types) {
    QString majorSuffix;
    for (int entry = 1; entry <= types.Count(); ++entry) {
        const auto row = FindChordType(types, types.Field(ChordType::Name, entry));
        Require(row && *row < entry, "a type is found by its name, or one before it");
        const QString structure = types.Field(ChordType::Structure, entry);
        if (structure == u"43")
            majorSuffix = types.Field(ChordType::Suffix, entry);
        for (const int key : ChordKeys(0, structure))
            Require(key >= 0 && key < keyCount + 9, "a chord ends with the first key past the end");
    }
    Require(NameChord({0, 4, 7}, types) == u'C' + majorSuffix, "the last of a structure names");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, std::size_t size) {
    static const Folder folder;
    const QByteArray bytes = Input(data, size).Rest();
    const QList<QByteArray> pieces = Pieces(bytes);
    const QString path = folder.Write(QStringLiteral("records.dat"), bytes);
    FindAndName(Append(BuiltInChordTypes(), 4, path, pieces));
    Append(BuiltInTunings(), 2, path, pieces);
    const TextTable scales = Append(BuiltInScales(), 2, path, pieces);
    for (int entry = 1; entry <= scales.Count(); ++entry)
        for (const double step : ScaleSteps(scales.Field(ScaleDef::Degrees, entry)))
            Require(std::isfinite(step), "a degree is a number");
    return 0;
}
