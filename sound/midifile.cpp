#include "sound/midifile.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <optional>

namespace {

// Thrown by the reader at bytes that no MIDI file has, and caught where the reading began.
struct Malformed {};

// A message, or a tempo, with the tick at which it is due.
struct TimedEvent {
    qint64 tick;
    quint8 status; // tempoChange for a tempo.
    quint32 value; // The message's two values, or microseconds a quarter.
};

constexpr quint8 tempoChange = 0xFF;

class Bytes {
public:
    explicit Bytes(QByteArrayView bytes) : m_bytes(bytes) {}

    bool AtEnd() const { return m_bytes.isEmpty(); }
    qsizetype Left() const { return m_bytes.size(); }
    quint8 Peek() const { return AtEnd() ? throw Malformed() : static_cast<quint8>(m_bytes[0]); }

    QByteArrayView Take(qsizetype count) {
        if (count > m_bytes.size())
            throw Malformed();
        const QByteArrayView taken = m_bytes.first(count);
        m_bytes = m_bytes.sliced(count);
        return taken;
    }

    // The most significant byte first.
    quint32 Number(int size) {
        quint32 number = 0;
        for (const char byte : Take(size))
            number = number << 8 | static_cast<quint8>(byte);
        return number;
    }

    // Seven bits a byte, at most four bytes; the high bit is set on all but the last.
    quint32 Quantity() {
        quint32 number = 0;
        for (int size = 0; size < 4; ++size) {
            const quint32 byte = Number(1);
            number = number << 7 | (byte & 0x7F);
            if (byte < 0x80)
                return number;
        }
        throw Malformed();
    }

    quint8 Value() {
        const quint32 value = Number(1);
        return value < 0x80 ? static_cast<quint8>(value) : throw Malformed();
    }

private:
    QByteArrayView m_bytes;
};

bool HasOneValue(quint8 status) {
    return (status & 0xF0) == 0xC0 || (status & 0xF0) == 0xD0;
}

// What is behind the end of the track does not count.
void ReadTrack(Bytes track, std::vector<TimedEvent>& events) {
    constexpr quint8 meta = 0xFF;
    constexpr quint8 endOfTrack = 0x2F;
    constexpr quint8 setTempo = 0x51;
    quint8 running = 0;
    qint64 tick = 0;
    for (;;) {
        tick += track.Quantity();
        const quint8 status = track.Peek() >= 0x80 ? static_cast<quint8>(track.Number(1)) : running;
        if (status == meta) {
            const quint32 kind = track.Number(1);
            Bytes data(track.Take(track.Quantity()));
            if (kind == endOfTrack)
                return;
            if (kind == setTempo && data.Left() >= 3)
                events.push_back({tick, tempoChange, data.Number(3)});
        } else if (status == 0xF0 || status == 0xF7) {
            track.Take(track.Quantity()); // Meant for one maker's instruments.
        } else if (status >= 0x80 && status < 0xF0) {
            running = status;
            const quint32 first = track.Value();
            events.push_back(
                {tick, status, first << 8 | (HasOneValue(status) ? 0U : track.Value())});
        } else {
            throw Malformed();
        }
    }
}

// How long a tick lasts: a part of a quarter, or of a second whatever the tempo.
class Pace {
public:
    explicit Pace(quint32 division) {
        const quint32 ticks = division & 0xFF;
        const quint32 framesASecond = 256 - (division >> 8);
        m_ofAQuarter = division < 0x8000;
        m_ticks = m_ofAQuarter ? division : ticks * framesASecond;
        if (m_ticks == 0)
            throw Malformed();
        SetTempo(m_ofAQuarter ? 500'000 : 1'000'000);
    }

    void Change(quint32 microseconds) {
        if (microseconds == 0)
            throw Malformed();
        if (m_ofAQuarter)
            SetTempo(microseconds);
    }

    double TickSeconds() const { return m_tickSeconds; }

private:
    void SetTempo(quint32 microseconds) { m_tickSeconds = microseconds / (1e6 * m_ticks); }

    bool m_ofAQuarter;
    quint32 m_ticks;
    double m_tickSeconds = 0;
};

Score InSeconds(const std::vector<TimedEvent>& events, Pace pace) {
    Score score;
    score.reserve(events.size());
    double seconds = 0;
    qint64 tick = 0;
    for (const TimedEvent& event : events) {
        seconds += static_cast<double>(event.tick - tick) * pace.TickSeconds();
        tick = event.tick;
        if (event.status == tempoChange)
            pace.Change(event.value);
        else
            score.push_back({seconds, event.status, static_cast<quint8>(event.value >> 8),
                             static_cast<quint8>(event.value & 0xFF)});
    }
    return score;
}

// Sixteen channels with 128 notes and as many controllers hold no more at one moment; the
// synthesiser would be late with all that sounds beside.
bool CanBeMusic(const Score& score) {
    constexpr std::size_t most = std::size_t{16} * (128 + 128);
    constexpr double moment = 0.01;
    for (std::size_t i = most; i < score.size(); ++i)
        if (score[i].seconds - score[i - most].seconds < moment)
            return false;
    return true;
}

Score ReadChunks(Bytes file) {
    if (file.Take(4) != "MThd")
        throw Malformed();
    Bytes head(file.Take(file.Number(4)));
    const quint32 format = head.Number(2);
    quint32 tracks = head.Number(2);
    const Pace pace(head.Number(2));
    if (format > 1 || tracks == 0)
        throw Malformed();
    std::vector<TimedEvent> events;
    while (tracks > 0) {
        const bool isTrack = file.Take(4) == "MTrk";
        const Bytes chunk(file.Take(file.Number(4)));
        if (!isTrack)
            continue; // A kind of chunk that came later.
        ReadTrack(chunk, events);
        --tracks;
    }
    std::stable_sort(events.begin(), events.end(),
                     [](const TimedEvent& a, const TimedEvent& b) { return a.tick < b.tick; });
    Score score = InSeconds(events, pace);
    return CanBeMusic(score) ? score : Score();
}

} // namespace

Score ReadScore(const QByteArray& midi) {
    try {
        return ReadChunks(Bytes(midi));
    } catch (const Malformed&) {
        return {};
    }
}

Score ReadMidiFile(const QString& fileName) {
    constexpr qint64 largest = 1 << 20;
    QFile file(fileName);
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly) || file.size() > largest)
        return {};
    return ReadScore(file.read(largest));
}
