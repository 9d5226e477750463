// Files of the user's own, by ear: each sounds as it does alone, whatever was played before.
#include "listener.h"
#include "miditext.h"
#include "recording.h"
#include "sound/soundfont.h"
#include "support/testfolder.h"

#include <QTest>

namespace {

// Program 25, a steel guitar.
QByteArray Note(int pitch, int ticks = 400) {
    return Raw({0, 0xC0, 25, 0, 0x90, pitch, 100}) + Ticks(ticks) + Raw({0x80, pitch, 0});
}

QByteArray Control(int controller, int value) {
    return Raw({0, 0xB0, controller, value});
}

// The bend two octaves wide and all the way down.
QByteArray WideBend() {
    return Control(101, 0) + Control(100, 0) + Control(6, 24) + Raw({0, 0xE0, 0, 0});
}

} // namespace

class UserFilesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QVERIFY2(!FindSoundFont(QString()).isEmpty(), "The sound font is not installed.");
    }
    void init() { m_recording = std::make_unique<Recording>(m_folder.Path()); }

    void NothingCarriesOver_data() {
        QTest::addColumn<QByteArray>("before");
        const auto row = [](const char* name, const QByteArray& events) {
            QTest::newRow(name) << OneTrack(events + Note(64));
        };
        row("no volume", Control(7, 0));
        row("no expression", Control(11, 0));
        row("far to the right", Control(10, 127));
        row("a bend", Raw({0, 0xE0, 0, 0}));
        row("a wide bend", WideBend());
        row("a fine tuning", Control(101, 0) + Control(100, 1) + Control(6, 0));
        row("a pedal that stays down", Control(64, 127));
        row("a dark filter", Control(74, 0));
        row("a reverb", Control(91, 127));
        row("another bank", Control(0, 8) + Control(32, 8));
        row("one voice only", Control(126, 1));
        row("no sound from the keys", Control(122, 0));
        QTest::newRow("another program")
            << OneTrack(Raw({0, 0xC0, 73, 0, 0x90, 64, 100}) + Ticks(400) + Raw({0x80, 64, 0}));
    }
    void NothingCarriesOver() {
        QFETCH(const QByteArray, before);
        const QByteArray after = OneTrack(Note(69));
        // Often enough for the same channels to come round again.
        for (int i = 0; i < 17; ++i)
            Play(before, 0.05);
        m_recording->WaitUntil(m_recording->Now() + 2);
        const double begin = m_recording->Now();
        Play(after, 0.4);
        const HeardNote heard = Listen(m_recording->Heard()).back();
        QVERIFY2(std::abs(heard.pitch - 69) < 0.2, qPrintable(QString::number(heard.pitch)));
        Recording fresh(m_folder.Path());
        fresh.Midi().PlayMidiFile(Write(after));
        fresh.WaitUntil(0.4);
        const double alone = Loudness(fresh.Heard(), 69, 0.1, 0.4);
        const double now = Loudness(m_recording->Heard(), 69, begin + 0.1, begin + 0.4);
        QVERIFY2(std::abs(now / alone - 1) < 0.1, qPrintable(QString::number(now / alone)));
    }

    void WhatAFileHolds_data() {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QList<int>>("pitches");
        QTest::addColumn<QList<double>>("begins");
        QTest::newRow("a melody of one track") << OneTrack(Note(60) + Note(64) + Note(67))
                                               << QList{60, 64, 67} << QList{0.0, 0.4, 0.8};
        QTest::newRow("two tracks, a tempo and its change")
            << Head(1, 2) +
                   Chunk("MTrk", Raw({0, 0xFF, 0x51, 3, 0x0F, 0x42, 0x40}) + Ticks(400) +
                                     Raw({0xFF, 0x51, 3, 0x07, 0xA1, 0x20}) + endOfTrack) +
                   Chunk("MTrk", Note(60) + Note(64) + Note(67) + endOfTrack)
            << QList{60, 64, 67} << QList{0.0, 0.8, 1.2};
        QTest::newRow("the status of the event before")
            << OneTrack(Raw({0, 0xC0, 25, 0, 0x90, 60, 100}) + Ticks(400) +
                        Raw({60, 0, 0, 64, 100}) + Ticks(400) + Raw({64, 0}))
            << QList{60, 64} << QList{0.0, 0.4};
        QTest::newRow("two programs on two channels")
            << OneTrack(Note(60) + Raw({0, 0xC1, 0, 0, 0x91, 72, 100}) + Ticks(400) +
                        Raw({0x81, 72, 0}))
            << QList{60, 72} << QList{0.0, 0.4};
        QTest::newRow("thousands of notes, 1 MB")
            << OneTrack(Note(60) + Note(64) + Raw({0, 0xFF, 1, 0xBD, 0x84, 0x40}) +
                        QByteArray(1'000'000, 'x') + Note(67))
            << QList{60, 64, 67} << QList{0.0, 0.4, 0.8};
    }
    void WhatAFileHolds() {
        QFETCH(const QByteArray, file);
        QFETCH(const QList<int>, pitches);
        QFETCH(const QList<double>, begins);
        Play(file, begins.last() + 0.4);
        const std::vector<HeardNote> heard = Listen(m_recording->Heard());
        QCOMPARE(static_cast<qsizetype>(heard.size()), pitches.size());
        for (qsizetype i = 0; i < pitches.size(); ++i) {
            const HeardNote& note = heard[static_cast<std::size_t>(i)];
            QVERIFY2(std::abs(note.pitch - pitches[i]) < 0.2,
                     qPrintable(QString::number(note.pitch)));
            QVERIFY(std::abs(note.begin - heard[0].begin - begins[i]) < 0.02);
        }
    }

    void APedalHoldsItsNotes() {
        Play(OneTrack(Control(64, 127) + Note(60)), 1);
        const double held = Loudness(m_recording->Heard(), 60, 0.7, 0.9);
        m_recording = std::make_unique<Recording>(m_folder.Path());
        Play(OneTrack(Note(60)), 1);
        QVERIFY(held > 4 * Loudness(m_recording->Heard(), 60, 0.7, 0.9));
    }

    void TheEndLiftsThePedal() {
        const QByteArray file = OneTrack(Control(64, 127) + Note(60));
        m_recording->Midi().PlayMidiFile(Write(file));
        m_recording->WaitUntil(2);
        const double held = Loudness(m_recording->Heard(), 60, 1.6, 2);
        m_recording = std::make_unique<Recording>(m_folder.Path());
        Play(file, 1);
        m_recording->WaitUntil(2);
        QVERIFY(held > 4 * Loudness(m_recording->Heard(), 60, 1.6, 2));
    }

    void TheNextNoteEndsWhatTheFileStillWanted() {
        const QByteArray melody = OneTrack(Note(60) + Note(62) + Note(64) + Note(65));
        m_recording->Midi().PlayMidiFile(Write(melody));
        m_recording->WaitUntil(0.6);
        Play(OneTrack(Note(72, 2000)), 2);
        QStringList heard;
        for (const HeardNote& note : Listen(m_recording->Heard()))
            heard += QString::number(std::lround(note.pitch));
        QCOMPARE(heard.join(u' '), QStringLiteral("60 62 72"));
    }

    void SilenceAndThenAGoodNote_data() {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("a tempo of 0") << OneTrack(Raw({0, 0xFF, 0x51, 3, 0, 0, 0}) + Note(60));
        QTest::newRow("cut off") << OneTrack(Note(60)).chopped(6);
        QTest::newRow("everything at once")
            << OneTrack(Raw({0, 0x90, 60, 100}) + Raw({0, 60, 100}).repeated(300'000));
    }
    void SilenceAndThenAGoodNote() {
        QFETCH(const QByteArray, file);
        m_recording->Midi().PlayMidiFile(Write(OneTrack(Note(60))));
        m_recording->WaitUntil(0.5);
        Play(file, 0.5);
        Play(OneTrack(Note(64)), 0.5);
        const std::vector<HeardNote> heard = Listen(m_recording->Heard());
        QCOMPARE(heard.size(), std::size_t(2));
        QCOMPARE(std::lround(heard[1].pitch), 64);
    }

private:
    QString Write(const QByteArray& file) {
        const QString name = QStringLiteral("note.mid");
        return m_folder.Write(name, file) ? m_folder.Path(name) : QString();
    }

    void Play(const QByteArray& file, double seconds) {
        m_recording->Midi().PlayMidiFile(Write(file));
        m_recording->WaitUntil(m_recording->Now() + seconds);
        m_recording->Midi().CloseMidiFile();
    }

    TestFolder m_folder;
    std::unique_ptr<Recording> m_recording;
};

QTEST_GUILESS_MAIN(UserFilesTest)
#include "userfiles_test.moc"
