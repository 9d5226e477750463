// The lines of ChordPro, read and written.
#include "diagrams/chordpro.h"

#include <QTest>

class ChordProTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Directives_data();
    void Directives();
    void NoDirectives_data();
    void NoDirectives();
    void Definitions_data();
    void Definitions();
    void NoDefinitions_data();
    void NoDefinitions();
    void FingersMakeBarres();
    void WrittenDefinitions_data();
    void WrittenDefinitions();
    void WrittenDefinitionsAreReadBack();
    void Lyrics_data();
    void Lyrics();
    void ChordPlaces();
};

namespace {

QString Text(const char* utf8) {
    return QString::fromUtf8(utf8);
}

Shape Fingered(const char* frets, const char* fingers) {
    Shape shape = ReadShape(QString::fromLatin1(frets)).value();
    for (int string = stringCount; string >= 1; --string)
        shape.fingers[static_cast<std::size_t>(string - 1)] =
            static_cast<std::int8_t>(fingers[stringCount - string] - '0');
    return shape;
}

} // namespace

void ChordProTest::Directives_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    const auto row = [](const char* rule, const char* line, const char* name, const char* value) {
        QTest::newRow(rule) << Text(line) << Text(name) << Text(value);
    };
    row("a name and a value", "{title: Река}", "title", "Река");
    row("blanks do not matter", "  { title :  Two  words }  ", "title", "Two  words");
    row("a blank in the colon's place", "{title Song}", "title", "Song");
    row("colons in the value", "{comment: a: b}", "comment", "a: b");
    row("capital letters", "{Title: A}", "title", "A");
    row("short forms", "{st: A}", "subtitle", "A");
    row("short forms of sections", "{soc}", "start_of_chorus", "");
    row("unknown names", "{x_mine: 1}", "x_mine", "1");
}

void ChordProTest::Directives() {
    QFETCH(const QString, line);
    const auto directive = ReadDirective(line);
    QVERIFY(directive);
    QTEST(directive->name, "name");
    QTEST(directive->value, "value");
}

void ChordProTest::NoDirectives_data() {
    QTest::addColumn<QString>("line");
    for (const char* line : {"", "{", "}", "{}", "{ }", "{:}", "{title: A", "title: A}", "{t: A} b",
                             "{t: {A}", "{a} {b}", "[Am]", "{: A}"})
        QTest::newRow(line) << Text(line);
}

void ChordProTest::NoDirectives() {
    QFETCH(const QString, line);
    QVERIFY(!ReadDirective(line));
}

void ChordProTest::Definitions_data() {
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("frets");
    QTest::addColumn<QString>("fingers");
    const auto row = [](const char* rule, const char* value, const char* name, const char* frets,
                        const char* fingers) {
        QTest::newRow(rule) << Text(value) << Text(name) << Text(frets) << Text(fingers);
    };
    row("string 6 first", "C base-fret 1 frets x 3 2 0 1 0 fingers 0 3 2 0 1 0", "C", "x32010",
        "032010");
    row("without fingers", "C base-fret 1 frets x 3 2 0 1 0", "C", "x32010", "000000");
    row("without base-fret", "C frets x 3 2 0 1 0", "C", "x32010", "000000");
    row("frets are counted from base-fret", "Bm base-fret 7 frets 1 3 3 1 1 1", "Bm", "799777",
        "000000");
    row("open strings are not", "D base-fret 10 frets x x 0 1 3 1", "D", "xx0(10)(12)(10)",
        "000000");
    row("all signs of a mute", "E frets x X N -1 1 1", "E", "xxxx11", "000000");
    row("far up", "E base-fret 20 frets 1 1 1 1 1 1", "E", "(20)(20)(20)(20)(20)(20)", "000000");
    row("any name", "F#m7b5/C<&> frets 0 0 0 0 0 0", "F#m7b5/C<&>", "000000", "000000");
    row("blanks and tabs", " C\t frets  x\t3 2 0 1 0 ", "C", "x32010", "000000");
    row("a finger that is none", "C frets x 3 2 0 1 0 fingers - 3 2 - 9 T", "C", "x32010",
        "032000");
    row("no finger without a fret", "C frets x 3 2 0 1 0 fingers 4 3 2 1 1 1", "C", "x32010",
        "032010");
}

void ChordProTest::Definitions() {
    QFETCH(const QString, value);
    QFETCH(const QString, name);
    const auto definition = ReadDefinition(value);
    QCOMPARE(definition.has_value(), !name.isEmpty());
    if (!definition)
        return;
    QCOMPARE(definition->name, name);
    QTEST(FretsText(definition->shape), "frets");
    QTEST(FingersText(definition->shape), "fingers");
}

void ChordProTest::NoDefinitions_data() {
    QTest::addColumn<QString>("value");
    for (const char* value :
         {"", "C", "C frets", "C base-fret", "C base-fret 0 frets x 3 2 0 1 0",
          "C base-fret -1 frets x 3 2 0 1 0", "C base-fret x frets x 3 2 0 1 0",
          "C frets x 3 2 0 1", "C frets x 3 2 0 1 0 0", "C frets x 99 2 0 1 0",
          "C frets x -2 2 0 1 0", "C frets x 3.5 2 0 1 0", "C base-fret 30 frets 9 9 9 9 9 9",
          "C frets x 3 2 0 1 0 fingers", "C frets x 3 2 0 1 0 fingers 1 2 3",
          "C frets x 3 2 0 1 0 thumbs 0 3 2 0 1 0", "C copy D",
          "C base-fret 99999999999999999999 frets x 3 2 0 1 0"})
        QTest::newRow(value) << Text(value);
}

void ChordProTest::NoDefinitions() {
    QFETCH(const QString, value);
    QVERIFY(!ReadDefinition(value));
}

void ChordProTest::FingersMakeBarres() {
    const auto barres = [](const char* value) {
        return ReadDefinition(Text(value)).value().shape.barres;
    };
    QCOMPARE(barres("F frets 1 3 3 2 1 1 fingers 1 3 4 2 1 1"),
             std::vector<ShapeBarre>({{1, 1, 6, 1}}));
    QCOMPARE(barres("B frets x 2 4 4 4 2 fingers 0 1 3 3 3 1"),
             std::vector<ShapeBarre>({{2, 1, 5, 1}, {4, 2, 4, 3}}));
    QCOMPARE(barres("C frets x 3 2 0 1 0 fingers 0 3 2 0 1 0"), std::vector<ShapeBarre>());
    QCOMPARE(barres("C frets x 3 2 0 1 0 fingers 0 1 1 0 1 0"), std::vector<ShapeBarre>());
}

void ChordProTest::WrittenDefinitions_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("frets");
    QTest::addColumn<QString>("fingers");
    QTest::addColumn<QString>("line");
    const auto row = [](const char* rule, const char* name, const char* frets, const char* fingers,
                        const char* line) {
        QTest::newRow(rule) << Text(name) << Text(frets) << Text(fingers) << Text(line);
    };
    row("from the nut", "Am", "x02210", "002310",
        "{define: Am base-fret 1 frets x 0 2 2 1 0 fingers 0 0 2 3 1 0}");
    row("from the lowest fret", "Am", "577555", "134111",
        "{define: Am base-fret 5 frets 1 3 3 1 1 1 fingers 1 3 4 1 1 1}");
    row("an open string stays 0", "A", "x0767x", "003241",
        "{define: A base-fret 6 frets x 0 2 1 2 x fingers 0 0 3 2 4 1}");
    row("without fingers", "Am", "x02210", "000000",
        "{define: Am base-fret 1 frets x 0 2 2 1 0 fingers 0 0 0 0 0 0}");
    row("blanks and braces would end a name", "a {b} 1", "000000", "000000",
        "{define: a_b_1 base-fret 1 frets 0 0 0 0 0 0 fingers 0 0 0 0 0 0}");
    row("a shape without a name is called by its frets", "", "x02210", "000000",
        "{define: x02210 base-fret 1 frets x 0 2 2 1 0 fingers 0 0 0 0 0 0}");
    row("signs are kept", "C<&/%1%2", "000000", "000000",
        "{define: C<&/%1%2 base-fret 1 frets 0 0 0 0 0 0 fingers 0 0 0 0 0 0}");
}

void ChordProTest::WrittenDefinitions() {
    QFETCH(const QString, name);
    QFETCH(const QString, frets);
    QFETCH(const QString, fingers);
    const Shape shape = Fingered(frets.toLatin1().constData(), fingers.toLatin1().constData());
    QTEST(WriteDefinition({name, shape}), "line");
}

void ChordProTest::WrittenDefinitionsAreReadBack() {
    for (const char* frets :
         {"x32010", "577655", "x(10)(12)(12)(11)(10)", "0(20)0000", "1(15)xxxx"}) {
        const ChordDefinition written{QStringLiteral("C/E"), Fingered(frets, "000000")};
        const auto directive = ReadDirective(WriteDefinition(written));
        QVERIFY(directive);
        QCOMPARE(directive->name, QStringLiteral("define"));
        QCOMPARE(ReadDefinition(directive->value), std::optional(written));
    }
}

void ChordProTest::Lyrics_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<QStringList>("parts"); // Chord and text in turn.
    const auto row = [](const char* rule, const char* line, const QStringList& parts) {
        QTest::newRow(rule) << Text(line) << parts;
    };
    row("none", "no chord here", {});
    row("at the beginning", "[Am]Hey", {Text("Am"), Text("Hey")});
    row("within a word", "re[C]turn", {QString(), Text("re"), Text("C"), Text("turn")});
    row("blanks belong to the text", "a [C] b [G]",
        {QString(), Text("a "), Text("C"), Text(" b "), Text("G"), QString()});
    row("side by side", "[C][G]x", {Text("C"), QString(), Text("G"), Text("x")});
    row("Cyrillic", "[Dm]Тихо [A7]тут", {Text("Dm"), Text("Тихо "), Text("A7"), Text("тут")});
    row("an empty bracket is text", "a[] b", {});
    row("a bracket that is not closed is text", "[Am]a [C", {Text("Am"), Text("a [C")});
    row("a bracket in a bracket", "[[Am]a", {QString(), Text("["), Text("Am"), Text("a")});
    row("a closing one alone", "a] b", {});
}

void ChordProTest::Lyrics() {
    QFETCH(const QString, line);
    QStringList read;
    for (const LyricPart& part : ReadLyrics(line))
        read << part.chord << part.text;
    QTEST(read, "parts");
}

void ChordProTest::ChordPlaces() {
    const QString line = QStringLiteral("a [C]b [G7]c");
    QStringList places;
    for (const LyricPart& part : ReadLyrics(line))
        places += line.sliced(part.chordPlace.start, part.chordPlace.length);
    QCOMPARE(places, QStringList({QString(), QStringLiteral("[C]"), QStringLiteral("[G7]")}));
}

QTEST_APPLESS_MAIN(ChordProTest)
#include "chordpro_test.moc"
