// Which chapter tells of a control, and where chapters begin in a text.
#include "info/helpchapters.h"

#include <QTest>
#include <QWidget>

namespace {

const QString manual = QStringLiteral("English below\r\n"      // 0
                                      "   5. Аккорды\r\n"      // 1
                                      "\r\n"                   // 2
                                      "5. АККОРДЫ\r\n"         // 3
                                      "5. Не заголовок\r\n"    // 4
                                      "15. ЕСЛИ НЕТ ЗВУКА\r\n" // 5
                                      "   ENGLISH MANUAL\r\n"  // 6
                                      "   5. Chords\r\n"       // 7
                                      "5. CHORDS\r\n"          // 8
                                      "15. IF THERE IS NONE"); // 9

QWidget* Child(const char* name, QWidget* parent) {
    auto* child = new QWidget(parent);
    child->setObjectName(QString::fromLatin1(name));
    return child;
}

} // namespace

class HelpChaptersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AChapterBeginsAtItsHeading_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("chapter");
        QTest::addColumn<bool>("english");
        QTest::addColumn<int>("line");
        QTest::newRow("Russian: not the contents, not a sentence") << manual << 5 << false << 3;
        QTest::newRow("English: not the Russian chapter") << manual << 5 << true << 8;
        QTest::newRow("two digits are not one") << manual << 15 << false << 5;
        QTest::newRow("the last line, which has no end") << manual << 15 << true << 9;
        QTest::newRow("no chapter in Russian: the top") << manual << 0 << false << 0;
        QTest::newRow("no chapter in English: its heading") << manual << 0 << true << 6;
        QTest::newRow("a chapter that is not there: as none") << manual << 7 << true << 6;
        QTest::newRow("LF ends a line") << QStringLiteral("a\n\n5. B") << 5 << false << 2;
        QTest::newRow("CR ends a line") << QStringLiteral("a\r\r5. B") << 5 << false << 2;
        QTest::newRow("a text without headings: its top")
            << QStringLiteral("a\nb\n") << 5 << true << 0;
        QTest::newRow("an empty text") << QString() << 5 << true << 0;
    }
    void AChapterBeginsAtItsHeading() {
        QFETCH(const QString, text);
        QFETCH(const int, chapter);
        QFETCH(const bool, english);
        QFETCH(const int, line);
        const auto asked =
            chapter == 0 ? std::nullopt : std::optional(static_cast<Chapter>(chapter));
        QCOMPARE(LineOf(text, asked, english ? Tongue::English : Tongue::Russian), line);
    }

    void AControlHasTheChapterAboutIt() {
        QWidget window;
        window.setObjectName(QStringLiteral("frmMain"));
        QWidget* frame = Child("Frame4", &window);
        QCOMPARE(ChapterAbout(Child("lstType", frame)), Chapter::Chords);
        QCOMPARE(ChapterAbout(Child("GoldButton1", frame)), Chapter::Sound);
        QWidget* part = Child("nameless", Child("lstVoicings", &window));
        QCOMPARE(ChapterAbout(part), Chapter::Voicings);
        QCOMPARE(ChapterAbout(frame), Chapter::MainWindow);
    }

    void AWindowOfItsOwnChapterHasItWhateverHasTheFocus() {
        QWidget sheet;
        sheet.setObjectName(QStringLiteral("frmDiags"));
        QCOMPARE(ChapterAbout(Child("GoldButton1", &sheet)), Chapter::Sheet);
    }

    void WithoutAControlThereIsNoChapter() {
        const QWidget unknown;
        QVERIFY(!ChapterAbout(nullptr));
        QVERIFY(!ChapterAbout(&unknown));
    }
};

QTEST_MAIN(HelpChaptersTest)
#include "helpchapters_test.moc"
