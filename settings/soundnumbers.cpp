#include "settings/soundnumbers.h"

#include "core/notes.h"

#include <array>

namespace {

struct StandardString {
    QStringView note;
    int soundNumber;
};

constexpr std::array<StandardString, 6> standard{
    {{u"E", 20}, {u"B", 25}, {u"G", 29}, {u"D", 34}, {u"A", 39}, {u"E", 44}}};

// The note table is counted from 1 here.
QStringView Entry(int position) {
    return NoteName(position - 1);
}

} // namespace

quint8 NoteIndexOf(QStringView name) {
    quint8 found = 0;
    for (quint8 position = 12; position <= 24; ++position)
        if (Entry(position) == name)
            found = position; // B stands at 12 and 24: the last counts.
    return found;
}

quint8 SoundNumberFor(quint8 stringNo, QStringView name) {
    if (stringNo < 1 || stringNo > standard.size())
        return 0;
    const auto [note, soundNumber] = standard[stringNo - 1U];
    if (name == note)
        return static_cast<quint8>(soundNumber);
    const int from = NoteIndexOf(note);
    int up = 0;
    int down = 0;
    for (int step = 0; step <= notesPerOctave; ++step) {
        if (from + step <= keyCount && Entry(from + step) == name)
            up = from + step;
        if (from - step >= 1 && Entry(from - step) == name)
            down = from - step;
    }
    if (up - from > from - down)
        return static_cast<quint8>(soundNumber + (from - down));
    return static_cast<quint8>(soundNumber - (up - from));
}
