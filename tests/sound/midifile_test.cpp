// What of a MIDI file is music and when it is due, and which files are silence.
#include "miditext.h"
#include "sound/midifile.h"
#include "support/testfolder.h"

#include <QTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

// "90 3c 64 at 0.5" for each event.
QString AsText(const Score& score) {
    QStringList events;
    for (const MidiEvent& event : score)
        events += QStringLiteral("%1 %2 %3 at %4")
                      .arg(event.status, 0, 16)
                      .arg(event.first, 0, 16)
                      .arg(event.second, 0, 16)
                      .arg(event.seconds);
    return events.join(QStringLiteral(", "));
}

const QByteArray aNote = Raw({0, 0x90, 60, 100}) + Ticks(500) + Raw({0x80, 60, 0});

} // namespace

class MidiFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Music_data() {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("score");
        QTest::newRow("a quarter is half a second")
            << OneTrack(aNote) << QStringLiteral("90 3c 64 at 0, 80 3c 0 at 0.5");
        QTest::newRow("a tempo holds from its moment on")
            << OneTrack(aNote + Raw({0, 0xFF, 0x51, 3, 0x0F, 0x42, 0x40}) + Ticks(500) +
                        Raw({0xC0, 5}))
            << QStringLiteral("90 3c 64 at 0, 80 3c 0 at 0.5, c0 5 0 at 1.5");
        QTest::newRow("tracks sound together, the first one's tempo is everyone's")
            << Head(1, 2) + Chunk("MTrk", Raw({0, 0xFF, 0x51, 3, 0x0F, 0x42, 0x40}) + endOfTrack) +
                   Chunk("MTrk", aNote + endOfTrack)
            << QStringLiteral("90 3c 64 at 0, 80 3c 0 at 1");
        QTest::newRow("the status of the event before goes on")
            << OneTrack(Raw({0, 0x90, 60, 100}) + Ticks(250) + Raw({60, 0}))
            << QStringLiteral("90 3c 64 at 0, 90 3c 0 at 0.25");
        QTest::newRow("it does so over a text")
            << OneTrack(Raw({0, 0x90, 60, 100, 0, 0xFF, 1, 1, 'x', 0, 60, 0}))
            << QStringLiteral("90 3c 64 at 0, 90 3c 0 at 0");
        QTest::newRow("what is meant for one maker's instruments is passed over")
            << OneTrack(Raw({0, 0xF0, 3, 1, 2, 0xF7}) + aNote)
            << QStringLiteral("90 3c 64 at 0, 80 3c 0 at 0.5");
        QTest::newRow("chunks of another kind are passed over")
            << Head(0, 1) + Chunk("XYZW", Raw({1, 2, 3})) + Chunk("MTrk", aNote + endOfTrack)
            << QStringLiteral("90 3c 64 at 0, 80 3c 0 at 0.5");
        QTest::newRow("ticks may be parts of a second")
            << Head(0, 1, 0xE728) + Chunk("MTrk", aNote + endOfTrack) // 25 frames of 40 ticks.
            << QStringLiteral("90 3c 64 at 0, 80 3c 0 at 0.5");
    }
    void Music() {
        QFETCH(const QByteArray, file);
        QFETCH(const QString, score);
        QCOMPARE(AsText(ReadScore(file)), score);
    }

    void Silence_data() {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("an empty file") << QByteArray();
        QTest::newRow("another kind of file") << QByteArray("RIFF and so on, and on");
        QTest::newRow("format 2") << Head(2, 1) + Chunk("MTrk", aNote + endOfTrack);
        QTest::newRow("fewer tracks than it says")
            << Head(1, 2) + Chunk("MTrk", aNote + endOfTrack);
        QTest::newRow("no ticks") << Head(0, 1, 0) + Chunk("MTrk", aNote + endOfTrack);
        QTest::newRow("a tempo of 0") << OneTrack(Raw({0, 0xFF, 0x51, 3, 0, 0, 0}) + aNote);
        QTest::newRow("a track that does not end") << Head(0, 1) + Chunk("MTrk", aNote);
        QTest::newRow("a value above 127") << OneTrack(Raw({0, 0x90, 60, 200}));
        QTest::newRow("no status") << OneTrack(Raw({0, 60, 100}));
        QTest::newRow("a time of five bytes")
            << OneTrack(Raw({0x81, 0x81, 0x81, 0x81, 1, 0x90, 60, 100}));
        QTest::newRow("a chunk longer than the file")
            << Head(0, 1) + "MTrk" + Number(1000, 4) + aNote + endOfTrack;
        QTest::newRow("a chunk that ends before it begins")
            << Head(0, 1) + "MTrk" + Number(0xFFFF'FFF8U, 4) + aNote + endOfTrack;
        QTest::newRow("a chunk shorter than its track")
            << Head(0, 1) + "MTrk" + Number(9, 4) + aNote + endOfTrack;
        QTest::newRow("hundreds of thousands of events at one tick")
            << OneTrack(Raw({0, 0x90, 60, 100}) + Raw({0, 60, 100}).repeated(300'000));
        QTest::newRow("as many in no time")
            << OneTrack(Raw({0, 0xFF, 0x51, 3, 0, 0, 1, 0, 0x90, 60, 100}) +
                        Raw({1, 60, 100}).repeated(300'000));
    }
    void Silence() {
        QFETCH(const QByteArray, file);
        QVERIFY(ReadScore(file).empty());
    }

    void AFileCutAnywhereIsSilence() {
        const QByteArray file =
            Head(1, 2) + Chunk("MTrk", aNote + endOfTrack) + Chunk("MTrk", aNote + endOfTrack);
        QVERIFY(!ReadScore(file).empty());
        for (qsizetype size = 0; size < file.size(); ++size)
            QVERIFY2(ReadScore(file.left(size)).empty(), qPrintable(QString::number(size)));
    }

    void ALongFileIsReadWhole() {
        const QByteArray file =
            OneTrack(Raw({0, 0x90, 60, 100}) + Raw({50, 60, 100}).repeated(340'000));
        QVERIFY(file.size() > 1'000'000);
        QCOMPARE(Read(file).size(), std::size_t(340'001));
        QVERIFY(Read(file + QByteArray(100'000, 'x')).empty()); // Above 1 MiB.
    }

    void WhatIsNoFileIsSilence() {
        const TestFolder folder;
        QVERIFY(ReadMidiFile(folder.Path(QStringLiteral("gone.mid"))).empty());
        QVERIFY(folder.MakeFolder(QStringLiteral("5.mid")));
        QVERIFY(ReadMidiFile(folder.Path(QStringLiteral("5.mid"))).empty());
        QVERIFY(ReadMidiFile(QString()).empty());
#ifdef Q_OS_UNIX
        const QString pipe = folder.Path(QStringLiteral("6.mid"));
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QVERIFY(ReadMidiFile(pipe).empty()); // And is not waited for.
#endif
    }

private:
    static Score Read(const QByteArray& bytes) {
        const TestFolder folder;
        return folder.Write(QStringLiteral("5.mid"), bytes)
                   ? ReadMidiFile(folder.Path(QStringLiteral("5.mid")))
                   : Score();
    }
};

QTEST_GUILESS_MAIN(MidiFileTest)
#include "midifile_test.moc"
