// Every sound file of the program, rendered without a device, and its pitch measured.
#include "program/soundfile.h"
#include "sound/fluidsynth.h"
#include "sound/midiapi.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <numbers>

namespace {

constexpr double sampleRate = 44100;

// A synthesiser with the program's sound font and no device.
class Renderer {
public:
    Renderer() : m_fluid(*LoadFluidSynth()), m_settings(m_fluid.new_fluid_settings()) {
        m_fluid.fluid_settings_setint(m_settings, "synth.reverb.active", 0);
        m_fluid.fluid_settings_setint(m_settings, "synth.chorus.active", 0);
        m_synth = m_fluid.new_fluid_synth(m_settings);
        const QByteArray font = QFile::encodeName(FindSoundFont(QString()));
        m_fluid.fluid_synth_sfload(m_synth, font.constData(), 1);
    }
    ~Renderer() {
        m_fluid.delete_fluid_synth(m_synth);
        m_fluid.delete_fluid_settings(m_settings);
    }
    Renderer(const Renderer&) = delete;
    Renderer& operator=(const Renderer&) = delete;

    std::vector<float> Render(const QByteArray& midi, double seconds) {
        fluid_player_t* player = m_fluid.new_fluid_player(m_synth);
        m_fluid.fluid_player_add_mem(player, midi.constData(), static_cast<size_t>(midi.size()));
        m_fluid.fluid_player_play(player);
        std::vector<float> left(static_cast<std::size_t>(seconds * sampleRate));
        std::vector<float> right(left.size());
        m_fluid.fluid_synth_write_float(m_synth, static_cast<int>(left.size()), left.data(), 0, 1,
                                        right.data(), 0, 1);
        m_fluid.fluid_player_stop(player);
        m_fluid.delete_fluid_player(player);
        return left; // The font's left and right recordings may be a few cents apart.
    }

private:
    const FluidSynthLibrary& m_fluid;
    fluid_settings_t* m_settings;
    fluid_synth_t* m_synth = nullptr;
};

double Loudness(const std::vector<float>& samples, double from, double to) {
    double sum = 0;
    const auto first = static_cast<std::size_t>(from * sampleRate);
    const auto last = static_cast<std::size_t>(to * sampleRate);
    for (std::size_t i = first; i < last; ++i)
        sum += static_cast<double>(samples[i]) * static_cast<double>(samples[i]);
    return std::sqrt(sum / static_cast<double>(last - first));
}

// The events of a file: the instrument and the note that it plays, by the format's own rules.
struct Content {
    int instrument = -1;
    int note = -1;
    int ticks = 0;
    int ticksPerQuarter = 0;
};

Content ContentOf(const QByteArray& midi) {
    const auto byte = [&midi](qsizetype i) { return static_cast<unsigned char>(midi[i]); };
    Content content;
    content.ticksPerQuarter = byte(12) << 8 | byte(13);
    content.instrument = byte(24);
    content.note = byte(27);
    content.ticks = (byte(29) & 0x7F) << 7 | byte(30);
    return content;
}

QByteArray Bytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class SoundFilesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EveryFileIsThere();
    void Notes_data();
    void Notes();
    void Pitches_data();
    void Pitches();
    void BadFilesAreSilent_data();
    void BadFilesAreSilent();
    void WithoutAFontNothingSounds();
};

void SoundFilesTest::EveryFileIsThere() {
    const QDir folder(QStringLiteral(SOUND_FOLDER));
    QCOMPARE(
        QDir(folder.filePath(QStringLiteral("keys"))).entryList({QStringLiteral("*.mid")}).size(),
        36);
    QCOMPARE(QDir(folder.filePath(QStringLiteral("strings")))
                 .entryList({QStringLiteral("*.mid")})
                 .size(),
             128);
}

void SoundFilesTest::Notes_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("instrument");
    QTest::addColumn<int>("note");
    for (int key = 0; key < 36; ++key)
        QTest::addRow("key %d", key) << QStringLiteral("keys/%1.mid").arg(key) << 0 << 48 + key;
    for (int note = 0; note < 128; ++note)
        QTest::addRow("string %d", 84 - note)
            << QStringLiteral("strings/%1.mid").arg(84 - note) << 25 << note;
}

void SoundFilesTest::Notes() {
    QFETCH(const QString, file);
    QFETCH(const int, instrument);
    QFETCH(const int, note);
    const QByteArray midi = Bytes(QStringLiteral(SOUND_FOLDER "/") + file);
    QVERIFY(midi.startsWith("MThd"));
    const Content content = ContentOf(midi);
    QCOMPARE(content.instrument, instrument);
    QCOMPARE(content.note, note);
    // At the format's default pace a quarter is half a second.
    QVERIFY(content.ticks * 0.5 / content.ticksPerQuarter >= 2.5);
}

// Below, the fundamental is lower than what is heard (20 Hz); above the piano's highest key
// the font's guitar is a click. What those files ask for is proved by their bytes.
void SoundFilesTest::Pitches_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("note");
    for (int key = 0; key < 36; ++key)
        QTest::addRow("key %d", key) << QStringLiteral("keys/%1.mid").arg(key) << 48 + key;
    for (int note = 16; note <= 108; ++note)
        QTest::addRow("string %d", 84 - note)
            << QStringLiteral("strings/%1.mid").arg(84 - note) << note;
}

void SoundFilesTest::Pitches() {
    QFETCH(const QString, file);
    QFETCH(const int, note);
    if (LoadFluidSynth() == nullptr || FindSoundFont(QString()).isEmpty())
        QSKIP("the synthesiser or its sound font is not installed");
    Renderer renderer;
    const auto samples = renderer.Render(Bytes(QStringLiteral(SOUND_FOLDER "/") + file), 1.2);
    QVERIFY(Loudness(samples, 0.1, 0.4) > 0.001);
    const double asked = 440 * std::exp2((note - 69) / 12.0);
    // The strongest frequency within a quarter tone.
    double best = 0;
    double bestPower = -1;
    for (int cents = -50; cents <= 50; ++cents) {
        const double step = 2 * std::numbers::pi * asked * std::exp2(cents / 1200.0) / sampleRate;
        double real = 0;
        double imaginary = 0;
        const auto first = static_cast<std::size_t>(0.1 * sampleRate);
        const auto count = static_cast<std::size_t>(0.6 * sampleRate);
        for (std::size_t i = 0; i < count; ++i) {
            const double window =
                0.5 - 0.5 * std::cos(2 * std::numbers::pi * static_cast<double>(i) /
                                     static_cast<double>(count));
            const double sample = window * static_cast<double>(samples[first + i]);
            real += sample * std::cos(step * static_cast<double>(i));
            imaginary += sample * std::sin(step * static_cast<double>(i));
        }
        const double power = real * real + imaginary * imaginary;
        if (power > bestPower) {
            bestPower = power;
            best = cents;
        }
    }
    QVERIFY2(std::abs(best) <= 5, qPrintable(QString::number(best)));
}

void SoundFilesTest::BadFilesAreSilent_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no MIDI file") << QByteArray("RIFF....");
    QTest::newRow("cut off") << QByteArray("MThd\0\0\0\6\0\0\0\1\0\x60MTrk\0\0\xFF\0\0\x90", 24);
    // Such a chunk leads back to where it begins; the synthesiser would follow it for ever.
    QTest::newRow("a chunk that ends before it begins")
        << QByteArray("MThd\0\0\0\6\0\0\0\1\0\x60\0\0\0\0\xFF\xFF\xFF\xF8", 22) +
               QByteArray(30, '\0');
    QTest::newRow("too large") << QByteArray("MThd") + QByteArray(2 << 20, 'x');
}

void SoundFilesTest::BadFilesAreSilent() {
    QFETCH(const QByteArray, bytes);
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("0.mid"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    QCOMPARE(ReadMidiFile(path), QByteArray());
    QCOMPARE(ReadMidiFile(folder.path()), QByteArray());
    MidiAPI midi(folder.path() + u'/');
    midi.PlayMidiFile(path);
    QVERIFY(!midi.MidiOpen());
    QCOMPARE(midi.CurrentMidiFile(), path);
    midi.CloseMidiFile();
    QVERIFY(!midi.MidiOpen());
}

void SoundFilesTest::WithoutAFontNothingSounds() {
    QTemporaryDir folder;
    QFile font(folder.filePath(QStringLiteral("broken.sf2"))); // Preferred to the system's.
    QVERIFY(font.open(QIODevice::WriteOnly));
    font.write("no font");
    font.close();
    QCOMPARE(FindSoundFont(folder.path() + u'/'), font.fileName());
    MidiAPI midi(folder.path() + u'/');
    midi.PlayMidiFile(QStringLiteral(SOUND_FOLDER "/keys/0.mid"));
    QVERIFY(!midi.MidiOpen());
}

QTEST_GUILESS_MAIN(SoundFilesTest)
#include "soundfiles_test.moc"
