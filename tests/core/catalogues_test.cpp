// The three catalogues: built-in entries, and the records of their data files.
#include "core/chordtypes.h"
#include "core/codepage.h"
#include "core/notes.h"
#include "core/runtimeerror.h"
#include "core/scales.h"
#include "core/tunings.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QByteArray record = "Mine\r\nalt\r\nsfx\r\n43";

} // namespace

class CataloguesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void NoteTables();
    void NotesOutsideTheTables();
    void BuiltInCounts();
    void BuiltInStructuresStayInTheOctave();
    void BuiltInScalesStartAtTheRoot();
    void BuiltInTuningsHaveSixNotes();
    void OddSpellingsAreKept();
    void FieldsOutsideTheTable();
    void ChordsFile_data();
    void ChordsFile();
    void TwoLineFiles_data();
    void TwoLineFiles();
    void RecordsKeepTheirText();
    void EveryByteIsTaken();
    void MissingFileChangesNothing();
    void FolderInPlaceOfTheFile();
    void ComparingFields();
    void ManyRecords();

private:
    QString Write(const QByteArray& bytes) const;

    QTemporaryDir m_folder;
};

QString CataloguesTest::Write(const QByteArray& bytes) const {
    QString path = m_folder.filePath(QStringLiteral("file.dat"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write the test's file");
    file.write(bytes);
    return path;
}

void CataloguesTest::NoteTables() {
    QCOMPARE(NoteName(13), u"C#");
    QCOMPARE(NoteName(35), u"B");
    QCOMPARE(KeyZoneNote(20), 12);
    QCOMPARE(KeyZoneNote(41), 24);
    QCOMPARE(KeyZoneNote(62), 0);
    QCOMPARE(WhiteKeyNote(20), 35);
    for (int octave = 0; octave < 3; ++octave)
        for (int note = 0; note < notesPerOctave; ++note) {
            QCOMPARE(NoteName(12 * octave + note), NoteName(note));
            QCOMPARE(SemitoneOf(NoteName(note)), std::optional(note));
        }
    for (int zone = 21; zone < 62; ++zone)
        QCOMPARE(KeyZoneNote(zone), KeyZoneNote(zone - 21) + 12);
    QVERIFY(!SemitoneOf(u"Db"));
    QVERIFY(!SemitoneOf(u"c"));
    QVERIFY(!SemitoneOf(u""));
}

void CataloguesTest::NotesOutsideTheTables() {
    QVERIFY_THROWS_EXCEPTION(RunTimeError, NoteName(-1));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, NoteName(36));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, WhiteKeyNote(21));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, KeyZoneNote(63));
}

void CataloguesTest::BuiltInCounts() {
    QCOMPARE(BuiltInChordTypes().Count(), 50);
    QCOMPARE(BuiltInScales().Count(), 66);
    QCOMPARE(BuiltInTunings().Count(), 36);
}

void CataloguesTest::BuiltInStructuresStayInTheOctave() {
    const TextTable types = BuiltInChordTypes();
    for (int entry = 1; entry <= types.Count(); ++entry) {
        int sum = 0;
        for (const QChar digit : types.Field(ChordType::Structure, entry)) {
            QVERIFY(digit >= u'1' && digit <= u'9');
            sum += digit.digitValue();
        }
        QVERIFY2(sum > 0 && sum <= 11, qPrintable(types.Field(ChordType::Name, entry)));
        QCOMPARE(types.Field(ChordType::Reserved, entry), QString());
    }
}

void CataloguesTest::BuiltInScalesStartAtTheRoot() {
    const TextTable scales = BuiltInScales();
    for (int entry = 1; entry <= scales.Count(); ++entry) {
        const QStringList degrees = scales.Field(ScaleDef::Degrees, entry).split(u',');
        QCOMPARE(degrees.first(), QStringLiteral("1"));
        QVERIFY(degrees.size() >= 5 && degrees.size() <= 12);
        for (int i = 1; i < degrees.size(); ++i)
            QVERIFY(degrees[i].toInt() > degrees[i - 1].toInt() && degrees[i].toInt() <= 12);
    }
    QCOMPARE(scales.Field(ScaleDef::Name, 66), QStringLiteral("Minor"));
}

void CataloguesTest::BuiltInTuningsHaveSixNotes() {
    const TextTable tunings = BuiltInTunings();
    for (int entry = 1; entry <= tunings.Count(); ++entry) {
        const QStringList notes = tunings.Field(TuningDef::Notes, entry).split(u',');
        QCOMPARE(notes.size(), 6);
        for (const QString& note : notes)
            QVERIFY2(SemitoneOf(note), qPrintable(note));
    }
    QCOMPARE(tunings.Field(TuningDef::Name, 1), QStringLiteral("Low D/Drop D"));
    QCOMPARE(tunings.Field(TuningDef::Notes, 1), QStringLiteral("E,B,G,D,A,D"));
}

void CataloguesTest::OddSpellingsAreKept() {
    QCOMPARE(BuiltInTunings().Field(TuningDef::Name, 35),
             QStringLiteral("Perfect Fouth [Perfect 4th]"));
    QCOMPARE(BuiltInTunings().Field(TuningDef::Name, 16), QStringLiteral("Cyail C"));
    QCOMPARE(BuiltInScales().Field(ScaleDef::Name, 14), QStringLiteral("Myxolidian"));
    QCOMPARE(BuiltInScales().Field(ScaleDef::Name, 46), QStringLiteral("Lidian Minor"));
    QCOMPARE(BuiltInChordTypes().Field(ChordType::AltNames, 1), QStringLiteral("maj"));
    QCOMPARE(BuiltInChordTypes().Field(ChordType::Structure, 14), QStringLiteral("214"));
}

void CataloguesTest::FieldsOutsideTheTable() {
    const TextTable types = BuiltInChordTypes();
    QVERIFY_THROWS_EXCEPTION(RunTimeError, types.Field(ChordType::Name, 0));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, types.Field(ChordType::Name, 51));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, types.Field(0, 1));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, types.Field(6, 1));
}

void CataloguesTest::ChordsFile_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("records");
    QTest::newRow("an empty file adds nothing") << QByteArray() << 0;
    QTest::newRow("four lines without a final line end are a record") << record << 1;
    QTest::newRow("four lines with a final line end are a record") << record + "\r\n" << 1;
    QTest::newRow("three lines are none") << QByteArray("a\r\nb\r\nc") << 0;
    QTest::newRow("three lines and a final line end are a record with an empty structure")
        << QByteArray("a\r\nb\r\nc\r\n") << 1;
    QTest::newRow("seven lines are one") << record + "\r\n" + "a\r\nb\r\nc" << 1;
    QTest::newRow("eight lines are two") << record + "\r\n" + record << 2;
    QTest::newRow("a lone CR or LF separates nothing") << QByteArray("a\nb\rc\nd\ne\nf\rg\nh") << 0;
    QTest::newRow("empty lines are empty fields") << QByteArray("\r\n\r\n\r\n") << 1;
    QTest::newRow("one line end is two pieces") << QByteArray("\r\n") << 0;
}

void CataloguesTest::ChordsFile() {
    QFETCH(const QByteArray, bytes);
    QFETCH(const int, records);
    TextTable types = BuiltInChordTypes();
    types.AppendDataFile(Write(bytes));
    QCOMPARE(types.Count(), 50 + records);
}

void CataloguesTest::TwoLineFiles_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("records");
    QTest::newRow("an empty file adds nothing") << QByteArray() << 0;
    QTest::newRow("two lines without a final line end") << QByteArray("n\r\n1,2") << 1;
    QTest::newRow("two lines with a final line end") << QByteArray("n\r\n1,2\r\n") << 1;
    QTest::newRow("three lines") << QByteArray("n\r\n1,2\r\nx") << 1;
    QTest::newRow("one line and a final line end") << QByteArray("n\r\n") << 1;
}

void CataloguesTest::TwoLineFiles() {
    QFETCH(const QByteArray, bytes);
    QFETCH(const int, records);
    TextTable scales = BuiltInScales();
    TextTable tunings = BuiltInTunings();
    scales.AppendDataFile(Write(bytes));
    tunings.AppendDataFile(Write(bytes));
    QCOMPARE(scales.Count(), 66 + records);
    QCOMPARE(tunings.Count(), 36 + records);
    if (records > 0) {
        QCOMPARE(scales.Field(ScaleDef::Name, 67), QStringLiteral("n"));
        QCOMPARE(tunings.Field(TuningDef::Name, 37), QStringLiteral("n"));
    }
}

void CataloguesTest::RecordsKeepTheirText() {
    TextTable types = BuiltInChordTypes();
    types.AppendDataFile(
        Write(ToAnsi(u" Мой\tтип ;\r\n\"a, b\"\r\n\r\n4x\n3\r\nmaj\r\nb\r\nc\r\n")));
    QCOMPARE(types.Count(), 52);
    QCOMPARE(types.Field(ChordType::Name, 51), QStringLiteral(" Мой\tтип ;"));
    QCOMPARE(types.Field(ChordType::AltNames, 51), QStringLiteral("\"a, b\""));
    QCOMPARE(types.Field(ChordType::Suffix, 51), QString());
    QCOMPARE(types.Field(ChordType::Structure, 51), QStringLiteral("4x\n3"));
    QCOMPARE(types.Field(ChordType::Reserved, 51), QString());
    QCOMPARE(types.Field(ChordType::Name, 52), QStringLiteral("maj"));
    QCOMPARE(types.Field(ChordType::Structure, 52), QString());
}

void CataloguesTest::EveryByteIsTaken() {
    QByteArray line;
    for (int byte = 1; byte < 256; ++byte)
        if (byte != '\r' && byte != '\n')
            line += static_cast<char>(byte);
    line += '\0';
    TextTable scales = BuiltInScales();
    scales.AppendDataFile(Write(line + "\r\n" + line));
    QCOMPARE(scales.Count(), 67);
    QCOMPARE(ToAnsi(scales.Field(ScaleDef::Name, 67)), line);
    QCOMPARE(scales.Field(ScaleDef::Name, 67), scales.Field(ScaleDef::Degrees, 67));
}

void CataloguesTest::MissingFileChangesNothing() {
    TextTable types = BuiltInChordTypes();
    types.AppendDataFile(m_folder.filePath(QStringLiteral("none.dat")));
    QCOMPARE(types.Count(), 50);
}

void CataloguesTest::FolderInPlaceOfTheFile() {
    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("chords.dat")));
    TextTable types = BuiltInChordTypes();
    QVERIFY_THROWS_EXCEPTION(RunTimeError,
                             types.AppendDataFile(m_folder.filePath(QStringLiteral("chords.dat"))));
}

void CataloguesTest::ComparingFields() {
    TextTable types = BuiltInChordTypes();
    types.AppendDataFile(Write(ToAnsi(u"Мой\r\nплюс, минус\r\nm\r\n43")));
    QVERIFY(types.FieldEquals(ChordType::Name, 2, u"min"));
    QVERIFY(!types.FieldEquals(ChordType::Name, 2, u"Min"));
    QVERIFY(types.FieldEquals(ChordType::Name, 51, u"Мой"));
    QVERIFY(!types.FieldEquals(ChordType::Name, 51, u"мой"));
    QVERIFY(types.FieldEquals(ChordType::Structure, 51, u"43"));
    QVERIFY(types.FieldContains(ChordType::AltNames, 51, u"плюс,"));
    QVERIFY(!types.FieldContains(ChordType::AltNames, 51, u"минус,"));
    QVERIFY(types.FieldContains(ChordType::AltNames, 2, u"min,"));
    QVERIFY(types.FieldStartsWith(ChordType::Name, 51, u"мО"));
    QVERIFY(!types.FieldStartsWith(ChordType::Name, 51, u"ой"));
    QVERIFY(types.FieldStartsWith(ChordType::AltNames, 2, u"M, MIN"));
}

void CataloguesTest::ManyRecords() {
    constexpr int count = 100'000;
    QByteArray bytes;
    for (int i = 0; i < count; ++i)
        bytes += "N" + QByteArray::number(i) + "\r\nalt\r\ns\r\n43\r\n";
    TextTable types = BuiltInChordTypes();
    types.AppendDataFile(Write(bytes));
    QCOMPARE(types.Count(), 50 + count);
    QCOMPARE(types.Field(ChordType::Name, 50 + count), QStringLiteral("N99999"));
    QCOMPARE(types.Field(ChordType::Structure, 51), QStringLiteral("43"));
}

QTEST_GUILESS_MAIN(CataloguesTest)
#include "catalogues_test.moc"
