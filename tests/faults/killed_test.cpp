// A program that is killed while it saves leaves the old file or the new one, and nothing
// that disturbs the next start. TONVIK_KILLS says how often it is killed at any moment.
#include "contents.h"
#include "core/language.h"
#include "support/testfolder.h"
#include "systemcalls.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

class KilledTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<TestFolder>();
        QVERIFY(m_folder->IsValid());
        m_oldSeen = 0;
        m_newSeen = 0;
    }
    void AtAnyMoment_data() { Files(); }
    void AtAnyMoment();
    void AtEverySystemCall_data() { Files(); }
    void AtEverySystemCall();
    void WhatIsLeftBehindDisturbsNothing();

private:
    static void Files() {
        QTest::addColumn<QString>("name");
        QTest::newRow("settings") << QStringLiteral("tonvik.ini");
        QTest::newRow("a sheet") << QStringLiteral("sheet.txt");
        QTest::newRow("a song") << QStringLiteral("song.cho");
    }

    // Learns what the file holds with either content.
    void Learn(const QString& name) {
        m_name = name;
        // Much to write besides what changes: a killed writer should be in the middle of it.
        if (name.endsWith(QStringLiteral(".ini")))
            QVERIFY(m_folder->Write(name, QByteArray("; a remark\r\n").repeated(4000)));
        for (const Content content : {Content::New, Content::Old}) {
            WriteContent(m_folder->Path(name), content);
            (content == Content::New ? m_new : m_old) = m_folder->Bytes(name);
        }
        QVERIFY(m_old.size() > 20'000);
        QVERIFY(m_old != m_new);
    }

    // Counts the content that the file holds; false where it is neither, or both.
    bool IsWhole() {
        const QByteArray bytes = m_folder->Bytes(m_name);
        ++(bytes == m_old ? m_oldSeen : m_newSeen);
        return bytes == m_old || bytes == m_new;
    }

    std::unique_ptr<TestFolder> m_folder;
    QString m_name;
    QByteArray m_old;
    QByteArray m_new;
    int m_oldSeen = 0;
    int m_newSeen = 0;
};

void KilledTest::AtAnyMoment() {
    constexpr int mostWrites = 25;
    const int rounds = std::max(qEnvironmentVariableIntValue("TONVIK_KILLS"), 100);
    QFETCH(const QString, name);
    Learn(name);
    QRandomGenerator random(20'240'229);
    for (int round = 0; round < rounds; ++round) {
        QProcess writer;
        writer.start(QStringLiteral(WRITER), {m_folder->Path(name)});
        for (auto writes = random.bounded(1, mostWrites); writes > 0; --writes) {
            while (!writer.canReadLine())
                QVERIFY(writer.waitForReadyRead());
            writer.readLine();
        }
        writer.kill();
        QVERIFY(writer.waitForFinished());
        QCOMPARE(writer.exitStatus(), QProcess::CrashExit);
        QVERIFY2(IsWhole(), qPrintable(QStringLiteral("round %1").arg(round)));
    }
    QVERIFY(m_oldSeen > 0 && m_newSeen > 0);
    WriteContent(m_folder->Path(name), Content::Old);
    QCOMPARE(m_folder->Bytes(name), m_old);
}

void KilledTest::AtEverySystemCall() {
    QFETCH(const QString, name);
    if (!CanFollow())
        QSKIP("No program can be followed through its system calls here.");
    Learn(name);
    const QByteArray path = QFile::encodeName(m_folder->Path(name));
    int stops = 0;
    do {
        WriteContent(m_folder->Path(name), Content::Old);
        ++stops;
        const bool inTime = KillAtSystemCall({WRITER, path, "once"}, stops);
        QVERIFY2(IsWhole(), qPrintable(QStringLiteral("stop %1").arg(stops)));
        if (!inTime)
            break;
    } while (stops < 10'000);
    QVERIFY(m_oldSeen > 10); // To open, to write, to close, each before and after.
    QVERIFY(m_newSeen > 0 && m_newSeen < m_oldSeen);
}

void KilledTest::WhatIsLeftBehindDisturbsNothing() {
    const QString settings = QStringLiteral("tonvik.ini");
    const QString leftover = QStringLiteral("tonvik.ini.aBcDeF");
    WriteSettings(m_folder->Path(settings), Content::Old);
    const QByteArray half = m_folder->Bytes(settings).left(20);
    QVERIFY(m_folder->Write(leftover, half));
    WriteSettings(m_folder->Path(settings), Content::New);
    QCOMPARE(ReadIni(m_folder->Path(settings), QStringLiteral("Strings"), QStringLiteral("6S"), {}),
             QStringLiteral("C#"));
    QCOMPARE(LanguageFiles(m_folder->Path()), QStringList());
    // It may as well be a copy that the user made: it stays.
    QCOMPARE(m_folder->Bytes(leftover), half);
}

QTEST_GUILESS_MAIN(KilledTest)
#include "killed_test.moc"
