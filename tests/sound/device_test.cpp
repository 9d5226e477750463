// The program itself plays into a sound server of the test's own, and is heard there.
#include "listener.h"
#include "support/testfolder.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTest>

#include <algorithm>
#include <cstring>
#include <functional>

namespace {

// A busy machine is late with its samples; the server plays nothing meanwhile, and then goes on.
std::vector<float> WithoutGaps(const std::vector<float>& samples) {
    constexpr std::ptrdiff_t shortest = 16;
    std::vector<float> joined;
    for (auto next = samples.begin(); next != samples.end();) {
        const auto sounding = std::find_if(next, samples.end(), [](float s) { return s != 0; });
        const bool gap = sounding - next >= shortest;
        const auto end = std::find(sounding, samples.end(), 0.0F);
        joined.insert(joined.end(), gap ? sounding : next, end);
        next = end;
    }
    return joined;
}

} // namespace

class DeviceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void CIsHeardOnStringsAndKeys();

private:
    QString Heard();
    void PlayTheProgram();
    void Play(QProcess& program, const QString& key);
    static void WaitFor(const std::function<bool()>& done);

    TestFolder m_folder; // The server's.
    QProcessEnvironment m_environment;
    QProcess m_server;
};

void DeviceTest::initTestCase() {
    for (const auto& tool :
         {QStringLiteral("pulseaudio"), QStringLiteral("parec"), QStringLiteral("pactl")})
        if (QStandardPaths::findExecutable(tool).isEmpty())
            QSKIP("The sound server is not installed.");
    const QString socket = m_folder.Path(QStringLiteral("native"));
    m_environment = QProcessEnvironment::systemEnvironment();
    for (const auto& name : {QStringLiteral("HOME"), QStringLiteral("XDG_RUNTIME_DIR"),
                             QStringLiteral("PULSE_RUNTIME_PATH")})
        m_environment.insert(name, m_folder.Path());
    m_environment.insert(QStringLiteral("PULSE_SERVER"), QStringLiteral("unix:") + socket);
    m_environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    m_environment.insert(QStringLiteral("QT_PLUGIN_PATH"), QStringLiteral(PLUGINS));
    m_environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"), QStringLiteral("musician"));
    m_server.setProcessEnvironment(m_environment);
    m_server.start(
        QStringLiteral("pulseaudio"),
        {QStringLiteral("-n"), QStringLiteral("--daemonize=no"),
         QStringLiteral("--exit-idle-time=-1"), QStringLiteral("--use-pid-file=no"),
         QStringLiteral("--disable-shm=yes"), QStringLiteral("--log-level=error"),
         QStringLiteral("--load=module-native-protocol-unix auth-anonymous=1 socket=") + socket,
         QStringLiteral("--load=module-null-sink sink_name=ear rate=44100")});
    const auto answers = [this] {
        QProcess asking;
        asking.setProcessEnvironment(m_environment);
        asking.start(QStringLiteral("pactl"), {QStringLiteral("info")});
        return asking.waitForFinished() && asking.exitCode() == 0;
    };
    QTRY_VERIFY_WITH_TIMEOUT(answers(), 20'000);
}

void DeviceTest::cleanupTestCase() {
    m_server.terminate();
    QVERIFY(m_server.state() == QProcess::NotRunning || m_server.waitForFinished());
}

// Returns when the program has done it.
void DeviceTest::Play(QProcess& program, const QString& key) {
    program.write(key.toUtf8() + '\n');
    do
        QVERIFY(program.waitForReadyRead());
    while (!program.readAll().contains(key.toUtf8()));
}

// What a busy machine loses in recording is heard again.
void DeviceTest::CIsHeardOnStringsAndKeys() {
    const QString asked = QStringLiteral("48 52 55 40 48 52 55 60 64");
    QString heard = Heard();
    for (int again = 0; again < 3 && heard != asked && !QTest::currentTestFailed(); ++again) {
        qInfo("heard: %s", qPrintable(heard));
        heard = Heard();
    }
    QCOMPARE(heard, asked);
}

// The pitches that the program plays in turn. What seems to begin again is where a gap was.
QString DeviceTest::Heard() {
    QProcess ear;
    const QString record = m_folder.Path(QStringLiteral("record"));
    const auto recorded = [&record] { return QFileInfo(record).size(); };
    ear.setProcessEnvironment(m_environment);
    ear.setStandardOutputFile(record);
    ear.start(QStringLiteral("parec"),
              {QStringLiteral("--device=ear.monitor"), QStringLiteral("--format=float32le"),
               QStringLiteral("--rate=44100"), QStringLiteral("--channels=1"),
               QStringLiteral("--channel-map=front-left"), QStringLiteral("--latency-msec=200"),
               QStringLiteral("--raw")});
    WaitFor([&] { return recorded() > 0; });
    PlayTheProgram();
    const qint64 atTheEnd = recorded();
    constexpr qint64 second = 44100 * sizeof(float);
    WaitFor([&] { return recorded() > atTheEnd + second / 2; }); // What was under way.
    ear.terminate();
    ear.waitForFinished();
    const QByteArray bytes = m_folder.Bytes(QStringLiteral("record"));
    std::vector<float> samples(static_cast<std::size_t>(bytes.size()) / sizeof(float));
    std::memcpy(samples.data(), bytes.constData(), samples.size() * sizeof(float));
    QStringList heard;
    for (const HeardNote& note : Listen(WithoutGaps(samples)))
        if (const QString pitch = QString::number(std::lround(note.pitch));
            note.pitch > 0 && (heard.isEmpty() || heard.last() != pitch))
            heard += pitch;
    return heard.join(u' ');
}

void DeviceTest::PlayTheProgram() {
    QProcess program;
    program.setProcessEnvironment(m_environment);
    program.start(QStringLiteral(PROGRAM), QStringList());
    Play(program, QStringLiteral("F5"));
    Play(program, QStringLiteral("F6"));
    program.write("close\n");
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
}

void DeviceTest::WaitFor(const std::function<bool()>& done) {
    QTRY_VERIFY_WITH_TIMEOUT(done(), 20'000);
}

QTEST_GUILESS_MAIN(DeviceTest)
#include "device_test.moc"
