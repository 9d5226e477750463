// MIDI files for tests, made of their parts.
#pragma once

#include <QString>

#include <initializer_list>

inline QByteArray Number(quint32 number, int size) {
    QByteArray bytes;
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
        bytes += static_cast<char>(number >> shift & 0xFF);
    return bytes;
}

inline QByteArray Raw(std::initializer_list<int> values) {
    QByteArray bytes;
    for (const int value : values)
        bytes += static_cast<char>(value);
    return bytes;
}

inline QByteArray Chunk(const char* kind, const QByteArray& bytes) {
    return QByteArray(kind) + Number(static_cast<quint32>(bytes.size()), 4) + bytes;
}

// Two bytes for up to 16,383 ticks.
inline QByteArray Ticks(int ticks) {
    return Raw({ticks >> 7 | 0x80, ticks & 0x7F});
}

inline const QByteArray endOfTrack = Raw({0, 0xFF, 0x2F, 0});

// division: ticks a quarter; half a second unless a tempo says otherwise.
inline QByteArray Head(int format, int tracks, quint32 division = 500) {
    return Chunk("MThd", Number(static_cast<quint32>(format), 2) +
                             Number(static_cast<quint32>(tracks), 2) + Number(division, 2));
}

inline QByteArray OneTrack(const QByteArray& events) {
    return Head(0, 1) + Chunk("MTrk", events + endOfTrack);
}
