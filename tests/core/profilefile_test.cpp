// Profile files on disk: what cannot be read, what cannot be written, what is replaced.
#include "core/profile.h"

#include "support/testfolder.h"

#include <QTest>

namespace {

const QString name = QStringLiteral("tonvik.ini");
const QString section = QStringLiteral("Settings");
const QString key = QStringLiteral("User");
const QString absent = QStringLiteral("(absent)");

// Whether this user is kept out by permissions at all: the system's administrator is not.
bool Readable(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly);
}

} // namespace

class ProfileFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AMissingFileGivesTheDefaultAndIsNotCreated() {
        const TestFolder folder;
        QVERIFY(folder.IsValid());
        QCOMPARE(ReadIni(folder.Path(name), section, key, absent), absent);
        QCOMPARE(folder.Names(), QStringList());
    }

    void WritingCreatesTheFile() {
        const TestFolder folder;
        WriteIni(folder.Path(name), section, key, QStringLiteral("3"));
        QCOMPARE(folder.Bytes(name), QByteArray("[Settings]\r\nUser=3\r\n"));
        QCOMPARE(ReadIni(folder.Path(name), section, key, absent), QStringLiteral("3"));
    }

    void WritingReplacesTheFileWholeAndLeavesNothingBeside() {
        const TestFolder folder;
        QVERIFY(folder.Write(name, "; mine\n[Settings]\r\nUser=2\r\nX=\xCB\xE0\xE4"));
        WriteIni(folder.Path(name), section, key, QStringLiteral("1"));
        QCOMPARE(folder.Bytes(name), QByteArray("; mine\n[Settings]\r\nUser=1\r\nX=\xCB\xE0\xE4"));
        QCOMPARE(folder.Names(), QStringList{name});
    }

    void AReaderKeepsTheOldFileWhileItIsReplaced() {
        const TestFolder folder;
        const QByteArray before("[Settings]\r\nUser=2\r\n");
        QVERIFY(folder.Write(name, before));
        QFile reader(folder.Path(name));
        QVERIFY(reader.open(QIODevice::ReadOnly));
#ifdef Q_OS_WIN
        QSKIP("An open file cannot be replaced on this system.");
#endif
        WriteIni(folder.Path(name), section, key, QStringLiteral("1"));
        QCOMPARE(reader.readAll(), before);
    }

    void AFolderInItsPlaceIsEmptyAndStays() {
        const TestFolder folder;
        QVERIFY(folder.MakeFolder(name));
        QCOMPARE(ReadIni(folder.Path(name), section, key, absent), absent);
        WriteIni(folder.Path(name), section, key, QStringLiteral("1"));
        QVERIFY(ProfileFile().Write(folder.Path(name)));
        QVERIFY(QFileInfo(folder.Path(name)).isDir());
        QCOMPARE(folder.Names(), QStringList{name});
    }

    void AnUnreadableFileIsNotOverwritten() {
        const TestFolder folder;
        const QByteArray before("[Settings]\r\nUser=2\r\n");
        QVERIFY(folder.Write(name, before));
        QFile::setPermissions(folder.Path(name), QFileDevice::WriteOwner);
        if (Readable(folder.Path(name)))
            QSKIP("This user may read every file.");
        QCOMPARE(ReadIni(folder.Path(name), section, key, absent), absent);
        WriteIni(folder.Path(name), section, key, QStringLiteral("1"));
        QFile::setPermissions(folder.Path(name), QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        QCOMPARE(folder.Bytes(name), before);
    }

    void WhatWasReadFromAFolderIsWrittenNowhere() {
        const TestFolder folder;
        QVERIFY(folder.MakeFolder(name));
        ProfileFile file = ProfileFile::Read(folder.Path(name));
        file.SetValue(section, key, QStringLiteral("1"));
        QVERIFY(file.Write(folder.Path(QStringLiteral("other.ini"))));
        QCOMPARE(folder.Names(), QStringList{name});
    }

    void AFolderThatIsMissingFailsInSilence() {
        const TestFolder folder;
        const QString path = folder.Path(QStringLiteral("none/tonvik.ini"));
        WriteIni(path, section, key, QStringLiteral("1"));
        QVERIFY(ProfileFile().Write(path));
        QCOMPARE(folder.Names(), QStringList());
    }
};

QTEST_APPLESS_MAIN(ProfileFileTest)
#include "profilefile_test.moc"
