// Sound that fails is silence: nothing is shown, nothing ends, and the pace is kept.
#include "controls/application.h"
#include "sound/midiapi.h"
#include "sound/soundfont.h"
#include "support/testfolder.h"
#include "tests/support/recordingsound.h"
#include "workbench/frmmain.h"

#include <QProcess>
#include <QTest>

#ifdef Q_OS_LINUX
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#endif

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
        QCOMPARE(Play(someNote), Said({"sounds", "ended"}));
    }

    void TheDeviceIsLetGoOfWhereNoNoteFollows() {
        if (FindSoundFont(m_folder->Path()).isEmpty())
            QSKIP("There is no sound font.");
        UseDevice(patientDevice);
        QCOMPARE(Play(someNote, "rests"), Said({"sounds", "let go", "ended"}));
    }

    // The first note is on its way when the device fails; the others find it so.
    void ADeviceThatFailsInMidNote() {
        UseDevice(failingDevice);
        QCOMPARE(Play(someNote, "3").last(), QStringLiteral("ended"));
    }

    void HundredsOfNotesInARow() {
        if (FindSoundFont(m_folder->Path()).isEmpty())
            QSKIP("There is no sound font.");
        UseDevice(patientDevice);
        m_environment.insert(QStringLiteral("MALLOC_PERTURB_"), QStringLiteral("85"));
        QCOMPARE(Play(someNote, "300"), Said({"sounds", "ended"}));
    }

    void NoDevice() {
        QCOMPARE(Play(someNote), Said({"silent", "ended"}));
        QCOMPARE(m_messages, QByteArray());
    }

    // It takes the connection and never says a word: nobody waits for it, also at the end.
    void AServerThatNeverAnswers() {
        if (FindSoundFont(m_folder->Path()).isEmpty())
            QSKIP("There is no sound font.");
        const int listening = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        const QByteArray path = QFile::encodeName(m_folder->Path(QStringLiteral("s")));
        QVERIFY(static_cast<std::size_t>(path.size()) < sizeof(address.sun_path));
        std::copy(path.begin(), path.end(), address.sun_path);
        QCOMPARE(bind(listening, reinterpret_cast<sockaddr*>(&address), sizeof(address)), 0);
        QCOMPARE(listen(listening, 5), 0);
        m_environment.insert(QStringLiteral("PULSE_SERVER"),
                             QStringLiteral("unix:") + QFile::decodeName(path));
        QProcess player;
        Start(player, someNote, "asks");
        pollfd asked{listening, POLLIN, 0};
        QCOMPARE(poll(&asked, 1, 30'000), 1);
        const int connection = accept(listening, nullptr, nullptr);
        player.closeWriteChannel();
        QCOMPARE(WhatIsSaidBy(player), Said({"silent", "left behind"}));
        close(connection);
        close(listening);
    }

    void ASoundFontThatIsNone_data() {
        QTest::addColumn<QByteArray>("font");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("another kind of file") << QByteArray("MThd");
        QTest::newRow("no more than its head")
            << QByteArray("RIFF\xFF\xFF\xFF\xFFsfbk and no more");
        QFile whole(FindSoundFont(QString()));
        if (whole.open(QIODevice::ReadOnly))
            QTest::newRow("cut off") << whole.read(100'000);
    }
    void ASoundFontThatIsNone() {
        QFETCH(const QByteArray, font);
        UseDevice(patientDevice);
        QVERIFY(m_folder->Write(QStringLiteral("mine.sf2"), font));
        QCOMPARE(Play(someNote), Said({"silent", "ended"}));
    }

    void ALibraryThatIsNone() {
        UseDevice(patientDevice);
        for (const auto& name :
             {QStringLiteral("libfluidsynth.so.3"), QStringLiteral("libfluidsynth.so.2"),
              QStringLiteral("libfluidsynth.so")})
            QVERIFY(m_folder->Write(name, "no library"));
        m_environment.insert(QStringLiteral("LD_LIBRARY_PATH"), m_folder->Path());
        QCOMPARE(Play(someNote), Said({"silent", "ended"}));
    }

    void AFileThatIsNone() {
        UseDevice(patientDevice);
        QVERIFY(m_folder->Write(QStringLiteral("note.mid"), "RIFF and so on"));
        QCOMPARE(Play(m_folder->Path(QStringLiteral("note.mid"))), Said({"silent", "ended"}));
        QCOMPARE(Play(m_folder->Path(QStringLiteral("gone.mid"))), Said({"silent", "ended"}));
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

    static QStringList Said(std::initializer_list<const char*> words) {
        QStringList said;
        for (const char* word : words)
            said += QString::fromLatin1(word);
        return said;
    }

    // What the player said, each once; a crash where it did not end well.
    QStringList Play(const QString& file, const char* how = "20") {
        QProcess player;
        Start(player, file, how);
        return WhatIsSaidBy(player);
    }

    void Start(QProcess& player, const QString& file, const char* how) {
        player.setProcessEnvironment(m_environment);
        player.start(QStringLiteral(PLAYER), {m_folder->Path(), file, QString::fromLatin1(how)});
    }

    QStringList WhatIsSaidBy(QProcess& player) {
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
