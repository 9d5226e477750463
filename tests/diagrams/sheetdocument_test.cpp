// What the sheet's text says, block by block.
#include "diagrams/sheetdocument.h"

#include <QTest>

class SheetDocumentTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Blocks_data();
    void Blocks();
    void CodesLieWhereTheyStand();
    void HeadChords_data();
    void HeadChords();
    void DefinitionsComeFirst();
    void ChordsShowTheirSource();
    void EverySongHasItsHead();
    void CollectedShapesAreDrawnAsTheyWere();
    void ShapesWithoutFingersAreGivenSome();
    void ChorusesAreMarked();
    void ColumnsStayColumns();
};

namespace {

QString Text(const char* utf8) {
    return QString::fromUtf8(utf8);
}

Shape ShapeNamed(const char* frets) {
    return ReadShape(QString::fromLatin1(frets)).value();
}

SheetQuestions Questions() {
    SheetQuestions questions;
    questions.shapeOfName = [](const QString& name) -> std::optional<Shape> {
        if (name == u"Am")
            return ShapeNamed("x02210");
        return name == u"C" ? std::optional(ShapeNamed("x32010")) : std::nullopt;
    };
    questions.chorus = QStringLiteral("Refrain");
    return questions;
}

QString Described(const DiagramRow& row) {
    QString text = QStringLiteral("D");
    for (const SheetDiagram& diagram : row.diagrams)
        text += u' ' + diagram.name + u'=' + FretsText(diagram.shape);
    return text;
}

QString Described(const TextLine& line) {
    constexpr std::u16string_view styles = u"TSLcyhf#";
    return QString(QChar(styles[static_cast<std::size_t>(line.style)])) +
           (line.chorus ? QStringLiteral("| ") : QStringLiteral(": ")) + line.text;
}

QString Described(const LyricLine& line) {
    QString text = line.chorus ? QStringLiteral("y|") : QStringLiteral("y:");
    for (const LyricPart& part : line.parts)
        text += u' ' + part.chord + u'^' + part.text;
    return text;
}

QString Described(const PageBreak&) {
    return QStringLiteral("-");
}

// A line for each block: its kind or style, then what it holds.
QStringList Described(const SheetDocument& document) {
    QStringList lines;
    for (const SheetBlock& block : document)
        lines += std::visit([](const auto& content) { return Described(content); }, block);
    return lines;
}

QStringList Read(const QString& text) {
    return Described(ReadSheetText(text, Questions()));
}

} // namespace

void SheetDocumentTest::Blocks_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("blocks");
    const auto row = [](const char* rule, const char* text, const QStringList& blocks) {
        QTest::newRow(rule) << Text(text) << blocks;
    };
    row("nothing: an empty line", "", {Text("f: ")});
    row("codes become a row", "Am - 011000 F - 112331", {Text("D Am=000110 F=133211")});
    row("what stands behind codes stays text", "Am - 011000 and so on",
        {Text("D Am=000110"), Text("f: and so on")});
    row("other lines stay text", "one\n\ntwo", {Text("f: one"), Text("f: "), Text("f: two")});
    row("a broken code stays text", "Am - 01100", {Text("f: Am - 01100")});
    row("titles and remarks", "{t: A}\n{st: B}\n{c: C}",
        {Text("T: A"), Text("S: B"), Text("c: C")});
    row("unknown directives are left out", "{x_any: 1}\n{artist: N}", {});
    row("remarks for readers of the text are left out", "# hidden", {});
    row("an unclosed brace stays text", "{title: A\nb}", {Text("f: {title: A"), Text("f: b}")});
    row("a definition that makes no sense stays text", "{define: A frets 99 0 0 0 0 0}",
        {Text("y: {define: A frets 99 0 0 0 0 0}")});
    row("lyrics beside plain lines", "{c: v}\nplain", {Text("c: v"), Text("y: plain")});
    row("a code in lyrics' place is a code", "{t: A}\nAm - 011000",
        {Text("T: A"), Text("D Am=000110")});
    row("a code in braces is none", "{comment: Am - 011000 x}", {Text("c: Am - 011000 x")});
    row("a new page", "a\n{np}\nb", {Text("y: a"), Text("-"), Text("y: b")});
    row("a tablature means only itself", "{sot}\ne|--[3]-- Am - 011000\n{eot}\n",
        {Text("f: e|--[3]-- Am - 011000"), Text("y: ")});
    row("a tablature that is not closed", "{sot}\n{title: A}", {Text("f: {title: A}")});
    row("the label of a section", "{sov: Verse 1}\na\n{eov}", {Text("L: Verse 1"), Text("y: a")});
}

void SheetDocumentTest::Blocks() {
    QFETCH(const QString, text);
    QTEST(Read(text), "blocks");
}

void SheetDocumentTest::CodesLieWhereTheyStand() {
    const QString text = QStringLiteral("a\nAm - 011000 C - 010230 \n  F - 112331");
    QStringList places;
    for (const SheetBlock& block : ReadSheetText(text, Questions()))
        if (const auto* row = std::get_if<DiagramRow>(&block))
            for (const SheetDiagram& diagram : row->diagrams)
                places += text.sliced(diagram.source.start, diagram.source.length);
    QCOMPARE(places, QStringList({Text("Am - 011000"), Text("C - 010230"), Text("F - 112331")}));
}

void SheetDocumentTest::HeadChords_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("head");
    const auto row = [](const char* rule, const char* text, const char* head) {
        QTest::newRow(rule) << Text(text) << Text(head);
    };
    row("each chord once, in the order of the text", "[C]a [Am]b [C]c", "D C=x32010 Am=x02210");
    row("a chord that nothing is known of is left out", "[C]a [Zz]b", "D C=x32010");
    row("a remark in a chord's place is no chord", "[*Am]a [C]b", "D C=x32010");
    row("a defined chord that no line plays", "{define: X frets 0 0 0 0 0 0}\nwords", "D X=000000");
    row("a chord to be shown", "{chord: C}", "D C=x32010");
}

void SheetDocumentTest::HeadChords() {
    QFETCH(const QString, text);
    QTEST(Read(text).value(0), "head");
    QTEST(Read(QStringLiteral("{title: A}\n{subtitle: B}\n") + text).value(2), "head");
}

void SheetDocumentTest::DefinitionsComeFirst() {
    QCOMPARE(Read(Text("[C]a\n{define: C frets x 3 5 5 5 3}")).value(0), Text("D C=x35553"));
    QCOMPARE(Read(Text("[C]a\nC - 010230")).value(0), Text("D C=032010"));
    QCOMPARE(Read(Text("[C]a\nC - 010230\n{define: C frets x 3 5 5 5 3}")).value(0),
             Text("D C=x35553"));
}

void SheetDocumentTest::ChordsShowTheirSource() {
    const QString text = Text("[Am]a [C]b [Am]c\n{define: C frets x 3 5 5 5 3}");
    const SheetDocument document = ReadSheetText(text, Questions());
    const auto& head = std::get<DiagramRow>(document.at(0)).diagrams;
    QCOMPARE(text.sliced(head.at(0).source.start, head.at(0).source.length), Text("[Am]"));
    QCOMPARE(head.at(0).source.start, 0);
    QCOMPARE(text.sliced(head.at(1).source.start, head.at(1).source.length),
             Text("{define: C frets x 3 5 5 5 3}"));
}

void SheetDocumentTest::EverySongHasItsHead() {
    QCOMPARE(Read(Text("{t: A}\n[C]a\n{ns}\n{t: B}\n[C]b [Am]c")),
             QStringList({Text("T: A"), Text("D C=x32010"), Text("y: C^a"), Text("-"), Text("T: B"),
                          Text("D C=x32010 Am=x02210"), Text("y: C^b  Am^c")}));
}

void SheetDocumentTest::CollectedShapesAreDrawnAsTheyWere() {
    SheetQuestions questions = Questions();
    questions.collected = [](const QString& code) {
        return code == Text("Am - 011000") ? std::optional(ShapeNamed("xx0110")) : std::nullopt;
    };
    QCOMPARE(Described(ReadSheetText(Text("Am - 011000 Am - 011001 "), questions)),
             QStringList(Text("D Am=xx0110 Am=100110")));
}

void SheetDocumentTest::ShapesWithoutFingersAreGivenSome() {
    SheetQuestions questions = Questions();
    questions.fingered = [](Shape shape) {
        shape.fingers[0] = 4;
        return shape;
    };
    for (const char* text : {"Am - 011000", "{define: C frets x 3 5 5 5 3}"}) {
        const SheetDocument document = ReadSheetText(Text(text), questions);
        QCOMPARE(std::get<DiagramRow>(document.at(0)).diagrams.at(0).shape.Finger(1), 4);
    }
}

void SheetDocumentTest::ChorusesAreMarked() {
    QCOMPARE(Read(Text("{soc: Ref}\n[Zz]a\nb\n{eoc}\nc\n{chorus}\n{chorus: Again}")),
             QStringList({Text("L| Ref"), Text("y| Zz^a"), Text("y| b"), Text("y: c"),
                          Text("L| Refrain"), Text("L| Again")}));
}

void SheetDocumentTest::ColumnsStayColumns() {
    QCOMPARE(
        Read(Text("{c: x}\nwords here\nAm   C\n--------")),
        QStringList({Text("c: x"), Text("y: words here"), Text("f: Am   C"), Text("f: --------")}));
}

QTEST_APPLESS_MAIN(SheetDocumentTest)
#include "sheetdocument_test.moc"
