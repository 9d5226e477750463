// The strings and their order as the settings file has them.
#include "core/settings.h"

#include "core/codepage.h"
#include "core/profile.h"
#include "support/testfolder.h"

#include <QTest>

namespace {

const QString name = QStringLiteral("tonvik.ini");
const SixTexts thinFirst{QStringLiteral("E"), QStringLiteral("B"), QStringLiteral("G"),
                         QStringLiteral("D"), QStringLiteral("A"), QStringLiteral("E")};
const SixTexts numbersThinFirst{QStringLiteral("20"), QStringLiteral("25"), QStringLiteral("29"),
                                QStringLiteral("34"), QStringLiteral("39"), QStringLiteral("44")};

SixTexts Reversed(const SixTexts& texts) {
    SixTexts reversed;
    std::reverse_copy(texts.begin(), texts.end(), reversed.begin());
    return reversed;
}

} // namespace

class SettingsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void DefaultsAreUsedAndNothingIsWritten_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("the file is empty") << QByteArray("");
        QTest::newRow("sections are missing") << QByteArray("[Other]\r\nUser=1\r\n1S=C\r\n");
        QTest::newRow("keys are missing")
            << QByteArray("[Settings]\r\nUserN=1\r\n[Strings]\r\n7S=C\r\n");
        QTest::newRow("the file is missing") << QByteArray();
    }
    void DefaultsAreUsedAndNothingIsWritten() {
        QFETCH(const QByteArray, bytes);
        const TestFolder folder;
        QVERIFY(folder.IsValid());
        if (!bytes.isNull())
            QVERIFY(folder.Write(name, bytes));
        const QStringList names = folder.Names();
        AppState state;
        state.AppPath = folder.Path();
        state.ThinStringAtBottom = false;
        UseSettings(state, ReadSettings(ProfileFile::Read(state.SettingsFile())));
        QVERIFY(state.ThinStringAtBottom);
        QCOMPARE(state.StringNotes, thinFirst);
        QCOMPARE(state.SoundNumbers, numbersThinFirst);
        QCOMPARE(folder.Bytes(name), bytes);
        QCOMPARE(folder.Names(), names);
    }

    void UserGivesTheOrderOfTheStrings_data() {
        QTest::addColumn<QString>("user");
        QTest::addColumn<bool>("thinAtBottom");
        QTest::newRow("1: thin at the top") << QStringLiteral("1") << false;
        QTest::newRow("2: thin at the bottom") << QStringLiteral("2") << true;
        QTest::newRow("3: as 1") << QStringLiteral("3") << false;
        QTest::newRow("4: thin at the bottom") << QStringLiteral("4") << true;
        QTest::newRow("7: as 1") << QStringLiteral("7") << false;
        QTest::newRow("empty: as 1") << QString() << false;
        QTest::newRow("02 is not 2") << QStringLiteral("02") << false;
        QTest::newRow("22 is not 2") << QStringLiteral("22") << false;
    }
    void UserGivesTheOrderOfTheStrings() {
        QFETCH(const QString, user);
        QFETCH(const bool, thinAtBottom);
        const TestFolder folder;
        QVERIFY(folder.Write(name, "[Settings]\r\nUser=" + ToAnsi(user) + "\r\n"));
        AppState state;
        state.AppPath = folder.Path();
        UseSettings(state, ReadSettings(ProfileFile::Read(state.SettingsFile())));
        QCOMPARE(state.ThinStringAtBottom, thinAtBottom);
        QCOMPARE(state.StringNotes, thinAtBottom ? thinFirst : Reversed(thinFirst));
        QCOMPARE(state.SoundNumbers, thinAtBottom ? numbersThinFirst : Reversed(numbersThinFirst));
    }

    void AKeyThatIsMissingAloneTakesItsDefault() {
        const auto file = ProfileFile::FromBytes("[Strings]\r\n6S=D\r\n6K=46\r\n2K=24\r\n");
        const OpenStrings strings = ReadSettings(file).strings;
        QCOMPARE(strings.notes,
                 (SixTexts{QStringLiteral("E"), QStringLiteral("B"), QStringLiteral("G"),
                           QStringLiteral("D"), QStringLiteral("A"), QStringLiteral("D")}));
        QCOMPARE(strings.soundNumbers,
                 (SixTexts{QStringLiteral("20"), QStringLiteral("24"), QStringLiteral("29"),
                           QStringLiteral("34"), QStringLiteral("39"), QStringLiteral("46")}));
    }

    void ValuesAreNotChecked() {
        const QByteArray longNote(300, 'x');
        const auto file = ProfileFile::FromBytes(
            "[Strings]\r\n1S=H\r\n1K=loud\r\n2S=\r\n3S=" + longNote + "\r\n");
        const OpenStrings strings = ReadSettings(file).strings;
        QCOMPARE(strings.notes[0], QStringLiteral("H"));
        QCOMPARE(strings.soundNumbers[0], QStringLiteral("loud"));
        QCOMPARE(strings.notes[1], QString());
        QCOMPARE(strings.notes[2], QString(255, u'x'));
    }

    void WhatIsWrittenIsReadBack() {
        Settings settings;
        settings.layout = StringLayout::UserThinAtTop;
        settings.tuningRow = QStringLiteral("7");
        settings.strings = {{QStringLiteral("D"), QStringLiteral("A"), QStringLiteral("F#"),
                             QStringLiteral("D"), QStringLiteral("A"), QStringLiteral("D")},
                            {QStringLiteral("22"), QStringLiteral("27"), QStringLiteral("30"),
                             QStringLiteral("34"), QStringLiteral("39"), QStringLiteral("46")}};
        settings.language = QStringLiteral("x.lng");
        settings.leftHanded = true;
        settings.scheme = SchemeChoice::Dark;
        ProfileFile file;
        WriteSettings(file, settings);
        QCOMPARE(
            file.ToBytes(),
            QByteArray("[Settings]\r\nUser=3\r\nUserN=7\r\nLanguage=x.lng\r\nLeftHanded=1\r\n"
                       "Scheme=2\r\n[Strings]\r\n1S=D\r\n2S=A\r\n3S=F#\r\n4S=D\r\n5S=A\r\n6S=D\r\n"
                       "1K=22\r\n2K=27\r\n3K=30\r\n4K=34\r\n5K=39\r\n6K=46\r\n"));
        const Settings read = ReadSettings(file);
        QCOMPARE(read.layout, settings.layout);
        QCOMPARE(read.tuningRow, settings.tuningRow);
        QCOMPARE(read.strings.notes, settings.strings.notes);
        QCOMPARE(read.strings.soundNumbers, settings.strings.soundNumbers);
        QCOMPARE(read.language, settings.language);
        QVERIFY(read.leftHanded);
        QCOMPARE(read.scheme, settings.scheme);
    }

    void AStandardTuningKeepsTheRowOfTheList() {
        ProfileFile file = ProfileFile::FromBytes("[Settings]\r\nUserN=9\r\n");
        WriteSettings(file, {});
        QVERIFY(file.ToBytes().startsWith("[Settings]\r\nUserN=9\r\nUser=2\r\n[Strings]"));
    }

    void TheRowOfTheListIsTheFourthUnlessItIsSaid() {
        QCOMPARE(ReadSettings(ProfileFile()).tuningRow, QStringLiteral("3"));
    }

    void ALanguageThatIsNotSaidIsNotWritten() {
        ProfileFile file;
        QVERIFY(!ReadSettings(file).language);
        QCOMPARE(ReadSettings(file).Language(), defaultLanguage);
        WriteSettings(file, ReadSettings(file));
        QVERIFY(!file.ToBytes().contains("Language"));
    }

    void TheLeftHandedNeckIsWrittenWhereItIsNotAtItsDefault_data() {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<bool>("leftHanded");
        QTest::addColumn<QByteArray>("after"); // Behind the user's layout.
        const QByteArray silent("[Settings]\r\nUser=2\r\n");
        QTest::newRow("off and not there") << silent << false << QByteArray("[Strings]");
        QTest::newRow("on and not there") << silent << true << QByteArray("LeftHanded=1");
        QTest::newRow("off and there")
            << QByteArray(silent + "LeftHanded=1\r\n") << false << QByteArray("LeftHanded=0");
    }
    void TheLeftHandedNeckIsWrittenWhereItIsNotAtItsDefault() {
        QFETCH(const QByteArray, before);
        QFETCH(const bool, leftHanded);
        QFETCH(const QByteArray, after);
        ProfileFile file = ProfileFile::FromBytes(before);
        Settings settings = ReadSettings(file);
        settings.leftHanded = leftHanded;
        WriteSettings(file, settings);
        QCOMPARE(file.ToBytes().split('\n')[2].trimmed(), after);
    }

    void OnlyOneSwitchesTheLeftHandedNeckOn() {
        for (const char* value : {"0", "", "2", "11", "yes"})
            QVERIFY(!ReadSettings(
                         ProfileFile::FromBytes(QByteArray("[Settings]\r\nLeftHanded=") + value))
                         .leftHanded);
    }

    void AnySchemeButOneAndTwoIsThatOfTheDesktop_data() {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<int>("scheme");
        QTest::newRow("as the desktop") << QByteArray("0") << 0;
        QTest::newRow("light") << QByteArray("1") << 1;
        QTest::newRow("dark") << QByteArray("2") << 2;
        QTest::newRow("a number too high") << QByteArray("3") << 0;
        QTest::newRow("no number") << QByteArray("dark") << 0;
        QTest::newRow("nothing") << QByteArray() << 0;
    }
    void AnySchemeButOneAndTwoIsThatOfTheDesktop() {
        QFETCH(const QByteArray, value);
        QFETCH(const int, scheme);
        const auto file = ProfileFile::FromBytes("[Settings]\r\nScheme=" + value);
        QCOMPARE(static_cast<int>(ReadSettings(file).scheme), scheme);
    }

    void TheSchemeOfTheDesktopIsWrittenOnlyOverAnother() {
        ProfileFile silent;
        WriteSettings(silent, {});
        QVERIFY(!silent.ToBytes().contains("Scheme"));
        ProfileFile dark = ProfileFile::FromBytes("[Settings]\r\nScheme=2\r\n");
        WriteSettings(dark, {});
        QVERIFY(dark.ToBytes().contains("Scheme=0"));
    }

    void NamesThatTheFileWouldChangeAreNotRemembered_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("can");
        QTest::newRow("Latin letters") << QStringLiteral("a b.lng") << true;
        QTest::newRow("letters of the code page") << QStringLiteral("українська.lng") << true;
        QTest::newRow("letters beyond it") << QStringLiteral("español.lng") << false;
        QTest::newRow("blanks around it") << QStringLiteral(" x.lng") << false;
        QTest::newRow("a line break") << QStringLiteral("a\nb.lng") << false;
    }
    void NamesThatTheFileWouldChangeAreNotRemembered() {
        QFETCH(const QString, name);
        QFETCH(const bool, can);
        QCOMPARE(CanBeRemembered(name), can);
    }
};

QTEST_APPLESS_MAIN(SettingsTest)
#include "settings_test.moc"
