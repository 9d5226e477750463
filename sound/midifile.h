// Standard MIDI files, read whole and strictly: what a file holds of music, and when.
#pragma once

#include <QString>

#include <vector>

// A message to one of sixteen channels, as the file format has it.
struct MidiEvent {
    double seconds; // From the file's beginning.
    quint8 status;  // 0x80 to 0xEF; the lower half is the channel.
    quint8 first;
    quint8 second; // 0 for the messages that have one value.
};

// In the order in which they are due.
using Score = std::vector<MidiEvent>;

// The music of a file of format 0 or 1, its tracks as one. Empty for bytes that are cut off
// or no such file, for a tempo of 0, and for more at one moment than can be music.
Score ReadScore(const QByteArray& midi);

// The same for a file of at most 1 MiB; empty also for one that is missing, larger or no
// regular file, such as a pipe, which is not waited for.
Score ReadMidiFile(const QString& fileName);
