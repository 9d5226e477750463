// Any bytes as a sound file: what is handed to the synthesiser, it survives.
#include "fuzz.h"
#include "sound/fluidsynth.h"
#include "sound/midiapi.h"

#include <array>
#include <memory>

namespace {

// A synthesiser without a device and without a sound font, so that nothing is to be heard.
class Silent {
public:
    explicit Silent(const FluidSynthLibrary& library)
        : m_library(library), m_settings(library.new_fluid_settings()) {
        m_library.fluid_settings_setstr(m_settings, "player.timing-source", "sample");
        m_library.fluid_settings_setint(m_settings, "player.reset-synth", 0);
        m_synth = m_library.new_fluid_synth(m_settings);
    }
    Silent(const Silent&) = delete;
    Silent& operator=(const Silent&) = delete;
    ~Silent() {
        m_library.delete_fluid_synth(m_synth);
        m_library.delete_fluid_settings(m_settings);
    }

    // Reads the file and plays its first quarter of a second.
    void Play(const QByteArray& midi) {
        std::array<float, 11025> left{};
        std::array<float, 11025> right{};
        fluid_player_t* player = m_library.new_fluid_player(m_synth);
        m_library.fluid_player_add_mem(player, midi.constData(),
                                       static_cast<std::size_t>(midi.size()));
        m_library.fluid_player_play(player);
        m_library.fluid_synth_write_float(m_synth, static_cast<int>(left.size()), left.data(), 0, 1,
                                          right.data(), 0, 1);
        m_library.fluid_player_stop(player);
        m_library.delete_fluid_player(player);
    }

private:
    const FluidSynthLibrary& m_library;
    fluid_settings_t* m_settings;
    fluid_synth_t* m_synth;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, std::size_t size) {
    static const Folder folder;
    static const FluidSynthLibrary* const library = LoadFluidSynth();
    static const auto synth = library ? std::make_unique<Silent>(*library) : nullptr;
    const QByteArray bytes = Input(data, size).Rest();
    const QByteArray midi = ReadMidiFile(folder.Write(QStringLiteral("note.mid"), bytes));
    Require(midi.isEmpty() || midi == bytes, "a file is taken whole or not at all");
    if (synth && !midi.isEmpty())
        synth->Play(midi);
    return 0;
}
