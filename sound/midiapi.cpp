#include "sound/midiapi.h"

#include "sound/device.h"
#include "sound/soundthread.h"

#include <limits>
#include <utility>

MidiAPI::MidiAPI(QString appPath) : MidiAPI(std::move(appPath), std::make_unique<Device>()) {}

MidiAPI::MidiAPI(QString appPath, std::unique_ptr<Output> output, double rest)
    : m_appPath(std::move(appPath)), m_output(std::move(output)), m_rest(rest) {
    m_strumming.setSingleShot(true);
    QObject::connect(&m_strumming, &QTimer::timeout, &m_strumming, [this] {
        EndStrumAfter(m_strumming.interval() / 1000.0); // From when it began, should that be late.
    });
}

MidiAPI::~MidiAPI() = default;

void MidiAPI::PlayMidiFile(const QString& fileName) {
    CloseMidiFile();
    EndStrum();
    m_currentMidiFile = fileName;
    auto score = std::make_shared<const Score>(ReadMidiFile(fileName));
    if (score->empty())
        return;
    m_fileId = ++m_lastId;
    Begin({{m_fileId, std::move(score), 0, std::numeric_limits<double>::infinity()}});
    m_midiOpen = true;
}

void MidiAPI::CloseMidiFile() {
    CloseWhenSounded(0);
}

void MidiAPI::CloseWhenSounded(double seconds) {
    if (std::exchange(m_midiOpen, false))
        End(m_fileId, seconds);
}

void MidiAPI::Strum(const QStringList& files) {
    constexpr double step = 0.03;
    constexpr double together = 4;
    CloseMidiFile();
    EndStrum();
    const double length = step * static_cast<double>(files.size() - 1) + together;
    m_strumId = ++m_lastId;
    std::vector<Beginning> strings;
    for (qsizetype i = 0; i < files.size(); ++i) {
        const double delay = step * static_cast<double>(i);
        auto score = std::make_shared<const Score>(ReadMidiFile(files[i]));
        if (!score->empty())
            strings.push_back({m_strumId, std::move(score), delay, length - delay});
    }
    if (!strings.empty())
        Begin(std::move(strings));
    if (!files.isEmpty())
        m_strumming.start(static_cast<int>(length * 1000));
}

void MidiAPI::EndStrum() {
    EndStrumAfter(0);
}

void MidiAPI::EndStrumAfter(double seconds) {
    m_strumming.stop();
    const int strum = std::exchange(m_strumId, 0);
    if (strum == 0)
        return;
    End(strum, seconds);
    StrumEnded();
}

// A server that has not answered for so long hardly will, so later notes do not wait for it.
bool MidiAPI::Waking() const {
    constexpr qint64 milliseconds = 200;
    return Waiting() && !HoldsDevice() && m_asked.elapsed() < milliseconds;
}

bool MidiAPI::Waiting() const {
    return m_thread && m_thread->Waiting();
}

bool MidiAPI::HoldsDevice() const {
    return m_thread && m_thread->HoldsDevice();
}

void MidiAPI::Begin(std::vector<Beginning> files) {
    if (!m_thread)
        m_thread = std::make_unique<SoundThread>(m_appPath, std::move(m_output), m_rest);
    if (!m_neverBegan)
        m_asked.start();
    m_thread->Begin(std::move(files));
}

void MidiAPI::End(int id, double atLeast) {
    m_neverBegan = Waiting();
    if (m_thread)
        m_thread->End({id, atLeast});
}
