// The program itself, started from odd places and in odd surroundings.
#include "hostilesystem.h"
#include "support/oddfiles.h"
#include "support/testfolder.h"

#include <QProcess>
#include <QTest>

#include <cstdlib>

namespace {

const QString program = QStringLiteral("tonvik");
const QString russianTitle = QStringLiteral("frmMain: Тонвик");
const QString otherTitle = QStringLiteral("frmMain: Tonvik");
constexpr QFileDevice::Permissions readable = QFileDevice::ReadOwner | QFileDevice::ExeOwner |
                                              QFileDevice::ReadGroup | QFileDevice::ExeGroup |
                                              QFileDevice::ReadOther | QFileDevice::ExeOther;

} // namespace

class StartTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void FromAnyWorkingFolder_data();
    void FromAnyWorkingFolder();
    void InAnyFolder_data();
    void InAnyFolder();
    void ThroughALink_data();
    void ThroughALink();
    void TheProgramFolderIsTheExecutables();
    void WithoutAHome_data();
    void WithoutAHome();
    void FromAFolderThatMayNotBeWrittenInto();
    void AMissingLanguageFileIsToldOfOnce();
    void WhatCannotBeReadEndsTheStart_data();
    void WhatCannotBeReadEndsTheStart();
    void AReportBeforeTheLanguageIsLoaded_data();
    void AReportBeforeTheLanguageIsLoaded();
    void WhatIsNoFileEndsTheStart_data();
    void WhatIsNoFileEndsTheStart();
    void WhatIsNoFileIsEmptySettings_data() { OddFiles(); }
    void WhatIsNoFileIsEmptySettings();
    void WhatIsNoFileIsALanguageWithoutTexts_data() { OddFiles(); }
    void WhatIsNoFileIsALanguageWithoutTexts();
    void AMillionChordTypes();
    void ArgumentsAreIgnored_data();
    void ArgumentsAreIgnored();
    void ASecondStart();
    void AKilledProgramLeavesNoLock();
    void TheProgramFolderIsReplaced();

private:
    // Copies the program into a folder of the test's folder, with a language file in use.
    void Install(const QString& folder);
    QString Path(const QString& name) const { return m_folder->Path(name); }

    // Starts it; what it said until it ended by itself, without a failure unless one is expected.
    QStringList Start(const QString& path, const QString& workingFolder = {},
                      const QStringList& arguments = {});
    QStringList FailToStart();

    // Starts it to stay until EndsWell, which sees it end by itself.
    void StartAndStay(QProcess& started);
    static void EndsWell(QProcess& started);

    std::unique_ptr<TestFolder> m_folder;
    QProcessEnvironment m_environment;
    int m_expectedStatus = EXIT_SUCCESS;
};

void StartTest::init() {
    m_folder = std::make_unique<TestFolder>();
    QVERIFY(m_folder->IsValid());
    m_environment = QProcessEnvironment::systemEnvironment();
    m_environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    m_environment.insert(QStringLiteral("QT_PLUGIN_PATH"), QStringLiteral(PLUGINS));
    m_environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"), QStringLiteral("witness"));
    m_environment.insert(QStringLiteral("LSAN_OPTIONS"),
                         QStringLiteral("print_suppressions=0:suppressions=" SUPPRESSIONS));
}

void StartTest::Install(const QString& folder) {
    QVERIFY(QDir(m_folder->Path()).mkpath(folder));
    QVERIFY(QFile::copy(QStringLiteral(PROGRAM), Path(folder + u'/' + program)));
    QVERIFY(m_folder->Write(folder + QStringLiteral("/x.lng"), "[Main]\r\n"));
    QVERIFY(m_folder->Write(folder + QStringLiteral("/tonvik.ini"),
                            "[Settings]\r\nLanguage=x.lng\r\n"));
}

QStringList StartTest::Start(const QString& path, const QString& workingFolder,
                             const QStringList& arguments) {
    QProcess started;
    started.setProcessEnvironment(m_environment);
    started.setWorkingDirectory(workingFolder);
    started.start(path, arguments);
    const bool ended = started.waitForFinished();
    const QByteArray complaints = started.readAllStandardError();
    if (!complaints.isEmpty())
        qInfo("The program says: %s", complaints.constData());
    if (!ended || started.exitStatus() != QProcess::NormalExit)
        return {QStringLiteral("It did not end by itself."), started.errorString()};
    QStringList said =
        QString::fromUtf8(started.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    if (started.exitCode() != m_expectedStatus)
        said += QStringLiteral("It ended with %1.").arg(started.exitCode());
    return said;
}

QStringList StartTest::FailToStart() {
    m_expectedStatus = EXIT_FAILURE;
    QStringList said = Start(Path(QStringLiteral("a/tonvik")));
    m_expectedStatus = EXIT_SUCCESS;
    return said;
}

void StartTest::FromAnyWorkingFolder_data() {
    QTest::addColumn<QString>("folder");
    QTest::newRow("the root") << QDir::rootPath();
    QTest::newRow("another's") << QDir::tempPath();
    QTest::newRow("the program's") << QString();
}

void StartTest::FromAnyWorkingFolder() {
    QFETCH(const QString, folder);
    Install(QStringLiteral("a"));
    QCOMPARE(Start(Path(QStringLiteral("a/tonvik")),
                   folder.isEmpty() ? Path(QStringLiteral("a")) : folder),
             QStringList{otherTitle});
}

void StartTest::InAnyFolder_data() {
    QTest::addColumn<QString>("folder");
    QTest::newRow("blanks") << QStringLiteral("a  b c");
    QTest::newRow("Cyrillic") << QStringLiteral("Мои аккорды");
    QTest::newRow("quotes") << QStringLiteral("it's \"mine\"");
    QTest::newRow("signs that mean something elsewhere") << QStringLiteral("100% $HOME #1 & co;");
    QTest::newRow("outside the code page") << QStringLiteral("ギター");
    QTest::newRow("deep") << QStringLiteral("x").repeated(200) + u'/' +
                                 QStringLiteral("y").repeated(200);
}

void StartTest::InAnyFolder() {
    QFETCH(const QString, folder);
    Install(folder);
    QCOMPARE(Start(Path(folder + u'/' + program)), QStringList{otherTitle});
    m_environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    QCOMPARE(Start(Path(folder + u'/' + program), QDir::rootPath()), QStringList{otherTitle});
}

void StartTest::ThroughALink_data() {
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("started");
    QTest::newRow("to the folder") << QStringLiteral("real") << QStringLiteral("link/tonvik");
    QTest::newRow("to the executable") << QStringLiteral("real/tonvik") << QStringLiteral("link");
}

void StartTest::ThroughALink() {
    QFETCH(const QString, target);
    QFETCH(const QString, started);
    Install(QStringLiteral("real"));
    QVERIFY(QFile::link(Path(target), Path(QStringLiteral("link"))));
    QCOMPARE(Start(Path(started), QDir::rootPath()), QStringList{otherTitle});
}

// Where it is started does not matter: the setting is read from, and written, beside it.
void StartTest::TheProgramFolderIsTheExecutables() {
    Install(QStringLiteral("a"));
    QVERIFY(QFile::remove(Path(QStringLiteral("a/x.lng"))));
    QVERIFY(m_folder->Write(QStringLiteral("x.lng"), "[Main]\r\n"));
    QVERIFY(m_folder->Write(QStringLiteral("tonvik.ini"), "[Settings]\r\nLanguage=x.lng\r\n"));
    QCOMPARE(Start(Path(QStringLiteral("a/tonvik")), m_folder->Path()).last(), russianTitle);
    QCOMPARE(m_folder->Bytes(QStringLiteral("a/tonvik.ini")),
             QByteArray("[Settings]\r\nLanguage=Default\r\n"));
    QCOMPARE(m_folder->Bytes(QStringLiteral("tonvik.ini")),
             QByteArray("[Settings]\r\nLanguage=x.lng\r\n"));
}

void StartTest::WithoutAHome_data() {
    QTest::addColumn<QString>("home");
    QTest::newRow("gone") << QStringLiteral("/nonexistent/home");
    QTest::newRow("unset") << QString();
}

void StartTest::WithoutAHome() {
    QFETCH(const QString, home);
    Install(QStringLiteral("a"));
    for (const auto& name : {QStringLiteral("HOME"), QStringLiteral("XDG_CONFIG_HOME"),
                             QStringLiteral("XDG_DATA_HOME"), QStringLiteral("XDG_CACHE_HOME"),
                             QStringLiteral("XDG_RUNTIME_DIR")})
        m_environment.remove(name);
    if (!home.isEmpty())
        m_environment.insert(QStringLiteral("HOME"), home);
    QCOMPARE(Start(Path(QStringLiteral("a/tonvik"))), QStringList{otherTitle});
}

void StartTest::FromAFolderThatMayNotBeWrittenInto() {
    Install(QStringLiteral("a"));
    QVERIFY(QFile::remove(Path(QStringLiteral("a/x.lng"))));
    for (const auto& name : {QString(), QStringLiteral("a"), QStringLiteral("a/tonvik")})
        QVERIFY(QFile::setPermissions(Path(name), readable));
    QStringList said;
    {
        const OrdinaryUser user;
        if (!user.Holds())
            QSKIP("Permissions keep nobody out here.");
        said = Start(Path(QStringLiteral("a/tonvik")));
    }
    for (const auto& name : {QString(), QStringLiteral("a")})
        QFile::setPermissions(Path(name), readable | QFileDevice::WriteOwner);
    QCOMPARE(said.size(), 2);
    QVERIFY(said.first().startsWith(QStringLiteral("message: Файл, указанный как языковой")));
    QCOMPARE(said.last(), russianTitle);
}

void StartTest::AMissingLanguageFileIsToldOfOnce() {
    Install(QStringLiteral("a"));
    QVERIFY(QFile::remove(Path(QStringLiteral("a/x.lng"))));
    QCOMPARE(Start(Path(QStringLiteral("a/tonvik"))).size(), 2);
    QCOMPARE(Start(Path(QStringLiteral("a/tonvik"))), QStringList{russianTitle});
}

namespace {

void DataFiles() {
    QTest::addColumn<QString>("name");
    for (const char* name : {"chords.dat", "scales.dat", "tunings.dat"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

} // namespace

void StartTest::WhatCannotBeReadEndsTheStart_data() {
    DataFiles();
}

void StartTest::WhatCannotBeReadEndsTheStart() {
    QFETCH(const QString, name);
    Install(QStringLiteral("a"));
    QVERIFY(m_folder->MakeFolder(QStringLiteral("a/") + name));
    QCOMPARE(FailToStart(),
             QStringList{QStringLiteral("message: The file “%1” cannot be read: it is a folder")
                             .arg(Path(QStringLiteral("a/") + name))});
}

void StartTest::AReportBeforeTheLanguageIsLoaded_data() {
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QString>("why");
    const QString russian = QStringLiteral("это папка");
    QTest::newRow("a language file that is there")
        << QByteArray("[Settings]\r\nLanguage=x.lng\r\n") << QStringLiteral("it is a folder");
    QTest::newRow("one that is missing")
        << QByteArray("[Settings]\r\nLanguage=y.lng\r\n") << russian;
    QTest::newRow("none") << QByteArray() << russian;
}

void StartTest::AReportBeforeTheLanguageIsLoaded() {
    QFETCH(const QByteArray, settings);
    QFETCH(const QString, why);
    Install(QStringLiteral("a"));
    QVERIFY(m_folder->Write(QStringLiteral("a/tonvik.ini"), settings));
    QVERIFY(m_folder->MakeFolder(QStringLiteral("a/chords.dat")));
    const QStringList said = FailToStart();
    QCOMPARE(said.size(), 1);
    QVERIFY2(said.first().endsWith(why), qPrintable(said.first()));
    QCOMPARE(m_folder->Bytes(QStringLiteral("a/tonvik.ini")), settings);
}

void StartTest::WhatIsNoFileEndsTheStart_data() {
    OddFiles();
}

void StartTest::WhatIsNoFileEndsTheStart() {
    QFETCH(const QString, kind);
    QFETCH(const QString, why);
    Install(QStringLiteral("a"));
    for (const auto& name : {QStringLiteral("a/chords.dat"), QStringLiteral("a/scales.dat"),
                             QStringLiteral("a/tunings.dat")}) {
        QVERIFY(MakeOddFile(kind, Path(name)));
        const QStringList said = FailToStart();
        QCOMPARE(said.size(), 1);
        QVERIFY2(said.first().endsWith(why), qPrintable(said.first()));
        QVERIFY(QFile::remove(Path(name)));
    }
}

void StartTest::WhatIsNoFileIsEmptySettings() {
    QFETCH(const QString, kind);
    Install(QStringLiteral("a"));
    QVERIFY(QFile::remove(Path(QStringLiteral("a/tonvik.ini"))));
    QVERIFY(MakeOddFile(kind, Path(QStringLiteral("a/tonvik.ini"))));
    QCOMPARE(Start(Path(QStringLiteral("a/tonvik"))), QStringList{russianTitle});
}

void StartTest::WhatIsNoFileIsALanguageWithoutTexts() {
    QFETCH(const QString, kind);
    Install(QStringLiteral("a"));
    QVERIFY(QFile::remove(Path(QStringLiteral("a/x.lng"))));
    QVERIFY(MakeOddFile(kind, Path(QStringLiteral("a/x.lng"))));
    QCOMPARE(Start(Path(QStringLiteral("a/tonvik"))), QStringList{otherTitle});
}

void StartTest::AMillionChordTypes() {
    Install(QStringLiteral("a"));
    QVERIFY(m_folder->Write(QStringLiteral("a/chords.dat"),
                            QByteArray("mine\r\nother\r\nm\r\n34\r\n").repeated(1'000'000)));
    QCOMPARE(Start(Path(QStringLiteral("a/tonvik"))), QStringList{otherTitle});
}

void StartTest::ArgumentsAreIgnored_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("of nobody") << QStringList{QStringLiteral("--help"), QStringLiteral("song.txt")};
    QTest::newRow("of the toolkit")
        << QStringList{QStringLiteral("-platform"), QStringLiteral("none"),
                       QStringLiteral("-qwindowtitle"), QStringLiteral("mine")};
}

void StartTest::ArgumentsAreIgnored() {
    QFETCH(const QStringList, arguments);
    Install(QStringLiteral("a"));
    QCOMPARE(Start(Path(QStringLiteral("a/tonvik")), {}, arguments), QStringList{otherTitle});
}

void StartTest::StartAndStay(QProcess& started) {
    m_environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"), QStringLiteral("witness:stay"));
    started.setProcessEnvironment(m_environment);
    started.start(Path(QStringLiteral("a/tonvik")), QStringList());
    while (!started.canReadLine())
        QVERIFY(started.waitForReadyRead());
    m_environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"), QStringLiteral("witness"));
}

void StartTest::EndsWell(QProcess& started) {
    started.write("close\n");
    QVERIFY(started.waitForFinished());
    QCOMPARE(started.exitStatus(), QProcess::NormalExit);
    QCOMPARE(started.exitCode(), 0);
}

void StartTest::ASecondStart() {
    Install(QStringLiteral("a"));
    QProcess first;
    StartAndStay(first);
    QCOMPARE(Start(Path(QStringLiteral("a/tonvik"))), QStringList{otherTitle});
    EndsWell(first);
}

void StartTest::AKilledProgramLeavesNoLock() {
    Install(QStringLiteral("a"));
    QProcess first;
    StartAndStay(first);
    first.kill();
    QVERIFY(first.waitForFinished());
    QCOMPARE(Start(Path(QStringLiteral("a/tonvik"))), QStringList{otherTitle});
}

// As when its disk is pulled, or it is installed anew, while it runs.
void StartTest::TheProgramFolderIsReplaced() {
    Install(QStringLiteral("a"));
    QProcess first;
    StartAndStay(first);
    QVERIFY(QDir(Path(QStringLiteral("a"))).removeRecursively());
    Install(QStringLiteral("a"));
    QCOMPARE(Start(Path(QStringLiteral("a/tonvik"))), QStringList{otherTitle});
    EndsWell(first);
}

QTEST_GUILESS_MAIN(StartTest)
#include "start_test.moc"
