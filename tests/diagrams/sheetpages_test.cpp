// Where the sheet's contents stand on its pages. Every letter is 100 twips wide here.
#include "diagrams/linebreaking.h"
#include "diagrams/sheetpages.h"

#include <QTest>

class SheetPagesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AnEmptySheetIsAPage();
    void RowsHoldAsManyAsFit();
    void PagesAreFilledInOrder();
    void NothingLeavesThePaper_data();
    void NothingLeavesThePaper();
    void EveryPageHasItsNumber();
    void HeadingsStayWithTheirLines();
    void BreaksMakeNoEmptyPages();
    void ChorusesHaveABar();
    void LeftHanded();
    void TextsBreakBetweenWords_data();
    void TextsBreakBetweenWords();
    void NoHalvesOfCharacters();
    void ChordsStandAboveTheirSyllables();
    void ChordsKeepApart();
    void LyricsBreakBetweenWords();
    void LongWordsAreCut();
};

namespace {

double HundredEach(TextStyle, const QString& text) {
    return 100.0 * static_cast<double>(text.size());
}

const PageLook a4{{11906, 16838}, false, HundredEach};

std::vector<SheetPage> Pages(const QString& text, const PageLook& look = a4) {
    return LayOutSheet(ReadSheetText(text, {}), look);
}

QString Codes(int count) {
    return QStringLiteral("Am - 011000 ").repeated(count);
}

} // namespace

void SheetPagesTest::AnEmptySheetIsAPage() {
    const auto pages = LayOutSheet({}, a4);
    QCOMPARE(pages.size(), 1U);
    QCOMPARE(pages[0].texts.size(), 1U); // Its number.
}

void SheetPagesTest::RowsHoldAsManyAsFit() {
    const auto pages = Pages(Codes(15));
    const auto& diagrams = pages.at(0).diagrams;
    QCOMPARE(diagrams.size(), 15U);
    std::map<double, int> rows;
    for (const PlacedDiagram& diagram : diagrams)
        ++rows[diagram.place.top()];
    QCOMPARE(rows.size(), 3U);
    QCOMPARE(rows.begin()->second, 7);
    QCOMPARE(rows.rbegin()->second, 1);
    QVERIFY(diagrams[6].place.right() + diagrams[0].place.width() > a4.size.width() - pageMargin);
}

void SheetPagesTest::PagesAreFilledInOrder() {
    const auto pages = Pages(Codes(1000));
    std::size_t count = 0;
    qsizetype last = -1;
    for (const SheetPage& page : pages) {
        QVERIFY(!page.diagrams.empty());
        for (const PlacedDiagram& diagram : page.diagrams) {
            QVERIFY(diagram.source.start > last);
            last = diagram.source.start;
            ++count;
        }
    }
    QCOMPARE(count, 1000U);
    QVERIFY(pages.size() > 10 && pages.size() < 25);
}

void SheetPagesTest::NothingLeavesThePaper_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("codes") << Codes(200);
    QTest::newRow("one line") << QString(50'000, u'x');
    QTest::newRow("one line of words") << QStringLiteral("word ").repeated(10'000);
    QTest::newRow("one line of lyrics") << QStringLiteral("[Am]sing").repeated(6'000);
    QTest::newRow("one chord") << u'[' + QString(1'000, u'A') + QStringLiteral("]a");
    QTest::newRow("one long syllable") << QStringLiteral("[Am]") + QString(20'000, u'a');
    QTest::newRow("titles")
        << QStringLiteral("{title: Long words in a title that goes on}\n").repeated(100);
}

void SheetPagesTest::NothingLeavesThePaper() {
    QFETCH(const QString, text);
    const QRectF allowed = QRectF(QPointF(0, 0), a4.size)
                               .adjusted(pageMargin, pageMargin, -pageMargin + 1, -pageMargin + 1);
    for (const SheetPage& page : Pages(text)) {
        for (const PlacedDiagram& diagram : page.diagrams)
            QVERIFY(allowed.contains(diagram.place));
        for (const PlacedText& placed : page.texts) {
            QRectF seen = placed.place;
            seen.setWidth(HundredEach(placed.style, placed.text.trimmed()));
            QVERIFY2(allowed.contains(seen) || placed.style == TextStyle::PageNumber,
                     qPrintable(placed.text));
        }
    }
}

void SheetPagesTest::EveryPageHasItsNumber() {
    const auto pages = Pages(Codes(200));
    QVERIFY(pages.size() > 2);
    for (std::size_t i = 0; i < pages.size(); ++i) {
        const PlacedText& number = pages[i].texts.back();
        QCOMPARE(number.style, TextStyle::PageNumber);
        QCOMPARE(number.text, QString::number(i + 1));
        QCOMPARE(number.place.center().x(), a4.size.width() / 2);
        QVERIFY(number.place.top() > a4.size.height() - pageMargin);
        QVERIFY(number.place.bottom() < a4.size.height());
    }
}

void SheetPagesTest::HeadingsStayWithTheirLines() {
    for (int lines = 1; lines < 60; ++lines) {
        const auto pages =
            Pages(QStringLiteral("a\n").repeated(lines) + QStringLiteral("{sov: Verse}\n[C]sung"));
        for (const SheetPage& page : pages)
            for (std::size_t i = 0; i < page.texts.size(); ++i)
                if (page.texts[i].style == TextStyle::Label)
                    QCOMPARE(page.texts.at(i + 1).style, TextStyle::Chord);
    }
}

void SheetPagesTest::BreaksMakeNoEmptyPages() {
    QCOMPARE(Pages(QStringLiteral("{np}\na")).size(), 1U);
    QCOMPARE(Pages(QStringLiteral("a\n{np}\n{np}\nb")).size(), 2U);
}

void SheetPagesTest::ChorusesHaveABar() {
    const auto pages = Pages(QStringLiteral("{soc}\n[C]a\n{eoc}\nb"));
    QCOMPARE(pages.at(0).chorusBars.size(), 1U);
    const QRectF bar = pages[0].chorusBars[0];
    QVERIFY(bar.right() < pageMargin);
    QCOMPARE(bar.height(), LineHeight(TextStyle::Chord) + LineHeight(TextStyle::Lyrics));
}

void SheetPagesTest::LeftHanded() {
    PageLook look = a4;
    QVERIFY(!Pages(Codes(1), look).at(0).diagrams.at(0).diagram.leftHanded);
    look.leftHanded = true;
    QVERIFY(Pages(Codes(1), look).at(0).diagrams.at(0).diagram.leftHanded);
}

void SheetPagesTest::TextsBreakBetweenWords_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("pieces");
    const auto row = [](const char* rule, const char* text, const QStringList& pieces) {
        QTest::newRow(rule) << QString::fromUtf8(text) << pieces;
    };
    const auto text = [](const char* utf8) { return QString::fromUtf8(utf8); };
    row("an empty text is a line", "", {QString()});
    row("what fits is one piece", "ten signs.", {text("ten signs.")});
    row("between words", "two words more", {text("two words "), text("more")});
    row("a word that fits only alone", "a wordoften12",
        {text("a "), text("wordoften1"), text("2")});
    row("cut where there is no blank", "abcdefghijklm", {text("abcdefghij"), text("klm")});
}

void SheetPagesTest::TextsBreakBetweenWords() {
    QFETCH(const QString, text);
    QTEST(BreakText(text, TextStyle::Lyrics, 1000, HundredEach), "pieces");
}

void SheetPagesTest::NoHalvesOfCharacters() {
    const QString text = QString::fromUtf8("𝄞").repeated(9);
    for (const double width : {50.0, 100.0, 300.0, 500.0})
        for (const QString& piece : BreakText(text, TextStyle::Lyrics, width, HundredEach))
            QVERIFY(piece.size() % 2 == 0);
}

void SheetPagesTest::ChordsStandAboveTheirSyllables() {
    const auto lines = BreakLyrics(ReadLyrics(u"so [C]re[G]turn"), 10'000, HundredEach);
    QCOMPARE(lines.size(), 1U);
    QCOMPARE(lines[0], std::vector<LinePiece>({{0, TextStyle::Lyrics, QStringLiteral("so return")},
                                               {300, TextStyle::Chord, QStringLiteral("C")},
                                               {500, TextStyle::Chord, QStringLiteral("G")}}));
}

void SheetPagesTest::ChordsKeepApart() {
    const auto lines = BreakLyrics(ReadLyrics(u"[F#m7b5]a [G]b"), 10'000, HundredEach);
    QCOMPARE(lines.at(0).at(0).text, QStringLiteral("F#m7b5"));
    double g = 0;
    for (const LinePiece& piece : lines[0])
        if (piece.text == u"G")
            g = piece.x;
    QVERIFY(g > 600);
    QCOMPARE(lines[0].back(), (LinePiece{g, TextStyle::Lyrics, QStringLiteral("b")}));
}

void SheetPagesTest::LyricsBreakBetweenWords() {
    const auto lines = BreakLyrics(ReadLyrics(u"[C]two words [G]mo[D]re"), 1000, HundredEach);
    QCOMPARE(lines.size(), 2U);
    QCOMPARE(lines[1], std::vector<LinePiece>({{0, TextStyle::Chord, QStringLiteral("G")},
                                               {0, TextStyle::Lyrics, QStringLiteral("more")},
                                               {200, TextStyle::Chord, QStringLiteral("D")}}));
}

void SheetPagesTest::LongWordsAreCut() {
    const auto lines = BreakLyrics(ReadLyrics(u"[C]abcdefghijklm"), 1000, HundredEach);
    QCOMPARE(lines.size(), 2U);
    QCOMPARE(lines[0].back().text, QStringLiteral("abcdefghij"));
    QCOMPARE(lines[1].back().text, QStringLiteral("klm"));
}

QTEST_APPLESS_MAIN(SheetPagesTest)
#include "sheetpages_test.moc"
