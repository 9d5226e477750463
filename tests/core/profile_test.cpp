// What a profile file says and what becomes of its lines: no file is touched here.
#include "core/profile.h"

#include "core/codepage.h"

#include <QTest>

namespace {

const QString section = QStringLiteral("Settings");
const QString key = QStringLiteral("User");
const QString absent = QStringLiteral("(absent)");

} // namespace

class ProfileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Value_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("value");
        const auto row = [](const char* rule, const QString& text, const QString& value) {
            QTest::newRow(rule) << text << value;
        };
        row("a key of its section", QStringLiteral("[Settings]\r\nUser=3\r\n"),
            QStringLiteral("3"));
        row("an empty file", QString(), absent);
        row("a section missing", QStringLiteral("[Strings]\r\nUser=3\r\n"), absent);
        row("a key missing", QStringLiteral("[Settings]\r\nUserN=3\r\n"), absent);
        row("a key of the next section", QStringLiteral("[Settings]\r\n[Strings]\r\nUser=3\r\n"),
            absent);
        row("a key before any section", QStringLiteral("User=3\r\n[Settings]\r\n"), absent);
        row("an empty value is there", QStringLiteral("[Settings]\r\nUser=\r\n"), QString());
        row("no line end after the last line", QStringLiteral("[Settings]\r\nUser=3"),
            QStringLiteral("3"));
        row("LF ends a line", QStringLiteral("[Settings]\nUser=3\nUserN=4\n"), QStringLiteral("3"));
        row("CR ends a line", QStringLiteral("[Settings]\rUser=3\rUserN=4\r"), QStringLiteral("3"));
        row("mixed line ends", QStringLiteral("[Settings]\rA=1\nUser=3\r\nUserN=4"),
            QStringLiteral("3"));
        row("section names disregard case", QStringLiteral("[sETTINGS]\r\nUser=3\r\n"),
            QStringLiteral("3"));
        row("key names disregard case", QStringLiteral("[Settings]\r\nuSER=3\r\n"),
            QStringLiteral("3"));
        row("the first section of a name counts",
            QStringLiteral("[Settings]\r\nUser=3\r\n[Settings]\r\nUser=4\r\n"),
            QStringLiteral("3"));
        row("the second section of a name is not searched",
            QStringLiteral("[Settings]\r\n[settings]\r\nUser=4\r\n"), absent);
        row("the first key of a name counts", QStringLiteral("[Settings]\r\nuser=3\r\nUser=4\r\n"),
            QStringLiteral("3"));
        row("blanks around section, key and value",
            QStringLiteral("  [Settings]  \r\n\t User \t=  3 \t\r\n"), QStringLiteral("3"));
        row("blanks within a value stay", QStringLiteral("[Settings]\r\nUser= a  b \r\n"),
            QStringLiteral("a  b"));
        row("quotes are taken off", QStringLiteral("[Settings]\r\nUser=\"3\"\r\n"),
            QStringLiteral("3"));
        row("single quotes are taken off", QStringLiteral("[Settings]\r\nUser='3'\r\n"),
            QStringLiteral("3"));
        row("quotes keep blanks", QStringLiteral("[Settings]\r\nUser= \" 3 \" \r\n"),
            QStringLiteral(" 3 "));
        row("one pair of quotes only", QStringLiteral("[Settings]\r\nUser=\"\"3\"\"\r\n"),
            QStringLiteral("\"3\""));
        row("unlike quotes stay", QStringLiteral("[Settings]\r\nUser=\"3'\r\n"),
            QStringLiteral("\"3'"));
        row("a lone quote stays", QStringLiteral("[Settings]\r\nUser=\"\r\n"),
            QStringLiteral("\""));
        row("empty quotes", QStringLiteral("[Settings]\r\nUser=\"\"\r\n"), QString());
        row("the first equals sign divides", QStringLiteral("[Settings]\r\nUser=a=b\r\n"),
            QStringLiteral("a=b"));
        row("a line without an equals sign", QStringLiteral("[Settings]\r\nUser\r\nUser=3\r\n"),
            QStringLiteral("3"));
        row("a comment is no key", QStringLiteral("[Settings]\r\n;User=4\r\nUser=3\r\n"),
            QStringLiteral("3"));
        row("a comment is no section", QStringLiteral("[Settings]\r\n;[Strings]\r\nUser=3\r\n"),
            QStringLiteral("3"));
        row("a semicolon in a value stays", QStringLiteral("[Settings]\r\nUser=3 ; x\r\n"),
            QStringLiteral("3 ; x"));
        row("255 characters are whole",
            QStringLiteral("[Settings]\r\nUser=") + QString(255, u'ж') + QStringLiteral("\r\n"),
            QString(255, u'ж'));
        row("300 characters are cut to 255",
            QStringLiteral("[Settings]\r\nUser=") + QString(300, u'x') + QStringLiteral("\r\n"),
            QString(255, u'x'));
        row("quotes do not count towards 255",
            QStringLiteral("[Settings]\r\nUser=\"") + QString(255, u'x') + QStringLiteral("\"\r\n"),
            QString(255, u'x'));
        row("NUL bytes elsewhere",
            QStringLiteral("a\u0000b\r\n[Settings]\r\nX=\u0000\r\nUser=3\r\n"),
            QStringLiteral("3"));
    }
    void Value() {
        QFETCH(const QString, text);
        QFETCH(const QString, value);
        const ProfileFile file = ProfileFile::FromBytes(ToAnsi(text));
        QCOMPARE(file.Value(section, key, absent), value);
        QCOMPARE(file.Value(section, key).has_value(), value != absent);
    }

    void CyrillicNamesDisregardCase() {
        const auto file =
            ProfileFile::FromBytes(ToAnsi(QStringLiteral("[ГИТАРА]\r\nсТРУна=Ля ў ї ћ\r\n")));
        QCOMPARE(file.Value(QStringLiteral("гитара"), QStringLiteral("Струна"), absent),
                 QStringLiteral("Ля ў ї ћ"));
    }

    void SetValue_data() {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::newRow("into an empty file")
            << QByteArray() << QByteArray("[Settings]\r\nUser=4\r\n");
        QTest::newRow("a value is replaced, every other line stays")
            << QByteArray("; note\r\nloose=1\r\n\r\n[A]\nUser=1\n[settings]\n no sign\n ; User=2\n"
                          " user = 3 ;x\r\nUserN=5\n\n[B]\r\nUser=6")
            << QByteArray("; note\r\nloose=1\r\n\r\n[A]\nUser=1\n[settings]\n no sign\n ; User=2\n"
                          " user =4\r\nUserN=5\n\n[B]\r\nUser=6");
        QTest::newRow("a key is added at the end of its section")
            << QByteArray("[Settings]\r\nA=1\r\n[B]\r\nC=2\r\n")
            << QByteArray("[Settings]\r\nA=1\r\nUser=4\r\n[B]\r\nC=2\r\n");
        QTest::newRow("a key is added above the blank lines before the next section")
            << QByteArray("[Settings]\r\nA=1\r\n\r\n\r\n[B]\r\n")
            << QByteArray("[Settings]\r\nA=1\r\nUser=4\r\n\r\n\r\n[B]\r\n");
        QTest::newRow("a key is added to an empty section")
            << QByteArray("[Settings]\r\n[B]\r\n") << QByteArray("[Settings]\r\nUser=4\r\n[B]\r\n");
        QTest::newRow("a section is appended")
            << QByteArray("[B]\r\nC=2\r\n") << QByteArray("[B]\r\nC=2\r\n[Settings]\r\nUser=4\r\n");
        QTest::newRow("a section is appended after keys without one")
            << QByteArray("User=1\r\n") << QByteArray("User=1\r\n[Settings]\r\nUser=4\r\n");
        QTest::newRow("the first key of a name is replaced")
            << QByteArray("[Settings]\r\nUser=1\r\nUser=2\r\n[Settings]\r\nUser=3\r\n")
            << QByteArray("[Settings]\r\nUser=4\r\nUser=2\r\n[Settings]\r\nUser=3\r\n");
        QTest::newRow("no line end: a value is replaced")
            << QByteArray("[Settings]\r\nUser=1") << QByteArray("[Settings]\r\nUser=4\r\n");
        QTest::newRow("no line end: a key is added")
            << QByteArray("[Settings]\r\nA=1") << QByteArray("[Settings]\r\nA=1\r\nUser=4\r\n");
        QTest::newRow("no line end: a section is appended")
            << QByteArray("[B]\r\nA=1") << QByteArray("[B]\r\nA=1\r\n[Settings]\r\nUser=4\r\n");
        QTest::newRow("lone CR: every other line stays")
            << QByteArray("[Settings]\rUser=1\rA=2\r") << QByteArray("[Settings]\rUser=4\r\nA=2\r");
        QTest::newRow("lone CR: a key is added") << QByteArray("[Settings]\rA=2\r[B]\r")
                                                 << QByteArray("[Settings]\rA=2\rUser=4\r\n[B]\r");
        QTest::newRow("NUL and bytes of no character stay")
            << QByteArray("[Settings]\r\nA=\0\x98\x1A\xFF\r\nUser=1\r\n", 28)
            << QByteArray("[Settings]\r\nA=\0\x98\x1A\xFF\r\nUser=4\r\n", 28);
    }
    void SetValue() {
        QFETCH(const QByteArray, before);
        QFETCH(const QByteArray, after);
        ProfileFile file = ProfileFile::FromBytes(before);
        QCOMPARE(file.ToBytes(), before);
        file.SetValue(section, key, QStringLiteral("4"));
        QCOMPARE(file.ToBytes(), after);
        QCOMPARE(file.Value(section, key, absent), QStringLiteral("4"));
        QCOMPARE(ProfileFile::FromBytes(after).Value(section, key, absent), QStringLiteral("4"));
    }

    void AValueIsWrittenUnchanged() {
        ProfileFile file;
        file.SetValue(section, key, QStringLiteral(" \"Лад\"\r\nUserN=7 "));
        QCOMPARE(file.ToBytes(),
                 ToAnsi(QStringLiteral("[Settings]\r\nUser= \"Лад\"\r\nUserN=7 \r\n")));
    }

    void AKeyAfterAValueWithALineBreakIsFound() {
        ProfileFile file;
        file.SetValue(section, key, QStringLiteral("1\r\nUserN=7"));
        QCOMPARE(file.Value(section, key, absent), QStringLiteral("1"));
        QCOMPARE(file.Value(section, QStringLiteral("UserN"), absent), QStringLiteral("7"));
    }

    void BytesOfNoCharacterInTheLineOfTheKeyStay() {
        ProfileFile file = ProfileFile::FromBytes("[Settings]\r\n\x98=1\r\n");
        file.SetValue(section, key, QStringLiteral("♭"));
        QCOMPARE(file.ToBytes(), QByteArray("[Settings]\r\n\x98=1\r\nUser=?\r\n"));
    }
};

QTEST_APPLESS_MAIN(ProfileTest)
#include "profile_test.moc"
