// Every sound file of the program, rendered without a device, and its pitch measured.
#include "program/soundfile.h"
#include "sound/soundfont.h"
#include "tests/sound/recording.h"

#include <QDir>
#include <QTest>

#include <cmath>
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
    if (FindSoundFont(QString()).isEmpty())
        QSKIP("There is no sound font.");
    Recording recording(QStringLiteral(SOUND_FOLDER "/../"));
    recording.Midi().PlayMidiFile(QStringLiteral(SOUND_FOLDER "/") + file);
    recording.WaitUntil(1.2);
    const Samples& samples = recording.Heard();
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

QTEST_GUILESS_MAIN(SoundFilesTest)
#include "soundfiles_test.moc"
