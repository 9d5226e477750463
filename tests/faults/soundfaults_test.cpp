// Sound that fails is silence: nothing is shown, nothing ends, and the pace is kept.
#include "controls/application.h"
#include "sound/midiapi.h"
#include "support/testfolder.h"
#include "tests/support/recordingsound.h"
#include "workbench/frmmain.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTest>

namespace {

const QString someNote = QStringLiteral(SOUND_FOLDER "/keys/0.mid");

// A device that takes every note, and one that fails while a note sounds.
const QByteArray patientDevice("pcm.!default { type null }\nctl.!default { type null }\n");
const QByteArray failingDevice("pcm.!default {\n"
                               "    type file\n"
                               "    file \"/dev/full\"\n"
                               "    slave.pcm { type null }\n"
                               "}\n");

} // namespace

class SoundTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        if (QSysInfo::kernelType() != QStringLiteral("linux"))
            QSKIP("The devices and libraries of another system are set up otherwise.");
    }
    void init() {
        m_folder = std::make_unique<TestFolder>();
        m_environment = QProcessEnvironment::systemEnvironment();
        // No sound server, wherever the test runs.
        m_environment.insert(QStringLiteral("PULSE_SERVER"), QStringLiteral("none"));
        m_environment.insert(QStringLiteral("PIPEWIRE_REMOTE"), QStringLiteral("none"));
        UseDevice({});
    }

    void ADeviceIsHeard() {
        if (FindSoundFont(m_folder->Path()).isEmpty())
            QSKIP("There is no sound font.");
        UseDevice(patientDevice);
        QCOMPARE(Play(someNote),
                 QStringList({QStringLiteral("sounds"), QStringLiteral("library")}));
    }

    void TheDeviceIsLetGoOfWhereNoNoteFollows() {
        if (FindSoundFont(m_folder->Path()).isEmpty())
            QSKIP("There is no sound font.");
        UseDevice(patientDevice);
        QCOMPARE(Play(someNote, {QStringLiteral("rests")}),
                 QStringList({QStringLiteral("sounds"), QStringLiteral("let go"),
                              QStringLiteral("library")}));
    }

    // The first note is on its way when the device fails; the others find it so.
    void ADeviceThatFailsInMidNote() {
        UseDevice(failingDevice);
        QCOMPARE(Play(someNote).last(), QStringLiteral("library"));
    }

    // A note that ends is let go only when the synthesiser's thread reads it no more.
    void ThousandsOfNotesInARow() {
        if (FindSoundFont(m_folder->Path()).isEmpty())
            QSKIP("There is no sound font.");
        UseDevice(patientDevice);
        m_environment.insert(QStringLiteral("MALLOC_PERTURB_"), QStringLiteral("85"));
        QCOMPARE(Play(someNote, {QStringLiteral("2000")}),
                 QStringList({QStringLiteral("sounds"), QStringLiteral("library")}));
    }

    void NoDevice() {
        QCOMPARE(Play(someNote),
                 QStringList({QStringLiteral("silent"), QStringLiteral("library")}));
        QCOMPARE(m_messages, QByteArray());
    }

    void ASoundFontThatIsNone() {
        UseDevice(patientDevice);
        QVERIFY(
            m_folder->Write(QStringLiteral("mine.sf2"), "RIFF\xFF\xFF\xFF\xFFsfbk and no more"));
        QCOMPARE(Play(someNote),
                 QStringList({QStringLiteral("silent"), QStringLiteral("library")}));
    }

    void ALibraryThatIsNone() {
        UseDevice(patientDevice);
        for (const auto& name :
             {QStringLiteral("libfluidsynth.so.3"), QStringLiteral("libfluidsynth.so.2"),
              QStringLiteral("libfluidsynth.so")})
            QVERIFY(m_folder->Write(name, "no library"));
        m_environment.insert(QStringLiteral("LD_LIBRARY_PATH"), m_folder->Path());
        QCOMPARE(Play(someNote),
                 QStringList({QStringLiteral("silent"), QStringLiteral("no library")}));
    }

    void AFileThatIsNone_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("another kind") << QByteArray("RIFF and so on");
        QTest::newRow("a header and no more") << QByteArray("MThd\0\0\0\6\0\1\0\1\0\x60", 14);
        QTest::newRow("a track cut off")
            << QByteArray("MThd\0\0\0\6\0\0\0\1\0\x60MTrk\0\0\xFF\0\0\x90", 24);
    }
    void AFileThatIsNone() {
        QFETCH(const QByteArray, bytes);
        UseDevice(patientDevice);
        QVERIFY(m_folder->Write(QStringLiteral("note.mid"), bytes));
        QVERIFY(Play(m_folder->Path(QStringLiteral("note.mid")))
                    .last()
                    .endsWith(QStringLiteral("library")));
        QCOMPARE(Play(m_folder->Path(QStringLiteral("gone.mid"))).first(),
                 QStringLiteral("silent"));
    }

    void WithoutSoundsThePaceIsKept() {
        AppState state;
        state.AppPath = m_folder->Path();
        HandClock clock;
        MidiAPI midi(state.AppPath);
        Workbench workbench(state);
        frmMain window(state, workbench, midi, clock);
        window.ShowTypes();
        window.ShowRoots();
        window.ShowScales();
        window.FillBuiltInLists();
        window.SelectDefaults(); // Three keys are marked.
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTest::mouseClick(window.GoldButton1, Qt::LeftButton);
        QCOMPARE(clock.now, 101.5);
        QVERIFY(!state.IsPlaying);
        QVERIFY(midi.CurrentMidiFile().endsWith(QStringLiteral("sounds/keys/7.mid")));
        QVERIFY(!midi.MidiOpen());
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }

private:
    void UseDevice(const QByteArray& configuration) {
        QVERIFY(m_folder->Write(QStringLiteral("device.conf"), configuration));
        m_environment.insert(QStringLiteral("ALSA_CONFIG_PATH"),
                             m_folder->Path(QStringLiteral("device.conf")));
    }

    // What the player said, each once; a crash where it did not end well.
    QStringList Play(const QString& file, const QStringList& further = {}) {
        QProcess player;
        player.setProcessEnvironment(m_environment);
        player.start(QStringLiteral(PLAYER), QStringList{m_folder->Path(), file} + further);
        const bool ended = player.waitForFinished();
        m_messages = player.readAllStandardError();
        if (!ended || player.exitStatus() != QProcess::NormalExit || player.exitCode() != 0)
            return {QStringLiteral("a crash"), QString::fromLocal8Bit(m_messages)};
        QStringList said =
            QString::fromLatin1(player.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
        said.removeDuplicates();
        return said;
    }

    std::unique_ptr<TestFolder> m_folder;
    QProcessEnvironment m_environment;
    QByteArray m_messages; // On the player's terminal.
};

int main(int argc, char** argv) {
    Application application(argc, argv);
    SoundTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "soundfaults_test.moc"
