// Which language is chosen, which there are, and what a file gives for a key.
#include "core/language.h"

#include "core/codepage.h"
#include "core/mdlmain.h"
#include "core/settings.h"
#include "support/testfolder.h"

#include <QTest>

namespace {

const QString settings = QStringLiteral("tonvik.ini");
const QString greek = QStringLiteral("greek.lng");

// The language that the settings file names.
QString Chosen(const AppState& state) {
    return ReadSettings(ProfileFile::Read(state.SettingsFile())).Language();
}

} // namespace

class LanguageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void WithoutASettingTheTextsAreBuiltIn_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("no settings file") << QByteArray();
        QTest::newRow("no such key") << QByteArray("[Settings]\r\nUser=1\r\n");
        QTest::newRow("Default") << QByteArray("[Settings]\r\nLanguage=Default\r\n");
    }
    void WithoutASettingTheTextsAreBuiltIn() {
        QFETCH(const QByteArray, bytes);
        const TestFolder folder;
        QVERIFY(folder.IsValid());
        // Were a file looked for, these two would be found.
        QVERIFY(folder.Write(QStringLiteral("Default"), "[Init]\r\nLang=X\r\n"));
        QVERIFY(folder.Write(QStringLiteral("Default.lng"), "[Init]\r\nLang=X\r\n"));
        if (!bytes.isNull())
            QVERIFY(folder.Write(settings, bytes));
        const QStringList names = folder.Names();
        AppState state;
        state.AppPath = folder.Path();
        state.LanguageFile = greek;
        QCOMPARE(ChooseLanguage(state, Chosen(state)), LanguageChoice::BuiltIn);
        QCOMPARE(state.LanguageFile, QStringLiteral("Default"));
        QVERIFY(state.IsDefaultLanguage());
        QCOMPARE(state.InterfaceTongue(), Tongue::Russian);
        QCOMPARE(folder.Bytes(settings), bytes);
        QCOMPARE(folder.Names(), names);
    }

    void AFileThatIsThereIsUsed() {
        const TestFolder folder;
        const QByteArray bytes("[Settings]\r\nLanguage=greek.lng\r\n");
        QVERIFY(folder.Write(settings, bytes));
        QVERIFY(folder.Write(greek, "[Init]\r\nLang=Greek\r\n"));
        AppState state;
        state.AppPath = folder.Path();
        QCOMPARE(ChooseLanguage(state, Chosen(state)), LanguageChoice::File);
        QCOMPARE(state.LanguageFile, folder.Path() + greek);
        QCOMPARE(state.InterfaceTongue(), Tongue::English);
        QCOMPARE(folder.Bytes(settings), bytes);
    }

    void AFileThatIsMissingIsReportedOnce_data() {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("no file of the name") << QByteArray("greek.lng");
        QTest::newRow("a folder bears the name") << QByteArray("folder.lng");
        QTest::newRow("an empty name") << QByteArray();
    }
    void AFileThatIsMissingIsReportedOnce() {
        QFETCH(const QByteArray, name);
        const TestFolder folder;
        QVERIFY(folder.MakeFolder(QStringLiteral("folder.lng")));
        QVERIFY(folder.Write(settings, "; mine\r\n[Settings]\r\nLanguage=" + name +
                                           "\r\nUser=3\r\n[Strings]\r\n1S=D\r\n"));
        AppState state;
        state.AppPath = folder.Path();
        const QByteArray before = folder.Bytes(settings);
        QCOMPARE(ChooseLanguage(state, Chosen(state)), LanguageChoice::FileMissing);
        QCOMPARE(state.LanguageFile, QStringLiteral("Default"));
        QCOMPARE(folder.Bytes(settings), before); // First it is told, then forgotten.
        ForgetLanguage(state);
        QCOMPARE(folder.Bytes(settings),
                 QByteArray("; mine\r\n[Settings]\r\nLanguage=Default\r\nUser=3\r\n[Strings]\r\n"
                            "1S=D\r\n"));
        QCOMPARE(ChooseLanguage(state, Chosen(state)), LanguageChoice::BuiltIn);
    }

    void ANumberedKeyGivesItsText_data() {
        QTest::addColumn<QString>("section");
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("text");
        const QString missing = QStringLiteral("LANG FILE ERROR!");
        QTest::newRow("a key") << QStringLiteral("Main") << 4 << QStringLiteral("Лад ї ў ћ:");
        QTest::newRow("a key of two digits")
            << QStringLiteral("Main") << 14 << QStringLiteral("fret");
        QTest::newRow("an empty text is a text") << QStringLiteral("Main") << 5 << QString();
        QTest::newRow("a text is cut to 255 characters")
            << QStringLiteral("Main") << 6 << QString(255, u'x');
        QTest::newRow("a missing key") << QStringLiteral("Main") << 1 << missing;
        QTest::newRow("a missing section") << QStringLiteral("Help") << 4 << missing;
    }
    void ANumberedKeyGivesItsText() {
        QFETCH(const QString, section);
        QFETCH(const int, key);
        QFETCH(const QString, text);
        const TestFolder folder;
        const QByteArray bytes = ToAnsi(QStringLiteral("[Main]\r\n14=fret\r\n4=Лад ї ў ћ:\r\n"));
        QVERIFY(folder.Write(greek, bytes + "5=\r\n6=" + QByteArray(300, 'x')));
        const LanguageTexts texts(folder.Path(greek));
        QCOMPARE(texts.Text(section, key), text);
        QCOMPARE(texts.DisplayName(), QStringLiteral("LANG FILE ERROR!"));
    }

    void TheDisplayNameIsTheLanguagesOwn() {
        const TestFolder folder;
        QVERIFY(folder.Write(greek, ToAnsi(QStringLiteral("[Init]\r\nLang=Українська\r\n"))));
        QCOMPARE(LanguageTexts(folder.Path(greek)).DisplayName(), QStringLiteral("Українська"));
    }

    void AFileThatCannotBeReadLacksEveryKey() {
        const TestFolder folder;
        QVERIFY(folder.MakeFolder(greek));
        for (const QString& name : {greek, QStringLiteral("none.lng")}) {
            const LanguageTexts texts(folder.Path(name));
            QCOMPARE(texts.Text(QStringLiteral("Main"), 14), missingLanguageText);
            QCOMPARE(texts.DisplayName(), missingLanguageText);
        }
    }

    void LanguageFilesAreListedByName() {
        const TestFolder folder;
        QCOMPARE(LanguageFiles(folder.Path()), QStringList());
        for (const char* name : {"polish.lng", "czech.LNG", "english.Lng", "a.lng.txt", "lng",
                                 "greek.lngx", "help.dat"})
            QVERIFY(folder.Write(QString::fromLatin1(name), "[Init]\r\n"));
        QVERIFY(folder.MakeFolder(QStringLiteral("folder.lng")));
        const QStringList expected{QStringLiteral("czech.LNG"), QStringLiteral("english.Lng"),
                                   QStringLiteral("polish.lng")};
        QCOMPARE(LanguageFiles(folder.Path()), expected);
        QCOMPARE(LanguageFiles(folder.Path()), expected);
    }

    void TheBuiltInMessagesAreRussian() {
        const UiTexts texts = BuiltInUiTexts();
        QCOMPARE(texts.NoSuchChordType,
                 QStringLiteral("Такого типа аккорда нет в базе данных программы."));
        QCOMPARE(texts.StructureExists,
                 QStringLiteral("Аккорд с таким строением уже есть в списке. Добавлять?"));
        QCOMPARE(texts.AltNamesLabel, QStringLiteral("Альтернативные обозначения:"));
        QCOMPARE(texts.Attention, QStringLiteral("Внимание!"));
    }
};

QTEST_APPLESS_MAIN(LanguageTest)
#include "language_test.moc"
