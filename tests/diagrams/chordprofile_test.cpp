// Songs in and out: what a file holds is what the sheet shows and what it gives back.
#include "diagrams/chordprofile.h"

#include "core/codepage.h"
#include "core/runtimeerror.h"
#include "diagrams/sheetpages.h"
#include "support/testfolder.h"

#include <QProcess>
#include <QTest>

class ChordProFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Songs_data();
    void Songs();
    void AnotherReaderTakesThem_data();
    void AnotherReaderTakesThem();
    void Encodings_data();
    void Encodings();
    void WhatIsNoText();
    void WhatCannotBeRead();
    void CodesBecomeDefinitions_data();
    void CodesBecomeDefinitions();
    void ThickStringAtTheBottom();
    void Fingers();
    void OneEndBehindTheLastLine();
    void WhereNothingCanBeWritten();

private:
    TestFolder m_folder;
};

namespace {

QString Text(const char* utf8) {
    return QString::fromUtf8(utf8);
}

} // namespace

void ChordProFileTest::Songs_data() {
    QTest::addColumn<QString>("path");
    const QDir songs(QStringLiteral(TONVIK_SONGS));
    for (const QString& name : songs.entryList(QDir::Files))
        QTest::newRow(qPrintable(name)) << songs.filePath(name);
}

void ChordProFileTest::Songs() {
    QFETCH(const QString, path);
    const QString song = ReadChordProFile(path);
    QVERIFY(!song.contains(QChar::ReplacementCharacter));
    const PageLook look{{11900, 16840}, false, [](TextStyle style, const QString& text) {
                            return LetterSize(style) * static_cast<double>(text.size()) / 2;
                        }};
    const auto pages = LayOutSheet(ReadSheetText(song, {}), look);
    QVERIFY(pages.front().texts.size() > 1); // More than the page's number.
    const QString written = m_folder.Path(QStringLiteral("out.cho"));
    WriteChordProFile(written, ChordProText(song, {}));
    QCOMPARE(ReadChordProFile(written), song);

    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray lines = file.readAll().replace("\r\n", "\n").replace("\xef\xbb\xbf", "");
    QFile copy(written);
    QVERIFY(copy.open(QIODevice::ReadOnly));
    const QByteArray out = copy.readAll();
    QVERIFY(out == lines || out == FromAnsi(lines).toUtf8());
}

void ChordProFileTest::AnotherReaderTakesThem_data() {
    QTest::addColumn<QString>("name");
    for (const char* name : {"ferryman.cho", "two-bridges.chopro", "two-short.cho"})
        QTest::newRow(name) << QString::fromLatin1(name); // No fingers, Latin letters.
}

void ChordProFileTest::AnotherReaderTakesThem() {
    QFETCH(const QString, name);
    const QString written = m_folder.Path(name);
    WriteChordProFile(written,
                      ChordProText(ReadChordProFile(QStringLiteral(TONVIK_SONGS "/") + name), {}));
    QProcess reader;
    reader.start(QStringLiteral("chordii"), {written});
    QVERIFY(reader.waitForFinished());
    QCOMPARE(reader.exitCode(), 0);
    QCOMPARE(reader.readAllStandardError(), QByteArray());
    QVERIFY(reader.readAllStandardOutput().startsWith("%!PS"));
}

void ChordProFileTest::Encodings_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("UTF-8") << Text("Жо 雪").toUtf8() << Text("Жо 雪");
    QTest::newRow("UTF-8 with a mark") << "\xef\xbb\xbf" + Text("Жо").toUtf8() << Text("Жо");
    QTest::newRow("code page 1251") << ToAnsi(Text("Жо")) << Text("Жо");
    QTest::newRow("CR LF") << QByteArray("a\r\nb\r\n") << Text("a\nb");
    QTest::newRow("CR") << QByteArray("a\rb\r") << Text("a\nb");
    QTest::newRow("LF, none at the end") << QByteArray("a\nb") << Text("a\nb");
    QTest::newRow("an empty line at the end") << QByteArray("a\n\n") << Text("a\n");
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("only a mark") << QByteArray("\xef\xbb\xbf") << QString();
    QTest::newRow("half a letter at the end") << QByteArray("a\xd0") << Text("aР");
}

void ChordProFileTest::Encodings() {
    QFETCH(const QByteArray, bytes);
    QVERIFY(m_folder.Write(QStringLiteral("s.cho"), bytes));
    QTEST(ReadChordProFile(m_folder.Path(QStringLiteral("s.cho"))), "text");
}

void ChordProFileTest::WhatIsNoText() {
    QVERIFY(m_folder.Write(QStringLiteral("s.cho"), QByteArray("\x7f"
                                                               "ELF\0\1\2",
                                                               7)));
    QVERIFY_THROWS_EXCEPTION(RunTimeError,
                             ReadChordProFile(m_folder.Path(QStringLiteral("s.cho"))));
}

void ChordProFileTest::WhatCannotBeRead() {
    QVERIFY_THROWS_EXCEPTION(RunTimeError,
                             ReadChordProFile(m_folder.Path(QStringLiteral("none.cho"))));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, ReadChordProFile(m_folder.Path()));
}

void ChordProFileTest::CodesBecomeDefinitions_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("written");
    const auto row = [](const char* rule, const char* text, const char* written) {
        QTest::newRow(rule) << Text(text) << Text(written);
    };
    row("string 6 first", "Am - 012200",
        "{define: Am base-fret 1 frets 0 0 2 2 1 0 fingers 0 0 0 0 0 0}");
    row("a 0 under the barre is the barre's fret", "Am - Б5/000220",
        "{define: Am base-fret 5 frets 1 3 3 1 1 1 fingers 0 0 0 0 0 0}");
    row("once a chord and name", "Am - 012200 Am - 012200 \nAm - 012200",
        "{define: Am base-fret 1 frets 0 0 2 2 1 0 fingers 0 0 0 0 0 0}");
    row("the same name, another shape", "A - 000000 A - 000001",
        "{define: A base-fret 1 frets 0 0 0 0 0 0 fingers 0 0 0 0 0 0}\n"
        "{define: A base-fret 1 frets 1 0 0 0 0 0 fingers 0 0 0 0 0 0}");
    row("defined already", "A - 000000\n{define: A frets 0 0 0 0 0 0}",
        "{define: A frets 0 0 0 0 0 0}");
    row("other lines stay", "{t: A}\n\n[C]a  b\t\n# c\nA - 00000\n",
        "{t: A}\n\n[C]a  b\t\n# c\n"
        "A - 00000\n");
    row("what stands behind the codes stays", "A - 000000 and so on",
        "{define: A base-fret 1 frets 0 0 0 0 0 0 fingers 0 0 0 0 0 0}\nand so on");
    row("a code in a tablature stays", "{sot}\nA - 000000\n{eot}", "{sot}\nA - 000000\n{eot}");
    row("a name with blanks", "Verse: Am - 000000",
        "{define: Verse:_Am base-fret 1 frets 0 0 0 0 0 0 fingers 0 0 0 0 0 0}");
}

void ChordProFileTest::CodesBecomeDefinitions() {
    QFETCH(const QString, text);
    QTEST(ChordProText(text, {}), "written");
}

void ChordProFileTest::ThickStringAtTheBottom() {
    SheetQuestions questions;
    questions.thinStringAtBottom = false;
    QCOMPARE(ChordProText(Text("Am - 002210"), questions),
             Text("{define: Am base-fret 1 frets 0 0 2 2 1 0 fingers 0 0 0 0 0 0}"));
}

void ChordProFileTest::Fingers() {
    SheetQuestions questions;
    questions.fingered = [](Shape shape) {
        shape.fingers = {0, 1, 3, 2, 0, 0};
        return shape;
    };
    QCOMPARE(ChordProText(Text("Am - 012200"), questions),
             Text("{define: Am base-fret 1 frets 0 0 2 2 1 0 fingers 0 0 2 3 1 0}"));
}

void ChordProFileTest::OneEndBehindTheLastLine() {
    const QString path = m_folder.Path(QStringLiteral("s.cho"));
    WriteChordProFile(path, Text("Ж\n"));
    QCOMPARE(m_folder.Bytes(QStringLiteral("s.cho")), Text("Ж\n\n").toUtf8());
    QCOMPARE(ReadChordProFile(path), Text("Ж\n"));
}

void ChordProFileTest::WhereNothingCanBeWritten() {
    QVERIFY_THROWS_EXCEPTION(
        RunTimeError,
        WriteChordProFile(m_folder.Path(QStringLiteral("no/s.cho")), QStringLiteral("a")));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, WriteChordProFile(m_folder.Path(), QStringLiteral("a")));
}

QTEST_APPLESS_MAIN(ChordProFileTest)
#include "chordprofile_test.moc"
