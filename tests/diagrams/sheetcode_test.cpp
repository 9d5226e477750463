// Fingering codes read back from a line of text.
#include "diagrams/sheetcode.h"

#include <QTest>

class SheetCodeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Numbers_data();
    void Numbers();
    void NoCodes_data();
    void NoCodes();
    void Names_data();
    void Names();
    void Places();
    void ShapesFollowTheStrings();
    void ShapesUnderABarre_data();
    void ShapesUnderABarre();
    void EveryReachableShapeIsReadBack();
    void LongLines();
};

void SheetCodeTest::Numbers_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("barre");
    QTest::addColumn<QList<int>>("numbers");
    const auto row = [](const char* rule, const char* line, int barre, const QList<int>& numbers) {
        QTest::newRow(rule) << QString::fromUtf8(line) << barre << numbers;
    };
    row("one digit each", "Am - 011000", 0, {0, 1, 1, 0, 0, 0});
    row("all open", "Am - 000000", 0, {0, 0, 0, 0, 0, 0});
    row("a blank ends it", "Am - 011000 tune", 0, {0, 1, 1, 0, 0, 0});
    row("fret 20", "A - 0000020", 0, {0, 0, 0, 0, 0, 20});
    row("six of two digits", "A - 101112131415", 0, {10, 11, 12, 13, 14, 15});
    row("the frets that lie closest", "Dm - 0101212110", 0, {0, 10, 12, 12, 11, 0});
    row("frets, not open strings, lie close", "E - 0001100", 0, {0, 0, 0, 11, 0, 0});
    row("of equals, two digits at the right", "A - 1111111", 0, {1, 1, 1, 1, 1, 11});
    row("a barre", "Am - Б5/000220", 5, {0, 0, 0, 2, 2, 0});
    row("a barre of two digits", "A - Б15/000220", 15, {0, 0, 0, 2, 2, 0});
    row("below the barre", "A - Б8/-7-100-10", 8, {-7, -1, 0, 0, -1, 0});
    row("far below the barre", "A - Б15/-15-15-15-15-15-15", 15, {-15, -15, -15, -15, -15, -15});
    row("below and far above", "A - Б1/-1-200020", 1, {-1, -2, 0, 0, 0, 20});
}

void SheetCodeTest::Numbers() {
    QFETCH(const QString, line);
    QFETCH(const int, barre);
    QFETCH(const QList<int>, numbers);
    const auto codes = CodesOfLine(line);
    QCOMPARE(codes.size(), numbers.isEmpty() ? 0U : 1U);
    if (codes.empty())
        return;
    QCOMPARE(codes[0].barreFret.value_or(0), barre);
    QCOMPARE(QList<int>(codes[0].numbers.begin(), codes[0].numbers.end()), numbers);
}

void SheetCodeTest::NoCodes_data() {
    QTest::addColumn<QString>("line");
    const auto row = [](const char* rule, const char* line) {
        QTest::newRow(rule) << QString::fromUtf8(line);
    };
    row("nothing", "");
    row("five digits", "Am - 01100");
    row("thirteen digits", "Am - 1111111111111");
    row("a fret beyond 20", "Am - 212121212121");
    row("no blanks around the hyphen", "Am-011000");
    row("something right behind the numbers", "Am - 011000,");
    row("below the nut without a barre", "Am - -7-7-7-7-7-7");
    row("a barre at fret 0", "Am - Б0/000220");
    row("a barre at fret 16", "Am - Б16/000220");
    row("a barre written with a zero", "Am - Б05/000220");
    row("a Latin letter for the barre", "Am - B5/000220");
    row("a barre without a slash", "Am - Б5000220");
    row("a barre without numbers", "Am - Б5/");
    row("less than -15", "Am - Б5/-160000-16");
    row("a minus alone", "Am - Б5/-00000");
    row("minus zero", "Am - Б5/-000000");
    row("letters", "Am - x32010");
    row("digits of another script", "Am - ٠١١٠٠٠");
}

void SheetCodeTest::NoCodes() {
    QFETCH(const QString, line);
    QVERIFY(CodesOfLine(line).empty());
}

void SheetCodeTest::Names_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<QStringList>("names");
    const auto row = [](const char* rule, const char* line, const QStringList& names) {
        QTest::newRow(rule) << QString::fromUtf8(line) << names;
    };
    const auto text = [](const char* utf8) { return QString::fromUtf8(utf8); };
    row("several on a line", "Am - 011000 C - 010230 ", {text("Am"), text("C")});
    row("back to the code before", "Am - 011000 then C - 010230", {text("Am"), text("then C")});
    row("back to the beginning", "  Verse: Am - 011000", {text("Verse: Am")});
    row("the last hyphen before the numbers", "a - b - 011000", {text("a - b")});
    row("text that looks like one", "a - 12 - 011000", {text("a - 12")});
    row("none", " - 011000", {QString()});
    row("none behind another", "Am - 011000  - 022000", {text("Am"), QString()});
    row("no name yet", "--- - 011000", {text("---")});
    row("signs", "C<&/G - 010233", {text("C<&/G")});
}

void SheetCodeTest::Names() {
    QFETCH(const QString, line);
    QStringList names;
    for (const SheetCode& code : CodesOfLine(line))
        names += code.name;
    QTEST(names, "names");
}

void SheetCodeTest::Places() {
    const QString line = QStringLiteral("  Am - 011000  C#m - Б4/001220  - 000000 x");
    QStringList codes;
    for (const SheetCode& code : CodesOfLine(line))
        codes += line.sliced(code.place.start, code.place.length);
    QCOMPARE(codes, QStringList({QStringLiteral("Am - 011000"), QStringLiteral("C#m - Б4/001220"),
                                 QStringLiteral("- 000000")}));
}

void SheetCodeTest::ShapesFollowTheStrings() {
    const auto codes = CodesOfLine(u"F - 112331");
    QCOMPARE(FretsText(ShapeOfCode(codes.at(0), true)), QStringLiteral("133211"));
    QCOMPARE(FretsText(ShapeOfCode(codes.at(0), false)), QStringLiteral("112331"));
}

void SheetCodeTest::ShapesUnderABarre_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("frets");
    QTest::addColumn<int>("thickest");
    const auto row = [](const char* rule, const char* line, const char* frets, int thickest) {
        QTest::newRow(rule) << QString::fromUtf8(line) << QString::fromLatin1(frets) << thickest;
    };
    row("0 lies under the barre", "Am - Б5/000220", "577555", 6);
    row("the bar reaches as far as it is needed", "D - Б2/000222", "444222", 3);
    row("over two strings at least", "D - Б2/222222", "444444", 2);
    row("nearer to the nut than the barre", "D - Б2/00000-1", "122222", 5);
    row("off the board: open", "D - Б2/00000-7", "022222", 5);
}

void SheetCodeTest::ShapesUnderABarre() {
    QFETCH(const QString, line);
    const Shape shape = ShapeOfCode(CodesOfLine(line).at(0), true);
    QTEST(FretsText(shape), "frets");
    QCOMPARE(shape.barres.size(), 1U);
    QCOMPARE(shape.barres[0].thinnest, 1);
    QTEST(shape.barres[0].thickest, "thickest");
}

void SheetCodeTest::EveryReachableShapeIsReadBack() {
    // Five frets side by side and open strings, all over the neck.
    for (const int position : {1, 6, 9, 11, 12}) {
        for (int choice = 0; choice < 15'625; ++choice) {
            std::array<int, stringCount> frets{};
            QString code = QStringLiteral("X - ");
            for (int row = 0, rest = choice; row < stringCount; ++row, rest /= 5) {
                frets[static_cast<std::size_t>(row)] = rest % 5 == 0 ? 0 : position + rest % 5 - 1;
                code += QString::number(frets[static_cast<std::size_t>(row)]);
            }
            const auto codes = CodesOfLine(code);
            QVERIFY2(codes.size() == 1 && codes[0].numbers == frets, qPrintable(code));
        }
    }
}

void SheetCodeTest::LongLines() {
    const QString line = QStringLiteral("Am - 011000 ").repeated(4000);
    QCOMPARE(CodesOfLine(line).size(), 4000U);
    QVERIFY(CodesOfLine(QStringLiteral(" - ").repeated(20'000)).empty());
    QVERIFY(CodesOfLine(QString(50'000, u'1')).empty());
}

QTEST_APPLESS_MAIN(SheetCodeTest)
#include "sheetcode_test.moc"
