#include "program/soundfile.h"

namespace {

constexpr int ticksPerQuarter = 480;            // At the file format's default pace, half a second.
constexpr int noteTicks = 10 * ticksPerQuarter; // Longer than any string of a strum rings.
constexpr int velocity = 100;

void AppendNumber(QByteArray& bytes, quint32 number, int size) {
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
        bytes += static_cast<char>(number >> shift & 0xFF);
}

// A time in the format's own form: seven bits a byte, the high bit set on all but the last.
void AppendTicks(QByteArray& bytes, int ticks) {
    if (ticks >= 0x80)
        bytes += static_cast<char>(ticks >> 7 | 0x80);
    bytes += static_cast<char>(ticks & 0x7F);
}

void AppendEvent(QByteArray& track, int ticks, std::initializer_list<int> event) {
    AppendTicks(track, ticks);
    for (const int byte : event)
        track += static_cast<char>(byte);
}

} // namespace

QByteArray OneNoteFile(int instrument, int note) {
    static_assert(noteTicks < 1 << 14);
    QByteArray track;
    AppendEvent(track, 0, {0xC0, instrument});
    AppendEvent(track, 0, {0x90, note, velocity});
    AppendEvent(track, noteTicks, {0x80, note, 0});
    AppendEvent(track, 0, {0xFF, 0x2F, 0}); // End of track.
    QByteArray file("MThd");
    AppendNumber(file, 6, 4); // The header's length.
    AppendNumber(file, 0, 2); // One track.
    AppendNumber(file, 1, 2);
    AppendNumber(file, ticksPerQuarter, 2);
    file += "MTrk";
    AppendNumber(file, static_cast<quint32>(track.size()), 4);
    file += track;
    return file;
}
