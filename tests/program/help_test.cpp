// The manual that lies beside the program, as it is built, in both languages.
#include "core/codepage.h"
#include "info/helpchapters.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

namespace {

const QString lineEnd = QStringLiteral("\r\n");
constexpr int chapterCount = static_cast<int>(Chapter::NoSound);

// A chapter's text without its heading; the languages have the same chapters.
QString ChapterText(const QString& manual, int chapter, Tongue tongue) {
    const QStringList lines = manual.split(lineEnd);
    const int first = LineOf(manual, static_cast<Chapter>(chapter), tongue);
    int last = first + 1;
    const QRegularExpression heading(QStringLiteral("^\\d+\\. "));
    while (last < lines.size() && !heading.match(lines[last]).hasMatch())
        ++last;
    return lines.mid(first + 1, last - first - 1).join(lineEnd);
}

QStringList Headings(const QStringList& lines) {
    return lines.filter(QRegularExpression(QStringLiteral("^\\d+\\. ")));
}

} // namespace

class HelpTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QFile file(QStringLiteral(HELP_FILE));
        QVERIFY(file.open(QIODevice::ReadOnly));
        m_bytes = file.readAll();
        m_text = FromAnsi(m_bytes);
        m_lines = m_text.split(lineEnd);
        m_english = LineOf(m_text, {}, Tongue::English);
        QVERIFY(m_english > 300);
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

    void NoLineIsWiderThan78Characters() {
        for (const QString& line : m_lines) {
            QVERIFY2(line.size() <= 78, qPrintable(line));
            QVERIFY2(!line.endsWith(u' '), qPrintable(line));
        }
    }

    void TheFirstLinesSayInEnglishWhereTheEnglishBegins() {
        const QString first = m_lines.mid(0, 8).join(u' ');
        QVERIFY(first.contains(QStringLiteral("the manual in English follows")));
        QVERIFY(first.contains(m_lines[m_english].trimmed(), Qt::CaseInsensitive));
    }

    void TheLanguagesHaveTheSameChapters() {
        const QStringList russian = Headings(m_lines.mid(0, m_english));
        const QStringList english = Headings(m_lines.mid(m_english));
        QCOMPARE(russian.size(), chapterCount);
        QCOMPARE(english.size(), chapterCount);
        for (int chapter = 1; chapter <= chapterCount; ++chapter) {
            const auto asked = static_cast<Chapter>(chapter);
            QCOMPARE(m_lines[LineOf(m_text, asked, Tongue::Russian)], russian[chapter - 1]);
            QCOMPARE(m_lines[LineOf(m_text, asked, Tongue::English)], english[chapter - 1]);
        }
    }

    void TheContentsNameTheChapters() {
        for (const auto& part : {m_lines.mid(0, m_english), m_lines.mid(m_english)})
            for (const QString& heading : Headings(part)) {
                const QString contents = part.mid(0, 24).join(u' ');
                QVERIFY2(contents.contains(u' ' + heading, Qt::CaseInsensitive),
                         qPrintable(heading));
            }
    }

    void EveryKeyNamedAnywhereIsOnThePageOfKeys() {
        const QRegularExpression key(QStringLiteral("(?:(?:Ctrl|Shift|Alt)\\+)+\\w+|\\bF\\d+\\b"),
                                     QRegularExpression::UseUnicodePropertiesOption);
        const QString pages =
            ChapterText(m_text, static_cast<int>(Chapter::Keys), Tongue::Russian) +
            ChapterText(m_text, static_cast<int>(Chapter::Keys), Tongue::English);
        auto keys = key.globalMatch(m_text);
        QVERIFY(keys.hasNext());
        while (keys.hasNext()) {
            const QString name = keys.next().captured();
            QVERIFY2(pages.contains(lineEnd + QStringLiteral("  ") + name + QStringLiteral("  ")) ||
                         pages.contains(name + QStringLiteral(" - назад")) ||
                         pages.contains(name + QStringLiteral(" for the one")),
                     qPrintable(name));
        }
    }

    void AChapterThatIsReferredToExists() {
        const QRegularExpression reference(
            QStringLiteral("(?:глава|главы|chapter|chapters) (\\d+)(?: (?:и|and) (\\d+))?"));
        auto references = reference.globalMatch(m_text);
        QVERIFY(references.hasNext());
        while (references.hasNext())
            QVERIFY(references.next().captured(1).toInt() <= chapterCount);
    }

    void EveryFileIsNamedInBothLanguages_data() {
        QTest::addColumn<QString>("file");
        for (const char* file : {"help.dat", "chords.dat", "scales.dat", "tunings.dat",
                                 "tonvik.ini", "*.lng", "sounds/keys", "sounds/strings"})
            QTest::newRow(file) << QString::fromLatin1(file);
    }
    void EveryFileIsNamedInBothLanguages() {
        QFETCH(const QString, file);
        for (const Tongue tongue : {Tongue::Russian, Tongue::English})
            QVERIFY(ChapterText(m_text, static_cast<int>(Chapter::Files), tongue).contains(file));
    }

    void EveryCaptionIsExplained_data() {
        QTest::addColumn<QString>("russian");
        QTest::addColumn<QString>("english");
        const std::array captions{
            std::pair{"Аккорд/лад:", "Chord/scale:"},
            std::pair{"Лад:", "Scale:"},
            std::pair{"Подбор комбинации:", "Find a fingering:"},
            std::pair{"Изменить", "Change"},
            std::pair{"Барре", "Barre"},
            std::pair{"Остановить", "Stop"},
            std::pair{"Дополнительно:", "More:"},
            std::pair{"Недостающие звуки:", "Missing notes:"},
            std::pair{"Запоминать настройки", "Remember the settings"},
        };
        for (const auto& [russian, english] : captions)
            QTest::newRow(english) << QString::fromUtf8(russian) << QString::fromUtf8(english);
    }
    void EveryCaptionIsExplained() {
        QFETCH(const QString, russian);
        QFETCH(const QString, english);
        QVERIFY(m_lines.mid(0, m_english).join(u' ').contains(u'"' + russian + u'"'));
        QVERIFY(m_lines.mid(m_english).join(u' ').contains(u'"' + english + u'"'));
    }

    void TheFingeringCodeIsExplained() {
        for (const Tongue tongue : {Tongue::Russian, Tongue::English})
            QVERIFY(ChapterText(m_text, static_cast<int>(Chapter::Sheet), tongue)
                        .contains(QStringLiteral("Am - Б5/000220")));
    }

private:
    QByteArray m_bytes;
    QString m_text;
    QStringList m_lines;
    int m_english = 0;
};

QTEST_APPLESS_MAIN(HelpTest)
#include "help_test.moc"
