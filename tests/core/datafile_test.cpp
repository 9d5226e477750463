// Files that are none, or too large: each is a file that cannot be read, at once.
#include "core/datafile.h"

#include "core/chordtypes.h"
#include "core/language.h"
#include "core/mdlmain.h"
#include "core/profile.h"
#include "core/runtimeerror.h"
#include "support/oddfiles.h"

#include <QTest>

namespace {

const QString name = QStringLiteral("odd");

} // namespace

class DataFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<TestFolder>();
        QVERIFY(m_folder->IsValid());
    }

    void WhatIsNoFileCannotBeRead_data() { OddFiles(); }
    void WhatIsNoFileCannotBeRead() {
        const QString path = MakeOdd(name);
        QVERIFY(FileExists(path));
        const FileContent content = TryToRead(path);
        QCOMPARE(content.bytes, QByteArray());
        QVERIFY(content.unreadable);
        QFETCH(const QString, why);
        QVERIFY(content.unreadable->english.endsWith(why));
        QVERIFY_THROWS_EXCEPTION(RunTimeError, ReadWholeFile(path));
        TextTable types = BuiltInChordTypes();
        QVERIFY_THROWS_EXCEPTION(RunTimeError, types.AppendDataFile(path));
        QCOMPARE(types.Count(), 50);
    }

    void AsSettingsItIsEmptyAndNeverOverwritten_data() { OddFiles(); }
    void AsSettingsItIsEmptyAndNeverOverwritten() {
        const QString path = MakeOdd(name);
        ProfileFile file = ProfileFile::Read(path);
        QCOMPARE(file.ToBytes(), QByteArray());
        file.SetValue(QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"));
        QVERIFY(file.Write(path));
        QVERIFY(TryToRead(path).unreadable);
    }

    void AsALanguageItIsListedAndLacksEveryText_data() { OddFiles(); }
    void AsALanguageItIsListedAndLacksEveryText() {
        const QString file = QStringLiteral("odd.lng");
        const LanguageTexts texts(MakeOdd(file));
        QCOMPARE(texts.DisplayName(), missingLanguageText);
        QCOMPARE(texts.Text(QStringLiteral("Main"), 1), missingLanguageText);
        QCOMPARE(LanguageFiles(m_folder->Path()), QStringList(file));
        AppState state;
        state.AppPath = m_folder->Path();
        QCOMPARE(FindLanguage(state, file), LanguageChoice::File);
    }

    void TheLargestFileIsRead() {
        QFile file(m_folder->Path(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(largestFile));
        QCOMPARE(TryToRead(file.fileName()).bytes.size(), largestFile);
        QVERIFY(file.resize(largestFile + 1));
        QVERIFY(TryToRead(file.fileName()).unreadable);
    }

    void ALinkToAFileStillToBeMadeIsAMissingFile() {
        const QString target = QStringLiteral("real.ini");
        const QString path = m_folder->Path(QStringLiteral("link.lng"));
        QVERIFY(QFile::link(m_folder->Path(target), path));
        QVERIFY(!FileExists(path));
        TextTable types = BuiltInChordTypes();
        types.AppendDataFile(path);
        QCOMPARE(types.Count(), 50);
        QCOMPARE(LanguageFiles(m_folder->Path()), QStringList());
        WriteIni(path, QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"));
        QCOMPARE(m_folder->Bytes(target), QByteArray("[A]\r\nB=C\r\n"));
        QVERIFY(QFileInfo(path).isSymLink());
    }

private:
    // The path of what the row of the test asks for.
    QString MakeOdd(const QString& file) const {
        QFETCH(const QString, kind);
        if (!MakeOddFile(kind, m_folder->Path(file)))
            qFatal("cannot make the test's file");
        return m_folder->Path(file);
    }

    std::unique_ptr<TestFolder> m_folder;
};

QTEST_APPLESS_MAIN(DataFileTest)
#include "datafile_test.moc"
