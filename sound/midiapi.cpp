#include "sound/midiapi.h"

#include "sound/fluidsynth.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QObject>
#include <QTimer>
#include <QtEndian>

#include <algorithm>
#include <chrono>
#include <deque>
#include <thread>
#include <utility>

using namespace std::chrono_literals;

namespace {

// Whether every chunk (four bytes of its kind, four of its length, and so many more) ends in the
// file. The library follows a length that lies backwards, and never comes back.
bool ChunksAreWhole(const QByteArray& midi) {
    constexpr qsizetype head = 8;
    qsizetype place = 0;
    while (midi.size() - place >= head) {
        const qsizetype length = qFromBigEndian<quint32>(midi.constData() + place + head / 2);
        place += head;
        if (length > midi.size() - place)
            return false;
        place += length;
    }
    return true;
}

} // namespace

QByteArray ReadMidiFile(const QString& fileName) {
    constexpr qint64 largest = 1 << 20;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly) || file.size() > largest)
        return {};
    const QByteArray bytes = file.read(largest);
    return bytes.startsWith("MThd") && ChunksAreWhole(bytes) ? bytes : QByteArray();
}

QString FindSoundFont(const QString& appPath) {
    const QStringList own = QDir(appPath).entryList(
        {QStringLiteral("*.sf2"), QStringLiteral("*.sf3")}, QDir::Files, QDir::Name);
    if (!own.isEmpty())
        return appPath + own.first();
    const QString folder = QStringLiteral("/usr/share/sounds/");
    for (const auto& name :
         {QStringLiteral("sf2/TimGM6mb.sf2"), QStringLiteral("sf2/default-GM.sf2"),
          QStringLiteral("sf3/default-GM.sf3"), QStringLiteral("sf2/FluidR3_GM.sf2")})
        if (QFileInfo(folder + name).isFile())
            return folder + name;
    return {};
}

// The synthesiser with its device. Made whole or not at all.
class MidiAPI::Synthesiser {
public:
    static std::unique_ptr<Synthesiser> Make(const QString& soundFont) {
        const FluidSynthLibrary* library = LoadFluidSynth();
        if (library == nullptr || soundFont.isEmpty())
            return nullptr;
        std::unique_ptr<Synthesiser> made(new Synthesiser(*library));
        return made->Start(soundFont) ? std::move(made) : nullptr;
    }

    Synthesiser(const Synthesiser&) = delete;
    Synthesiser& operator=(const Synthesiser&) = delete;

    ~Synthesiser() {
        Close();
        if (!m_ended.empty())
            std::this_thread::sleep_for(lastLook);
        DeletePlayers(m_ended.size());
        LetGoOfDevice();
        if (m_synth != nullptr)
            m_fluid.delete_fluid_synth(m_synth);
        m_fluid.delete_fluid_settings(m_settings);
    }

    bool Open(const QByteArray& midi) {
        DeleteEndedPlayers();
        if (m_driver == nullptr && !OpenDevice())
            return false;
        m_player = m_fluid.new_fluid_player(m_synth);
        if (m_player == nullptr)
            return false;
        if (m_fluid.fluid_player_add_mem(m_player, midi.constData(),
                                         static_cast<size_t>(midi.size())) == FLUID_OK &&
            m_fluid.fluid_player_play(m_player) == FLUID_OK)
            return true;
        Close();
        return false;
    }

    void Close() {
        if (m_player == nullptr)
            return;
        m_fluid.fluid_player_stop(m_player);
        m_fluid.fluid_synth_all_notes_off(m_synth, -1); // They die away; nothing is cut.
        m_ended.push_back({std::exchange(m_player, nullptr), Time::now() + lastLook});
        QTimer::singleShot(lastLook + 1ms, &m_context, [this] { DeleteEndedPlayers(); });
    }

    // Gives the device back; the next note opens it again.
    void LetGoOfDevice() {
        if (m_driver != nullptr)
            m_fluid.delete_fluid_audio_driver(m_driver);
        m_driver = nullptr;
    }

    bool HoldsDevice() const { return m_driver != nullptr; }

private:
    using Time = std::chrono::steady_clock;
    struct EndedPlayer {
        fluid_player_t* player;
        Time::time_point mayGo;
    };

    // A player's thread reads its notes every four milliseconds, and once more at most after it
    // has been stopped; the library does not wait for it when it deletes them.
    static constexpr std::chrono::milliseconds lastLook{10};

    explicit Synthesiser(const FluidSynthLibrary& library)
        : m_fluid(library), m_settings(library.new_fluid_settings()) {}

    void DeleteEndedPlayers() {
        const auto stays = std::find_if(
            m_ended.begin(), m_ended.end(),
            [now = Time::now()](const EndedPlayer& ended) { return ended.mayGo > now; });
        DeletePlayers(static_cast<std::size_t>(stays - m_ended.begin()));
    }

    void DeletePlayers(std::size_t count) {
        for (; count > 0; --count) {
            m_fluid.delete_fluid_player(m_ended.front().player);
            m_ended.pop_front();
        }
    }

    void Set(const char* name, int value) {
        m_fluid.fluid_settings_setint(m_settings, name, value);
    }
    void Set(const char* name, const char* value) {
        m_fluid.fluid_settings_setstr(m_settings, name, value);
    }

    bool Start(const QString& soundFont) {
        Set("player.reset-synth", 0); // A reset would cut off the note before.
        Set("player.timing-source", "system");
        Set("audio.period-size", 256);
        Set("audio.periods", 4);
        Set("audio.realtime-prio", 0);
        Set("synth.chorus.active", 0);
        Set("synth.midi-channels", 16);
        m_fluid.fluid_settings_setnum(m_settings, "synth.gain", 0.7);
        m_synth = m_fluid.new_fluid_synth(m_settings);
        if (m_synth == nullptr)
            return false;
        const QByteArray path = QFile::encodeName(soundFont);
        return m_fluid.fluid_synth_sfload(m_synth, path.constData(), 1) != FLUID_FAILED &&
               OpenDevice();
    }

    bool OpenDevice() {
#ifdef Q_OS_LINUX
        // The desktop's sound server first; never JACK, which would start by itself.
        for (const char* driver : {"pulseaudio", "pipewire", "alsa"}) {
            Set("audio.driver", driver);
            m_driver = m_fluid.new_fluid_audio_driver(m_settings, m_synth);
            if (m_driver != nullptr)
                return true;
        }
        return false;
#else
        m_driver = m_fluid.new_fluid_audio_driver(m_settings, m_synth);
        return m_driver != nullptr;
#endif
    }

    const FluidSynthLibrary& m_fluid;
    fluid_settings_t* m_settings;
    fluid_synth_t* m_synth = nullptr;
    fluid_audio_driver_t* m_driver = nullptr;
    fluid_player_t* m_player = nullptr;
    std::deque<EndedPlayer> m_ended; // The oldest first.
    QObject m_context;               // While it is there, so is this object.
};

MidiAPI::MidiAPI(QString appPath, std::chrono::milliseconds ringing)
    : m_appPath(std::move(appPath)) {
    m_ringing.setSingleShot(true);
    m_ringing.setInterval(ringing);
    QObject::connect(&m_ringing, &QTimer::timeout, &m_ringing, [this] {
        if (m_synthesiser)
            m_synthesiser->LetGoOfDevice();
    });
}

MidiAPI::~MidiAPI() = default;

void MidiAPI::PlayMidiFile(const QString& fileName) {
    CloseMidiFile();
    m_ringing.stop();
    m_currentMidiFile = fileName;
    const QByteArray midi = ReadMidiFile(fileName);
    if (!midi.isEmpty() && Wake())
        m_midiOpen = m_synthesiser->Open(midi);
}

void MidiAPI::CloseMidiFile() {
    if (m_midiOpen)
        m_synthesiser->Close();
    if (HoldsDevice())
        m_ringing.start();
    m_midiOpen = false;
}

bool MidiAPI::HoldsDevice() const {
    return m_synthesiser && m_synthesiser->HoldsDevice();
}

bool MidiAPI::Wake() {
    if (!m_tried)
        m_synthesiser = Synthesiser::Make(FindSoundFont(m_appPath));
    m_tried = true;
    return m_synthesiser != nullptr;
}
