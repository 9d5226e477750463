// Every sound file of the program, rendered without a device, and its pitch measured.
#include "program/soundfile.h"
#include "sound/soundfont.h"
#include "tests/sound/recording.h"

#include <QDir>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>

namespace {

double Loudness(const std::vector<float>& samples, double from, double to) {
    double sum = 0;
    const auto first = static_cast<std::size_t>(from * sampleRate);
    const auto last = static_cast<std::size_t>(to * sampleRate);
    for (std::size_t i = first; i < last; ++i)
        sum += static_cast<double>(samples[i]) * static_cast<double>(samples[i]);
    return std::sqrt(sum / static_cast<double>(last - first));
}

// The strongest of the frequencies so many steps of so many cents around one, heard for so long.
double Strongest(double frequency, int steps, double cents, double seconds,
                 const Samples& samples) {
    constexpr double turn = 2 * std::numbers::pi;
    const auto count = static_cast<std::size_t>(seconds * sampleRate);
    const auto first = static_cast<std::size_t>(0.1 * sampleRate);
    double best = 0;
    double bestPower = -1;
    for (int step = -steps; step <= steps; ++step) {
        const double tried = frequency * std::exp2(step * cents / 1200);
        std::complex<double> sum = 0;
        for (std::size_t i = 0; i < count; ++i) {
            const double time = static_cast<double>(i);
            const double window = 1 - std::cos(turn * time / static_cast<double>(count));
            sum += std::polar(window * static_cast<double>(samples[first + i]),
                              -turn * tried * time / sampleRate);
        }
        if (std::norm(sum) > bestPower) {
            bestPower = std::norm(sum);
            best = tried;
        }
    }
    return best;
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

private:
    Recording m_recording{QStringLiteral(SOUND_FOLDER "/../")};
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
    QVERIFY(content.ticks * 0.5 / content.ticksPerQuarter > 4.15); // As long as a strum rings.
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
    if (FindSoundFont(QString()).isEmpty())
        QSKIP("There is no sound font.");
    const double begin = m_recording.Now();
    m_recording.Midi().PlayMidiFile(QStringLiteral(SOUND_FOLDER "/") + file);
    m_recording.WaitUntil(begin + 1.2);
    m_recording.Midi().CloseMidiFile();
    m_recording.WaitUntil(begin + 1.5);
    const Samples& all = m_recording.Heard();
    const Samples samples(all.begin() + static_cast<std::ptrdiff_t>(begin * sampleRate), all.end());
    QVERIFY(Loudness(samples, 0.1, 0.4) > 0.001);
    const double asked = 440 * std::exp2((note - 69) / 12.0);
    // Some 300 periods tell ten cents apart, and no less than that.
    const double near = Strongest(asked, 10, 5, std::min(0.6, 300 / asked), samples);
    const double heard = Strongest(near, 8, 1, 0.6, samples);
    const double cents = 1200 * std::log2(heard / asked);
    QVERIFY2(std::abs(cents) <= 5, qPrintable(QString::number(cents)));
}

QTEST_GUILESS_MAIN(SoundFilesTest)
#include "soundfiles_test.moc"
