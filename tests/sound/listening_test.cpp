// Every note is heard: the real player and sound font, by ear. The clock is the count of
// rendered samples, so that minutes of playing take seconds.
#include "core/mdlmain.h"
#include "core/notes.h"
#include "listener.h"
#include "recording.h"
#include "sound/playback.h"
#include "sound/soundfont.h"
#include "sound/synthesiser.h"

#include <QTest>

#include <map>
#include <set>
#include <tuple>

namespace {

const QString programFolder = QStringLiteral(SOUND_FOLDER "/../");
constexpr std::array openStrings{40, 45, 50, 55, 59, 64}; // Rows with the thin string on top.
constexpr int lowestKey = 48;

} // namespace

class ListeningTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void EveryKey();
    void EveryStringAtEveryFret();
    void BothPaces_data();
    void BothPaces();
    void ALoopThatIsStopped();
    void TwoNestedPlaybacks();
    void FastRetriggersOfOnePitch();
    void TwoHundredNotesInARow();
    void AStrum();
    void AnEndMakesNoNoteLonger_data();
    void AnEndMakesNoNoteLonger();
    void TheStringsOfAStrumAreThirtyMillisecondsApart();
    void AStrumGivesWay_data();
    void AStrumGivesWay();
    void MissingFilesAreSilent();

private:
    void Expect(const std::vector<int>& pitches, double pause);
    void ExpectWholeNotes(double pause);
    const Samples& Alone(int pitch, double pause);
    QString File(int key) const { return KeySoundFile(programFolder, key); }

    AppState m_state;
    std::set<int> m_keys;
    int m_fret = 0;
    int m_passes = 1;
    bool m_guitar = false;
    std::unique_ptr<Recording> m_recording;
    std::unique_ptr<Playback> m_playback;
    std::vector<HeardNote> m_heard;
    std::unique_ptr<Recording> m_alike;
    std::map<std::tuple<bool, int, double>, Samples> m_alone; // Whether of the guitar; which.
};

void ListeningTest::initTestCase() {
    QVERIFY2(!FindSoundFont(programFolder).isEmpty(), "The sound font is not installed.");
    m_state.AppPath = programFolder;
    m_state.ThinStringAtBottom = false;
    m_alike = std::make_unique<Recording>(programFolder);
}

void ListeningTest::init() {
    m_keys.clear();
    m_fret = 0;
    m_passes = 1;
    m_guitar = false;
    m_playback.reset();
    m_recording = std::make_unique<Recording>(programFolder);
    m_playback = std::make_unique<Playback>(
        m_state, m_recording->Midi(), *m_recording,
        PlaybackSource{[this](int key) { return m_keys.contains(key); },
                       [this](int row) {
                           const int open = 84 - openStrings[static_cast<std::size_t>(row)];
                           return RowSound{true, m_fret, QString::number(open)};
                       },
                       [] { return std::optional<int>(); }, [this] { return --m_passes > 0; }});
}

// A note that rings on behind its pause.
const Samples& ListeningTest::Alone(int pitch, double pause) {
    Samples& alone = m_alone[{m_guitar, pitch, pause}];
    if (alone.empty()) {
        Recording& alike = *m_alike;
        const auto begin = static_cast<std::ptrdiff_t>(alike.Heard().size());
        alike.Midi().PlayMidiFile(m_guitar
                                      ? StringSoundFile(programFolder, QStringLiteral("84"), pitch)
                                      : File(pitch - lowestKey));
        alike.WaitUntil(alike.Now() + pause + 0.25);
        alone.assign(alike.Heard().begin() + begin, alike.Heard().end());
        alike.Midi().CloseMidiFile();
        alike.WaitUntil(alike.Now() + 0.3);
    }
    return alone;
}

// All these notes and no other, each where the one before has had its pause.
void ListeningTest::Expect(const std::vector<int>& pitches, double pause) {
    m_recording->WaitUntil(m_recording->Now() + 0.3);
    m_heard = Listen(m_recording->Heard());
    QStringList heard;
    for (const HeardNote& note : m_heard)
        heard += QString::number(note.pitch, 'f', 2);
    const QByteArray all = heard.join(u' ').toUtf8();
    QVERIFY2(m_heard.size() == pitches.size(), all.constData());
    for (std::size_t i = 0; i < pitches.size(); ++i) {
        QVERIFY2(std::abs(m_heard[i].pitch - pitches[i]) < 0.2, all.constData());
        if (i > 0)
            QVERIFY2(std::abs(m_heard[i].begin - m_heard[i - 1].begin - pause) < 0.03,
                     qPrintable(QStringLiteral("note %1 at %2").arg(i).arg(m_heard[i].begin)));
    }
}

void ListeningTest::ExpectWholeNotes(double pause) {
    for (const HeardNote& note : m_heard) {
        if (QTest::currentTestFailed())
            return;
        const Samples& alone = Alone(static_cast<int>(std::lround(note.pitch)), pause);
        const double length = LengthOf(note, m_recording->Heard(), Listen(alone).front(), alone);
        QVERIFY2(length > pause - 0.03,
                 qPrintable(QStringLiteral("%1 ends after %2").arg(note.pitch).arg(length)));
    }
}

void ListeningTest::EveryKey() {
    std::vector<int> pitches;
    for (int key = 0; key < keyCount; ++key) {
        m_keys.insert(key);
        pitches.push_back(lowestKey + key);
    }
    m_playback->PlayKeys(true);
    Expect(pitches, 0.5);
    ExpectWholeNotes(0.5);
}

void ListeningTest::EveryStringAtEveryFret() {
    m_guitar = true;
    std::vector<int> pitches;
    for (m_fret = 0; m_fret <= 16; ++m_fret) {
        m_playback->PlayStrings(true);
        for (const int open : openStrings)
            pitches.push_back(open + m_fret);
    }
    Expect(pitches, 0.5);
    ExpectWholeNotes(0.5);
}

void ListeningTest::BothPaces_data() {
    QTest::addColumn<bool>("fast");
    QTest::addColumn<double>("pause");
    QTest::newRow("fast is half a second") << true << 0.5;
    QTest::newRow("slow is a second") << false << 1.0;
}

void ListeningTest::BothPaces() {
    QFETCH(const bool, fast);
    QFETCH(const double, pause);
    m_keys = {0, 4, 7};
    m_playback->PlayKeys(fast);
    Expect({48, 52, 55}, pause);
    ExpectWholeNotes(pause);
    // The last one is ended where its pause is over.
    const Samples& alone = Alone(55, pause);
    const double length =
        LengthOf(m_heard.back(), m_recording->Heard(), Listen(alone).front(), alone);
    QVERIFY2(length < pause + 0.1, qPrintable(QString::number(length)));
}

void ListeningTest::ALoopThatIsStopped() {
    m_guitar = true;
    m_passes = 10;
    m_recording->onWait = [this] {
        if (m_passes == 8) // In the third pass.
            m_playback->Stop();
    };
    m_playback->PlayStrings(true);
    std::vector<int> pitches;
    for (int pass = 0; pass < 3; ++pass)
        pitches.insert(pitches.end(), openStrings.begin(), openStrings.end());
    Expect(pitches, 0.5);
    ExpectWholeNotes(0.5);
}

// The outer one goes on where the inner one ends; its note was ended by the inner one's first.
void ListeningTest::TwoNestedPlaybacks() {
    m_keys = {12, 16};
    bool pressed = false;
    m_recording->onWait = [this, &pressed] {
        if (m_recording->Now() > 0.25 && !std::exchange(pressed, true))
            m_playback->PlayKeys(true);
    };
    m_playback->PlayKeys(true);
    m_recording->WaitUntil(m_recording->Now() + 0.3);
    QStringList heard;
    for (const HeardNote& note : Listen(m_recording->Heard()))
        heard += QString::number(std::lround(note.pitch));
    QCOMPARE(heard.join(u' '), QStringLiteral("60 60 64 64"));
}

void ListeningTest::FastRetriggersOfOnePitch() {
    for (int i = 0; i < 40; ++i) {
        m_recording->Midi().PlayMidiFile(StringSoundFile(programFolder, QStringLiteral("20"), 0));
        m_recording->WaitUntil(m_recording->Now() + 0.1);
    }
    Expect(std::vector<int>(40, 64), 0.1);
}

void ListeningTest::TwoHundredNotesInARow() {
    m_passes = 40;
    m_keys = {3, 30, 11, 24, 17};
    m_playback->PlayKeys(true);
    std::vector<int> pitches;
    for (int pass = 0; pass < 40; ++pass)
        pitches.insert(pitches.end(), {51, 59, 65, 72, 78});
    Expect(pitches, 0.5);
}

void ListeningTest::AStrum() {
    m_guitar = true;
    m_playback->Strum();
    m_recording->WaitUntil(5);
    const Samples& strum = m_recording->Heard();
    for (const int pitch : openStrings) {
        const double whileItRings = Loudness(strum, pitch, 3.9, 4.1);
        QVERIFY2(whileItRings > 1e-4, qPrintable(QString::number(pitch)));
        QVERIFY(Loudness(strum, pitch, 4.6, 4.8) < whileItRings / 8);
        // The sixth string does not stop before the first.
        QVERIFY(Loudness(strum, pitch, 4.01, 4.14) > Loudness(strum, pitch, 3.8, 3.93) / 2);
    }
}

// A strum that began late is told to end when it would have, had it begun at once.
void ListeningTest::AnEndMakesNoNoteLonger_data() {
    QTest::addColumn<double>("atLeast");
    QTest::addColumn<double>("length");
    QTest::newRow("a note rings as long as it was to") << 2.0 << 1.0;
    QTest::newRow("or as long as it must") << 0.5 << 0.5;
}

void ListeningTest::AnEndMakesNoNoteLonger() {
    QFETCH(const double, atLeast);
    QFETCH(const double, length);
    const auto synthesiser = Synthesiser::Make(FindSoundFont(programFolder));
    auto score = std::make_shared<const Score>(ReadMidiFile(File(12)));
    synthesiser->Begin({1, std::move(score), 0, 1});
    synthesiser->End({1, atLeast});
    Samples left(static_cast<std::size_t>(2.5 * sampleRate));
    Samples right(left.size());
    synthesiser->Render(left.data(), right.data(), static_cast<int>(left.size()));
    const double ringing = Loudness(left, 60, length - 0.15, length);
    QVERIFY(ringing > 1e-3);
    QVERIFY(Loudness(left, 60, length + 0.25, length + 0.4) < ringing / 8);
}

// Each file by itself, at its place in the strum.
void ListeningTest::TheStringsOfAStrumAreThirtyMillisecondsApart() {
    const QString gone = programFolder + QStringLiteral("gone.mid");
    for (int string = 0; string < 6; ++string) {
        QStringList files(6, gone);
        files[string] = StringSoundFile(programFolder, QStringLiteral("44"), string);
        const double begin = m_recording->Now();
        m_recording->Midi().Strum(files);
        m_recording->WaitUntil(begin + 1);
        m_recording->Midi().EndStrum();
        m_recording->WaitUntil(begin + 2);
        const std::vector<HeardNote> heard = Listen(m_recording->Heard());
        QCOMPARE(heard.size(), static_cast<std::size_t>(string + 1));
        QVERIFY(std::abs(heard.back().begin - begin - 0.03 * string - 0.006) < 0.012);
        QCOMPARE(std::lround(heard.back().pitch), 40 + string);
    }
}

void ListeningTest::AStrumGivesWay_data() {
    QTest::addColumn<int>("what");
    QTest::newRow("to the next note of a loop or a sample sound") << 0;
    QTest::newRow("to another strum") << 1;
    QTest::newRow("to the stop button") << 2;
}

void ListeningTest::AStrumGivesWay() {
    QFETCH(const int, what);
    m_playback->Strum();
    m_recording->WaitUntil(1);
    m_fret = 6; // Every string of a second strum sounds another pitch.
    if (what == 0)
        m_recording->Midi().PlayMidiFile(File(35));
    else if (what == 1)
        m_playback->Strum();
    else
        m_playback->Stop();
    m_recording->WaitUntil(2);
    for (const int pitch : {40, 45, 50})
        QVERIFY(Loudness(m_recording->Heard(), pitch, 1.6, 1.9) <
                Loudness(m_recording->Heard(), pitch, 0.6, 0.9) / 8);
    QCOMPARE(m_playback->SoundingRows().any(), what == 1);
}

void ListeningTest::MissingFilesAreSilent() {
    const auto play = [this](const QString& number) {
        m_recording->Midi().PlayMidiFile(StringSoundFile(programFolder, number, 0));
        m_recording->WaitUntil(m_recording->Now() + 0.5);
        m_recording->Midi().CloseMidiFile();
    };
    for (const char16_t* number : {u"20", u"1e9", u"-999", u"25"})
        play(QString::fromUtf16(number));
    m_recording->WaitUntil(m_recording->Now() + 0.3);
    const std::vector<HeardNote> heard = Listen(m_recording->Heard());
    QCOMPARE(heard.size(), std::size_t(2));
    QCOMPARE(std::lround(heard[0].pitch), 64);
    QCOMPARE(std::lround(heard[1].pitch), 59);
    QVERIFY(std::abs(heard[1].begin - heard[0].begin - 1.5) < 0.05);
}

QTEST_GUILESS_MAIN(ListeningTest)
#include "listening_test.moc"
