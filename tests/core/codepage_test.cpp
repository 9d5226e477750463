// The single-byte code page of every file.
#include "core/codepage.h"

#include <QTest>

class CodePageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EveryByteSurvivesReadingAndWriting() {
        for (int value = 0; value < 256; ++value) {
            const QByteArray byte(1, static_cast<char>(value));
            const QString text = FromAnsi(byte);
            QCOMPARE(text.size(), 1);
            if (value != 0x98) // The one byte that stands for no character.
                QCOMPARE(ToAnsi(text).toHex(), byte.toHex());
        }
    }

    void LettersHaveTheirBytes_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("nothing") << QString() << QByteArray();
        QTest::newRow("ASCII") << QStringLiteral("C#m7/G") << QByteArray("C#m7/G");
        QTest::newRow("Russian") << QStringLiteral("АЯаяЁё")
                                 << QByteArray("\xC0\xDF\xE0\xFF\xA8\xB8");
        QTest::newRow("Ukrainian")
            << QStringLiteral("ҐґЄєІіЇї") << QByteArray("\xA5\xB4\xAA\xBA\xB2\xB3\xAF\xBF");
        QTest::newRow("Belarusian") << QStringLiteral("Ўў") << QByteArray("\xA1\xA2");
        QTest::newRow("Serbian") << QStringLiteral("ђјљњћџ")
                                 << QByteArray("\x90\xBC\x9A\x9C\x9E\x9F");
        QTest::newRow("a NUL in the middle")
            << QString::fromLatin1("a\0b", 3) + QStringLiteral("я") << QByteArray("a\0b\xFF", 4);
    }
    void LettersHaveTheirBytes() {
        QFETCH(const QString, text);
        QFETCH(const QByteArray, bytes);
        QCOMPARE(ToAnsi(text).toHex(), bytes.toHex());
        QCOMPARE(FromAnsi(bytes), text);
        QCOMPARE(OutsideAnsi(text), QString());
    }

    void CharactersOutsideThePage_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("written");
        QTest::addColumn<QString>("outside");
        QTest::newRow("a musical flat becomes a question mark")
            << QStringLiteral("B♭") << QByteArray("B?") << QStringLiteral("♭");
        QTest::newRow("each is named once, in order of appearance")
            << QStringLiteral("é♭é♯♭") << QByteArray("?????") << QStringLiteral("é♭♯");
        QTest::newRow("a character of two code units is one character")
            << QStringLiteral("a𝄞b") << QByteArray("a?b") << QStringLiteral("𝄞");
        QTest::newRow("a question mark is itself")
            << QStringLiteral("?") << QByteArray("?") << QString();
        QTest::newRow("beside a control character SUB")
            << QStringLiteral("♭\u001A") << QByteArray("?\x1A") << QStringLiteral("♭");
    }
    void CharactersOutsideThePage() {
        QFETCH(const QString, text);
        QFETCH(const QByteArray, written);
        QFETCH(const QString, outside);
        QCOMPARE(ToAnsi(text), written);
        QCOMPARE(OutsideAnsi(text), outside);
    }

    void OnlyBytesBelow128AreAscii() {
        QVERIFY(IsAscii(QByteArrayView()));
        QVERIFY(IsAscii(QByteArrayView("E\x7F")));
        QVERIFY(!IsAscii(QByteArrayView("E\x80")));
    }
};

QTEST_APPLESS_MAIN(CodePageTest)
#include "codepage_test.moc"
