#include "core/notes.h"

#include "core/runtimeerror.h"

#include <algorithm>

namespace {

template <typename Table>
auto At(const Table& table, int index, const QString& russian, const QString& english) {
    CheckIndex(index, 0, static_cast<qint64>(table.size()) - 1, {russian, english});
    return table[static_cast<std::size_t>(index)];
}

} // namespace

QStringView NoteName(int semitone) {
    return At(NoteNames, semitone, QStringLiteral("таблица нот"), QStringLiteral("the note table"));
}

int WhiteKeyNote(int whiteKey) {
    return At(WhiteKeyNotes, whiteKey, QStringLiteral("белые клавиши"),
              QStringLiteral("the white keys"));
}

int KeyZoneNote(int zone) {
    return At(KeyZoneNotes, zone, QStringLiteral("зоны чёрных клавиш"),
              QStringLiteral("the zones of the black keys"));
}

std::optional<PitchClass> SemitoneOf(QStringView name) {
    const auto end = NoteNames.begin() + notesPerOctave;
    const auto found = std::find(NoteNames.begin(), end, name);
    if (found == end)
        return std::nullopt;
    return static_cast<PitchClass>(found - NoteNames.begin());
}
