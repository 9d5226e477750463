// The language files that lie beside the program, as they are built.
#include "core/codepage.h"
#include "core/language.h"
#include "languagefile.h"

#include <QFile>
#include <QSet>
#include <QTest>

namespace {

const QString programFolder = QStringLiteral(PROGRAM_FOLDER);
const QString mainSection = QStringLiteral("Main");

QByteArray BytesOf(const QString& name) {
    QFile file(programFolder + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void AddLanguages() {
    QTest::addColumn<QString>("name");
    for (const char* name :
         {"english.lng", "ukrainian.lng", "belarusian.lng", "bulgarian.lng", "serbian.lng"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

// The word that goes with 1 to 6 strings, without the number.
QStringList StringWords(const LanguageTexts& texts) {
    QStringList words;
    for (int count = 1; count <= 6; ++count)
        words += texts.Text(mainSection, 7 + count).section(u' ', 1);
    return words;
}

} // namespace

class LanguagesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TheFilesAreListed() {
        QCOMPARE(LanguageFiles(programFolder),
                 (QStringList{QStringLiteral("belarusian.lng"), QStringLiteral("bulgarian.lng"),
                              QStringLiteral("english.lng"), QStringLiteral("serbian.lng"),
                              QStringLiteral("ukrainian.lng")}));
    }

    void AFileIsWhole_data() { AddLanguages(); }
    void AFileIsWhole() {
        QFETCH(const QString, name);
        QCOMPARE(LanguageFaults(BytesOf(name)), QStringList());
        const LanguageTexts texts(programFolder + name);
        for (const LanguageKey& key : LanguageKeys())
            QVERIFY(texts.Text(QString::fromUtf16(key.section), key.number) != missingLanguageText);
    }

    void AFileWithoutOneOfItsKeysIsFaulty_data() { AddLanguages(); }
    void AFileWithoutOneOfItsKeysIsFaulty() {
        QFETCH(const QString, name);
        const QList<QByteArray> lines = BytesOf(name).split('\n');
        int removed = 0;
        for (qsizetype line = 0; line < lines.size(); ++line) {
            if (!lines[line].contains('=') || lines[line].startsWith(';'))
                continue;
            QList<QByteArray> fewer = lines;
            fewer.removeAt(line);
            const QStringList faults = LanguageFaults(fewer.join('\n'));
            QCOMPARE(faults.size(), 1);
            QVERIFY2(faults.first().startsWith(QStringLiteral("A missing key")),
                     qPrintable(faults.first()));
            ++removed;
        }
        QCOMPARE(removed, 39);
    }

    void AFaultIsFound_data() {
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        QTest::newRow("an unknown key") << QByteArray("15=Cancel") << QByteArray("14=Cancel");
        QTest::newRow("an unknown section") << QByteArray("[Help]") << QByteArray("[Hilfe]");
        QTest::newRow("an empty text") << QByteArray("=Cancel") << QByteArray("=");
        QTest::newRow("a text too long for its place")
            << QByteArray("=Cancel") << QByteArray("=Leave it all");
        QTest::newRow("a line that ends with LF alone")
            << QByteArray("Cancel\r\n") << QByteArray("Cancel\n");
        QTest::newRow("a last line without an end")
            << QByteArray("1=About\r\n") << QByteArray("1=About");
        QTest::newRow("a double key")
            << QByteArray("1=About\r\n") << QByteArray("1=About\r\n1=About\r\n");
        QTest::newRow("a double section") << QByteArray("[Help]") << QByteArray("[Init]\r\n[Help]");
        QTest::newRow("the text of a missing key")
            << QByteArray("Lang=English") << QByteArray("Lang=LANG FILE ERROR!");
    }
    void AFaultIsFound() {
        QFETCH(const QByteArray, from);
        QFETCH(const QByteArray, to);
        QByteArray bytes = BytesOf(QStringLiteral("english.lng"));
        QVERIFY(bytes.contains(from));
        QVERIFY(!LanguageFaults(bytes.replace(from, to)).isEmpty());
    }

    void ALanguageNamesItself_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("language");
        const auto row = [](const char* name, const QString& language) {
            QTest::newRow(name) << QString::fromLatin1(name) << language;
        };
        row("english.lng", QStringLiteral("English"));
        row("ukrainian.lng", QStringLiteral("Українська"));
        row("belarusian.lng", QStringLiteral("Беларуская"));
        row("bulgarian.lng", QStringLiteral("Български"));
        row("serbian.lng", QStringLiteral("Српски"));
    }
    void ALanguageNamesItself() {
        QFETCH(const QString, name);
        QFETCH(const QString, language);
        QCOMPARE(LanguageTexts(programFolder + name).DisplayName(), language);
    }

    void OnlyTheLettersOfTheLanguageOccur_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("letters");
        const auto row = [](const char* name, const QString& letters) {
            QTest::newRow(name) << QString::fromLatin1(name) << letters;
        };
        row("english.lng", QStringLiteral("abcdefghijklmnopqrstuvwxyz"));
        row("ukrainian.lng", QStringLiteral("абвгґдеєжзиіїйклмнопрстуфхцчшщьюя"));
        row("belarusian.lng", QStringLiteral("абвгдеёжзійклмнопрстуўфхцчшыьэюя"));
        row("bulgarian.lng", QStringLiteral("абвгдежзийклмнопрстуфхцчшщъьюя"));
        row("serbian.lng", QStringLiteral("абвгдђежзијклљмнњопрстћуфхцчџш"));
    }
    void OnlyTheLettersOfTheLanguageOccur() {
        QFETCH(const QString, name);
        QFETCH(const QString, letters);
        const LanguageTexts texts(programFolder + name);
        QString all = texts.DisplayName();
        for (const LanguageKey& key : LanguageKeys())
            all += texts.Text(QString::fromUtf16(key.section), key.number);
        for (const QChar character : all.toLower())
            QVERIFY2(!character.isLetter() || letters.contains(character),
                     qPrintable(QString(character)));
    }

    // One form for each count that the language tells apart: 1, 2 to 4, 5 and 6.
    void StringsAreCounted_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("forms");
        const auto row = [](const char* name, const QStringList& forms) {
            QTest::newRow(name) << QString::fromLatin1(name) << forms;
        };
        const QString one = QStringLiteral("one");
        const QString few = QStringLiteral("few");
        const QString many = QStringLiteral("many");
        row("english.lng", {one, many, many, many, many, many});
        row("ukrainian.lng", {one, few, few, few, many, many});
        row("belarusian.lng", {one, few, few, few, many, many});
        row("bulgarian.lng", {one, many, many, many, many, many});
        // The genitive plural of the Serbian word is written as its nominative singular.
        row("serbian.lng", {one, few, few, few, one, one});
    }
    void StringsAreCounted() {
        QFETCH(const QString, name);
        QFETCH(const QStringList, forms);
        const LanguageTexts texts(programFolder + name);
        const QStringList words = StringWords(texts);
        for (qsizetype i = 0; i < 6; ++i) {
            QVERIFY(texts.Text(mainSection, static_cast<int>(8 + i))
                        .startsWith(QString::number(i + 1) + u' '));
            for (qsizetype k = 0; k < 6; ++k)
                QCOMPARE(words[i] == words[k], forms[i] == forms[k]);
        }
    }

    void AFretIsNoScale_data() { AddLanguages(); }
    void AFretIsNoScale() {
        QFETCH(const QString, name);
        const LanguageTexts texts(programFolder + name);
        QVERIFY(texts.Text(mainSection, 4)
                    .compare(texts.Text(mainSection, 14) + u':', Qt::CaseInsensitive) != 0);
    }

    // Texts that stand side by side must be told apart.
    void ChoicesDiffer_data() { AddLanguages(); }
    void ChoicesDiffer() {
        QFETCH(const QString, name);
        const LanguageTexts texts(programFolder + name);
        QSet<QString> options;
        for (int key = 3; key <= 13; ++key)
            options += texts.Text(QStringLiteral("Settings"), key);
        QCOMPARE(options.size(), 11);
        QVERIFY(texts.Text(mainSection, 15) != texts.Text(mainSection, 16));
        QVERIFY(texts.Text(mainSection, 17) != texts.Text(mainSection, 18));
    }

    void CaptionsEndLikeTheRussianOnes_data() { AddLanguages(); }
    void CaptionsEndLikeTheRussianOnes() {
        QFETCH(const QString, name);
        const LanguageTexts texts(programFolder + name);
        for (const LanguageKey& key : LanguageKeys()) {
            const QString text = texts.Text(QString::fromUtf16(key.section), key.number);
            const QChar last = QString::fromUtf16(key.russian).back();
            for (const QChar mark : {u':', u'.', u'!', u')'})
                QVERIFY2((last == mark) == (text.back() == mark), qPrintable(text));
        }
    }

    void TheSlowPaceIsKey16() {
        const LanguageTexts texts(programFolder + QStringLiteral("english.lng"));
        QCOMPARE(texts.Text(mainSection, 16), QStringLiteral("slow"));
        QCOMPARE(texts.Text(mainSection, 15), QStringLiteral("fast"));
    }
};

QTEST_APPLESS_MAIN(LanguagesTest)
#include "languages_test.moc"
