// Any bytes as a sound file: what is read of them is music in its order, which a synthesiser
// without a device survives.
#include "fuzz.h"
#include "sound/midifile.h"
#include "sound/soundfont.h"
#include "sound/synthesiser.h"

#include <array>
#include <limits>
#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, std::size_t size) {
    static const auto synthesiser = Synthesiser::Make(FindSoundFont(QString()));
    const Score score = ReadScore(Input(data, size).Rest());
    double seconds = 0;
    for (const MidiEvent& event : score) {
        Require(event.seconds >= seconds, "events come in the order of their time");
        Require(event.status >= 0x80 && event.status < 0xF0, "events are messages to a channel");
        Require(event.first < 0x80 && event.second < 0x80, "values have seven bits");
        seconds = event.seconds;
    }
    if (!synthesiser || score.empty())
        return 0;
    std::array<float, 2048> left{};
    std::array<float, 2048> right{};
    constexpr double forEver = std::numeric_limits<double>::infinity();
    synthesiser->Begin({1, std::make_shared<const Score>(score), 0, forEver});
    synthesiser->Render(left.data(), right.data(), static_cast<int>(left.size()));
    synthesiser->End({1, 0});
    synthesiser->Render(left.data(), right.data(), 64);
    Require(synthesiser->Resting() >= 0, "a file that was ended plays no more");
    return 0;
}
