// The help text that lies beside the program, as it is built.
#include "core/codepage.h"

#include <QFile>
#include <QTest>

namespace {

QByteArray HelpBytes() {
    QFile file(QStringLiteral(HELP_FILE));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class HelpTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        m_bytes = HelpBytes();
        m_text = FromAnsi(m_bytes);
        QVERIFY(m_text.size() > 10'000);
    }

    void EveryCharacterIsInTheCodePage() {
        QCOMPARE(OutsideAnsi(m_text), QString());
        QVERIFY(!m_text.contains(QChar::ReplacementCharacter));
        QVERIFY(!m_text.contains(u'\t'));
    }

    void EveryLineEndsWithCrLf() {
        QVERIFY(m_bytes.endsWith("\r\n"));
        QCOMPARE(m_bytes.count('\n'), m_bytes.count("\r\n"));
        QCOMPARE(m_bytes.count('\r'), m_bytes.count("\r\n"));
    }

    void NoLineIsWiderThanTheWindow() {
        for (const QString& line : m_text.split(QStringLiteral("\r\n"))) {
            QVERIFY2(line.size() <= 80, qPrintable(line));
            QVERIFY2(!line.endsWith(u' '), qPrintable(line));
        }
    }

    void EveryKeyIsExplained_data() {
        QTest::addColumn<QString>("key");
        for (int number = 1; number <= 10; ++number) {
            const QString key = QStringLiteral("F%1").arg(number);
            QTest::newRow(qPrintable(key)) << key;
        }
        for (const auto& key :
             {QStringLiteral("Shift+F3"), QStringLiteral("Ctrl+Вниз"), QStringLiteral("Ctrl+Вверх"),
              QStringLiteral("Alt+Вниз"), QStringLiteral("Alt+Вверх"), QStringLiteral("Shift+Вниз"),
              QStringLiteral("Shift+Вверх"), QStringLiteral("Shift+Влево"),
              QStringLiteral("Shift+Вправо"), QStringLiteral("PgUp, PgDn"), QStringLiteral("+ и -"),
              QStringLiteral("Home, End"), QStringLiteral("Del"), QStringLiteral("Menu")})
            QTest::newRow(qPrintable(key)) << key;
    }
    void EveryKeyIsExplained() {
        QFETCH(const QString, key);
        QVERIFY(m_text.contains(QStringLiteral("\r\n  ") + key + QStringLiteral("  ")));
    }

    void EveryFileIsNamed_data() {
        QTest::addColumn<QString>("file");
        for (const char* file : {"help.dat", "chords.dat", "scales.dat", "tunings.dat",
                                 "tonvik.ini", "*.lng", "sounds/keys", "sounds/strings"})
            QTest::newRow(file) << QString::fromLatin1(file);
    }
    void EveryFileIsNamed() {
        QFETCH(const QString, file);
        QVERIFY(m_text.contains(file));
    }

    void EveryCaptionIsExplained_data() {
        QTest::addColumn<QString>("caption");
        for (const auto& caption :
             {QStringLiteral("Аккорд/лад:"), QStringLiteral("Лад:"),
              QStringLiteral("Подбор комбинации:"), QStringLiteral("Изменить"),
              QStringLiteral("Барре"), QStringLiteral("Остановить"),
              QStringLiteral("Дополнительно:"), QStringLiteral("Нажаты клавиши:"),
              QStringLiteral("Недостающие звуки:"), QStringLiteral("Запоминать настройки")})
            QTest::newRow(qPrintable(caption)) << caption;
    }
    void EveryCaptionIsExplained() {
        QFETCH(const QString, caption);
        QVERIFY(m_text.contains(u'"' + caption + u'"'));
    }

    void TheFingeringCodeIsExplained() {
        QVERIFY(m_text.contains(QStringLiteral("Am - Б5/000220")));
    }

private:
    QByteArray m_bytes;
    QString m_text;
};

QTEST_APPLESS_MAIN(HelpTest)
#include "help_test.moc"
