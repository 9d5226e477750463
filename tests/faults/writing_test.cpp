// Files that cannot be written: the old one stays, nothing is left beside it, and the reason
// is told in the language of the interface.
#include "contents.h"
#include "core/datafile.h"
#include "core/runtimeerror.h"
#include "hostilesystem.h"
#include "support/testfolder.h"

#include <QTest>

namespace {

const QString file = QStringLiteral("tonvik.ini");
const QByteArray before("[Settings]\r\nUser=2\r\n");

bool Says(const std::optional<Phrase>& failure, const QString& russian, const QString& english) {
    return failure && failure->russian.contains(russian) && failure->english.contains(english);
}

} // namespace

class WritingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<TestFolder>();
        QVERIFY(m_folder->IsValid());
        QVERIFY(m_folder->Write(file, before));
    }

    void AFullDisk_data() {
        QTest::addColumn<uint>("room");
        QTest::addColumn<qsizetype>("size");
        constexpr qsizetype large = 20'000;
        constexpr qsizetype small = 1000; // Less than what is written at a time.
        QTest::newRow("no room at all") << 0U << large;
        QTest::newRow("room for the first part") << 4096U << large;
        QTest::newRow("room for all but a byte") << 20'000U - 1 << large;
        QTest::newRow("no room for a small file") << 0U << small;
        QTest::newRow("room for a part of a small file") << 100U << small;
    }
    void AFullDisk() {
        QFETCH(const uint, room);
        QFETCH(const qsizetype, size);
        std::optional<Phrase> failure;
        {
            const LittleRoom little(room);
            if (!little.Holds())
                QSKIP("The size of a file cannot be limited here.");
            failure = ReplaceFile(m_folder->Path(file), QByteArray(size, 'x'));
        }
        QVERIFY(Says(failure, QStringLiteral("Не удаётся записать файл"),
                     QStringLiteral("cannot be written")));
        QVERIFY(Says(failure, file, file));
        OldFileAlone();
        QCOMPARE(ReplaceFile(m_folder->Path(file), "x"), std::nullopt);
        QCOMPARE(m_folder->Bytes(file), QByteArray("x"));
    }

    void ASheetOnAFullDisk() {
        {
            const LittleRoom little(4096);
            if (!little.Holds())
                QSKIP("The size of a file cannot be limited here.");
            QVERIFY_THROWS_EXCEPTION(RunTimeError,
                                     WriteDiagrams(m_folder->Path(file), Content::New));
        }
        OldFileAlone();
    }

    void AFullDiskIsNamed() {
        QVERIFY(m_folder->MakeFolder(QStringLiteral("disk")));
        const SmallDisk disk(m_folder->Path(QStringLiteral("disk")));
        if (!disk.Holds())
            QSKIP("Only the administrator can attach a disk.");
        const QString path = m_folder->Path(QStringLiteral("disk/") + file);
        QVERIFY(m_folder->Write(QStringLiteral("disk/") + file, before));
        QVERIFY(m_folder->Write(QStringLiteral("disk/other"), QByteArray(50'000, 'x')));
        QVERIFY(Says(ReplaceFile(path, QByteArray(20'000, 'x')),
                     QStringLiteral("места хватило только"), QStringLiteral("a part of it")));
        QVERIFY(!m_folder->Write(QStringLiteral("disk/more"), QByteArray(50'000, 'x')));
        QVERIFY(Says(ReplaceFile(path, QByteArray(20'000, 'x')),
                     QStringLiteral("на диске нет места"), QStringLiteral("the disk is full")));
        QCOMPARE(m_folder->Bytes(QStringLiteral("disk/") + file), before);
    }

    void AFolderThatMayNotBeWrittenInto() {
        QFile::setPermissions(m_folder->Path(), readable);
        {
            const OrdinaryUser user;
            if (!user.Holds())
                QSKIP("Permissions keep nobody out here.");
            QVERIFY(Says(ReplaceFile(m_folder->Path(file), "x"), QStringLiteral("не разрешена"),
                         QStringLiteral("not permitted")));
            QVERIFY(Says(ReplaceFile(m_folder->Path(QStringLiteral("new")), "x"),
                         QStringLiteral("не разрешена"), QStringLiteral("not permitted")));
            WriteIni(m_folder->Path(file), QStringLiteral("Settings"), QStringLiteral("User"),
                     QStringLiteral("1")); // In silence.
        }
        QFile::setPermissions(m_folder->Path(), readable | QFileDevice::WriteOwner);
        OldFileAlone();
    }

    // The folder takes no other file, the file itself may be written.
    void AWritableFileIsWrittenInPlace_data() {
        QTest::addColumn<qsizetype>("size");
        QTest::newRow("shorter") << qsizetype{3};
        QTest::newRow("longer") << qsizetype{20'000};
        QTest::newRow("nothing") << qsizetype{0};
    }
    void AWritableFileIsWrittenInPlace() {
        QFETCH(const qsizetype, size);
        OpenToAll();
        {
            const OrdinaryUser user;
            if (!user.Holds())
                QSKIP("Permissions keep nobody out here.");
            QCOMPARE(ReplaceFile(m_folder->Path(file), QByteArray(size, 'x')), std::nullopt);
        }
        QFile::setPermissions(m_folder->Path(), readable | QFileDevice::WriteOwner);
        QCOMPARE(m_folder->Bytes(file), QByteArray(size, 'x'));
        QCOMPARE(m_folder->Names(), QStringList{file});
    }

    void AFullDiskUnderAFileWrittenInPlace_data() {
        QTest::addColumn<qsizetype>("size");
        QTest::newRow("a large file") << qsizetype{20'000};
        QTest::newRow("a small file") << qsizetype{1000};
    }
    void AFullDiskUnderAFileWrittenInPlace() {
        QFETCH(const qsizetype, size);
        OpenToAll();
        std::optional<Phrase> failure;
        {
            const OrdinaryUser user;
            const LittleRoom little(100);
            if (!user.Holds() || !little.Holds())
                QSKIP("Nobody is kept out here.");
            failure = ReplaceFile(m_folder->Path(file), QByteArray(size, 'x'));
        }
        QVERIFY(Says(failure, file, file));
        QFile::setPermissions(m_folder->Path(), readable | QFileDevice::WriteOwner);
        OldFileAlone();
    }

    void AFileThatMayNotBeRead() {
        QFile::setPermissions(m_folder->Path(), readable);
        QFile::setPermissions(m_folder->Path(file), QFileDevice::WriteOwner);
        {
            const OrdinaryUser user;
            if (!user.Holds())
                QSKIP("Permissions keep nobody out here.");
            ProfileFile settings = ProfileFile::Read(m_folder->Path(file));
            settings.SetValue(QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"));
            QVERIFY(Says(settings.Write(m_folder->Path(file)), QStringLiteral("читать"),
                         QStringLiteral("read")));
            QVERIFY_THROWS_EXCEPTION(RunTimeError, ReadSheet(m_folder->Path(file)));
        }
        QFile::setPermissions(m_folder->Path(), readable | QFileDevice::WriteOwner);
        QFile::setPermissions(m_folder->Path(file), readable);
        OldFileAlone();
    }

    void AFolderInTheFilesPlace() {
        const QString folder = QStringLiteral("folder");
        QVERIFY(m_folder->MakeFolder(folder));
        QVERIFY(Says(ReplaceFile(m_folder->Path(folder), "x"), QStringLiteral("это папка"),
                     QStringLiteral("it is a folder")));
        QVERIFY(QFileInfo(m_folder->Path(folder)).isDir());
    }

    void AFolderThatIsNotThere() {
        QVERIFY(Says(ReplaceFile(m_folder->Path(QStringLiteral("gone/new.txt")), "x"),
                     QStringLiteral("нет папки"), QStringLiteral("no folder")));
        QVERIFY(Says(ReplaceFile(m_folder->Path(file + QStringLiteral("/new.txt")), "x"),
                     QStringLiteral("нет папки"), QStringLiteral("no folder")));
        OldFileAlone();
    }

    // Somebody keeps the settings elsewhere, with others of the kind.
    void ALinkStaysALink_data() {
        QTest::addColumn<QStringList>("links");
        QTest::newRow("to the file") << QStringList{file};
        QTest::newRow("to a link to the file") << QStringList{QStringLiteral("link"), file};
        QTest::newRow("to a file still to be made") << QStringList{QStringLiteral("none")};
    }
    void ALinkStaysALink() {
        QFETCH(QStringList, links);
        QString target = links.takeLast();
        const QString last = target;
        links.prepend(QStringLiteral("first"));
        while (!links.isEmpty()) {
            QVERIFY(QFile::link(m_folder->Path(target), m_folder->Path(links.last())));
            target = links.takeLast();
        }
        QCOMPARE(ReplaceFile(m_folder->Path(target), "x"), std::nullopt);
        QVERIFY(QFileInfo(m_folder->Path(target)).isSymLink());
        QVERIFY(!QFileInfo(m_folder->Path(last)).isSymLink());
        QCOMPARE(m_folder->Bytes(last), QByteArray("x"));
    }

    void ALinkThatLeadsNowhere() {
        const QString link = QStringLiteral("link");
        QVERIFY(QFile::link(m_folder->Path(QStringLiteral("gone/none")), m_folder->Path(link)));
        QVERIFY(Says(ReplaceFile(m_folder->Path(link), "x"), QStringLiteral("нет папки"),
                     QStringLiteral("no folder")));
        QVERIFY(QFileInfo(m_folder->Path(link)).isSymLink());
    }

private:
    static constexpr QFileDevice::Permissions readable =
        QFileDevice::ReadOwner | QFileDevice::ExeOwner | QFileDevice::ReadGroup |
        QFileDevice::ExeGroup | QFileDevice::ReadOther | QFileDevice::ExeOther;

    void OpenToAll() {
        QVERIFY(QFile::setPermissions(m_folder->Path(file),
                                      QFileDevice::ReadOther | QFileDevice::WriteOther |
                                          QFileDevice::ReadGroup | QFileDevice::WriteGroup |
                                          QFileDevice::ReadOwner | QFileDevice::WriteOwner));
        QVERIFY(QFile::setPermissions(m_folder->Path(), readable));
    }

    void OldFileAlone() {
        QCOMPARE(m_folder->Bytes(file), before);
        QCOMPARE(m_folder->Names(), QStringList{file});
    }

    std::unique_ptr<TestFolder> m_folder;
};

QTEST_GUILESS_MAIN(WritingTest)
#include "writing_test.moc"
