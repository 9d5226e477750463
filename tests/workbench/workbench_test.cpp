// The workbench without a window: spelling, naming, fingering, barre, combinations.
#include "core/chordtypes.h"
#include "core/runtimeerror.h"
#include "core/settings.h"
#include "music/spelling.h"
#include "workbench/workbench.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

using Frets = QList<int>;

constexpr int none = -1;

} // namespace

class WorkbenchTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void ChoosingNamesAndSpells();
    void HintFollowsTheTypeOnly();
    void NothingChosenDoesNothing();
    void UnknownRoot();
    void StructuresPastTheEnd();
    void StepZeroLeavesTheKeyRed();
    void StepsThatAreNoDigits();
    void AlternativeNamesOfNothing();
    void Searching_data();
    void Searching();
    void TheExactPassComesFirst();
    void ATypeWithoutSuffix();
    void ARepeatedDegreeKeepsItsMark();
    void Naming_data();
    void Naming();
    void NamingByTheLastOfEqualStructures();
    void EmptyStructuresNameSingleKeys();
    void Scales_data();
    void Scales();
    void ScaleWithoutRoot();
    void ScaleThatFailsHalfWay();
    void CMajor();
    void NothingMarked();
    void MissingNotes_data();
    void MissingNotes();
    void BarreOfSixStrings();
    void StringsOutsideTheBarre();
    void BarreExtentIsAskedAnew();
    void BarreWithoutExtent();
    void BarreFretWithBarreOff();
    void BarreAtTheFarEnd();
    void FretNumbers();
    void MovingTheBarre();
    void ACopyKeepsTheState();
    void ShapeOfTheNeck_data();
    void ShapeOfTheNeck();
    void PressingStrings();
    void ClearingTheFretboard();
    void Combinations();
    void CombinationsOfAnOpenString();
    void CombinationsDisregardTheBarre();
    void CombinationsOfStringsThatAreNotThere_data();
    void CombinationsOfStringsThatAreNotThere();
    void CombinationsWithoutMarks();
    void ReadingTheFretboard();
    void ReadMarksGiveBackTheirColour();
    void NotesThatAreNone();
    void RetunedStrings();

private:
    void AppendTypes(const QByteArray& bytes);
    Frets Marks() const;
    QString Notes() const;

    AppState m_state;
    std::unique_ptr<Workbench> m_bench;
};

void WorkbenchTest::init() {
    m_state = AppState();
    LayStrings(m_state, standardStrings, true);
    m_bench = std::make_unique<Workbench>(m_state);
    m_bench->StringsChanged();
    m_bench->ChooseBarreStrings(5);
    m_bench->ChooseBarreFret(0);
    m_bench->ChooseRoot(0, QStringLiteral("C"));
    m_bench->ChooseType(0);
}

void WorkbenchTest::AppendTypes(const QByteArray& bytes) {
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("chords.dat"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write the test's file");
    file.write(bytes);
    file.close();
    m_state.ChordTypes.AppendDataFile(path);
}

Frets WorkbenchTest::Marks() const {
    Frets frets;
    for (int row = 0; row < stringCount; ++row)
        frets += m_bench->Row(row).mark.value_or(none);
    return frets;
}

QString WorkbenchTest::Notes() const {
    QStringList notes;
    for (int row = 0; row < stringCount; ++row)
        notes += m_bench->RowText(row);
    return notes.join(u' ');
}

void WorkbenchTest::ChoosingNamesAndSpells() {
    QCOMPARE(m_bench->ChordName(), QStringLiteral("C"));
    QCOMPARE(m_bench->MarkedNames(), QStringLiteral("C E G "));
    m_bench->ChooseType(6);
    QCOMPARE(m_bench->ChordName(), QStringLiteral("C7"));
    QCOMPARE(m_bench->Keys().Marked(), (std::vector<int>{0, 4, 7, 10}));
    m_bench->ChooseRoot(11, QStringLiteral("B"));
    QCOMPARE(m_bench->ChordName(), QStringLiteral("B7"));
    QCOMPARE(m_bench->Keys().Marked(), (std::vector<int>{11, 15, 18, 21}));
}

void WorkbenchTest::HintFollowsTheTypeOnly() {
    m_bench->ChooseType(1);
    QCOMPARE(m_bench->ChordHint(), QStringLiteral("m, min, -, minor"));
    m_bench->ChooseType(3);
    QCOMPARE(m_bench->ChordHint(), QStringLiteral("Уменьшенное трезвучие"));
    m_bench->ChooseRoot(4, QStringLiteral("E"));
    QCOMPARE(m_bench->ChordHint(), QStringLiteral("Уменьшенное трезвучие"));
}

void WorkbenchTest::NothingChosenDoesNothing() {
    Workbench bench(m_state);
    bench.ChooseRoot(0, QStringLiteral("C"));
    QCOMPARE(bench.ChordName(), QString());
    QVERIFY(bench.Keys().Marked().empty());
    Workbench other(m_state);
    other.ChooseType(0);
    QCOMPARE(other.ChordName(), QString());
    QVERIFY(other.Keys().Marked().empty());
}

void WorkbenchTest::UnknownRoot() {
    QVERIFY_THROWS_EXCEPTION(RunTimeError, m_bench->ChooseRoot(0, QStringLiteral("Db")));
    QCOMPARE(m_bench->ChordName(), QStringLiteral("Db")); // What was done stays.
    QVERIFY(m_bench->Keys().Marked().empty());
}

void WorkbenchTest::StructuresPastTheEnd() {
    AppendTypes("far\r\n\r\n\r\n9999");
    QVERIFY_THROWS_EXCEPTION(RunTimeError, m_bench->ChooseType(50));
    QCOMPARE(m_bench->Keys().Marked(), (std::vector<int>{0, 9, 18, 27}));
    QCOMPARE(m_bench->MarkedNames(), QString()); // Cleared before, not written after.
    AppendTypes("edge\r\n\r\n\r\n9998");
    m_bench->ChooseType(50);
    QCOMPARE(m_bench->Keys().Marked().back(), 35);
}

void WorkbenchTest::StepZeroLeavesTheKeyRed() {
    AppendTypes("zero\r\n\r\n\r\n40");
    m_bench->ChooseType(50);
    QCOMPARE(m_bench->Keys().Marked(), (std::vector<int>{0, 4}));
    m_bench->ClearKeyMarks();
    QCOMPARE(m_bench->Keys().Marked(), std::vector<int>{4});
}

void WorkbenchTest::StepsThatAreNoDigits() {
    AppendTypes("letters\r\n\r\n\r\na4-3");
    m_bench->ChooseType(50);
    QCOMPARE(m_bench->Keys().Marked(), (std::vector<int>{0, 4, 7}));
}

void WorkbenchTest::AlternativeNamesOfNothing() {
    const Workbench bench(m_state);
    QVERIFY_THROWS_EXCEPTION(RunTimeError, bench.AlternativeNames());
}

void WorkbenchTest::Searching_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("row");
    QTest::newRow("a list name") << QStringLiteral("m7b5") << 41;
    QTest::newRow("a list name before any notation") << QStringLiteral("maj") << 0;
    QTest::newRow("a notation") << QStringLiteral("5+") << 2;
    QTest::newRow("the last notation has no comma behind it") << QStringLiteral("minor") << none;
    QTest::newRow("the end of a notation") << QStringLiteral("in") << 1;
    QTest::newRow("the empty text finds the first comma") << QString() << 1;
    QTest::newRow("case counts") << QStringLiteral("MAJ") << none;
}

void WorkbenchTest::Searching() {
    QFETCH(const QString, text);
    QFETCH(const int, row);
    QCOMPARE(FindChordType(m_state.ChordTypes, text).value_or(none), row);
}

void WorkbenchTest::TheExactPassComesFirst() {
    AppendTypes("-\r\n\r\nx\r\n45"); // Among the other notations of an earlier type, too.
    QCOMPARE(FindChordType(m_state.ChordTypes, QStringLiteral("-")).value_or(none), 50);
}

void WorkbenchTest::ATypeWithoutSuffix() {
    AppendTypes("mine\r\n\r\n\r\n45");
    m_bench->ChooseRoot(0, QStringLiteral("C"));
    m_bench->ChooseType(50);
    QCOMPARE(m_bench->ChordName(), QStringLiteral("C"));
    m_bench->FindChord();
    QCOMPARE(m_bench->ChordName(), QStringLiteral("C"));
}

void WorkbenchTest::ARepeatedDegreeKeepsItsMark() {
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("scales.dat")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("mine\r\n1,3,3");
    file.close();
    m_state.Scales.AppendDataFile(file.fileName());
    m_bench->ChooseRoot(0, QStringLiteral("C"));
    m_bench->ChooseScale(66, QStringLiteral("mine"));
    m_bench->ClearKeyMarks(); // Red was kept as the colour to return to.
    QCOMPARE(m_bench->Keys().Marked(), std::vector{2});
}

void WorkbenchTest::Naming_data() {
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<QString>("name");
    QTest::newRow("major triad") << QList{0, 4, 7} << QStringLiteral("C");
    QTest::newRow("an octave higher") << QList{12, 16, 19} << QStringLiteral("C");
    QTest::newRow("inversions are not tried") << QList{4, 7, 12} << QStringLiteral("---");
    QTest::newRow("two octaves are no triad")
        << QList{0, 4, 7, 12, 16, 19} << QStringLiteral("---");
    QTest::newRow("seventh") << QList{9, 12, 16, 19} << QStringLiteral("Am7");
    QTest::newRow("nothing marked") << QList<int>{} << QStringLiteral("---");
    QTest::newRow("one key") << QList{5} << QStringLiteral("---");
    QTest::newRow("a distance of two digits") << QList{0, 10} << QStringLiteral("---");
}

void WorkbenchTest::Naming() {
    QFETCH(const QList<int>, keys);
    QFETCH(const QString, name);
    m_bench->ClearKeyMarks();
    for (const int key : keys)
        m_bench->ToggleKey(key);
    m_bench->FindChord();
    QCOMPARE(m_bench->ChordName(), name);
    QCOMPARE(m_bench->Keys().Marked(), std::vector<int>(keys.begin(), keys.end()));
}

void WorkbenchTest::NamingByTheLastOfEqualStructures() {
    AppendTypes("mine\r\n\r\n!\r\n43\r\nten\r\n\r\nten\r\n10");
    m_bench->FindChord();
    QCOMPARE(m_bench->ChordName(), QStringLiteral("C!"));
    // "10" as a structure means steps 1 and 0, but it is compared as text.
    QCOMPARE(NameChord({0, 10}, m_state.ChordTypes), QStringLiteral("Cten"));
}

void WorkbenchTest::EmptyStructuresNameSingleKeys() {
    AppendTypes("note\r\n\r\n note\r\n\r\n");
    QCOMPARE(NameChord({5}, m_state.ChordTypes), QStringLiteral("F note"));
    QCOMPARE(NameChord({}, m_state.ChordTypes), QStringLiteral(" note"));
}

void WorkbenchTest::Scales_data() {
    QTest::addColumn<QString>("degrees");
    QTest::addColumn<QList<int>>("keys");
    QTest::newRow("chromatic on B") << QStringLiteral("1,2,3,4,5,6,7,8,9,10,11,12")
                                    << QList{11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22};
    QTest::newRow("a first number that is not the root is lost")
        << QStringLiteral("3,5") << QList{11, 15};
    QTest::newRow("zero is the key below the root") << QStringLiteral("1,0") << QList{10, 11};
    QTest::newRow("no number is zero") << QStringLiteral("1,x") << QList{10, 11};
    QTest::newRow("a blank before a number") << QStringLiteral("1, 3") << QList{11, 13};
    QTest::newRow("a half is rounded to the even") << QStringLiteral("1,2.5") << QList{11, 12};
    QTest::newRow("an empty list is the root") << QString() << QList{11};
}

void WorkbenchTest::Scales() {
    QFETCH(const QString, degrees);
    QFETCH(const QList<int>, keys);
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("scales.dat")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("mine\r\n" + degrees.toLatin1());
    file.close();
    m_state.Scales.AppendDataFile(file.fileName());
    m_bench->ChooseRoot(11, QStringLiteral("B"));
    m_bench->ChooseScale(66, QStringLiteral("mine"));
    QCOMPARE(m_bench->Keys().Marked(), std::vector<int>(keys.begin(), keys.end()));
    QCOMPARE(m_bench->ChordName(), QStringLiteral("B mine"));
    QCOMPARE(Marks(), Frets(6, none));
}

void WorkbenchTest::ScaleWithoutRoot() {
    Workbench bench(m_state);
    QVERIFY_THROWS_EXCEPTION(RunTimeError, bench.ChooseScale(0, QStringLiteral("x")));
}

void WorkbenchTest::ScaleThatFailsHalfWay() {
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("scales.dat")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("far\r\n1,3,5,40,6\r\nlarge\r\n1,3,99999999");
    file.close();
    m_state.Scales.AppendDataFile(file.fileName());
    for (const int row : {66, 67}) {
        QVERIFY_THROWS_EXCEPTION(RunTimeError, m_bench->ChooseScale(row, QStringLiteral("x")));
        QVERIFY(m_bench->Keys().IsMarked(2)); // What was done stays.
        QCOMPARE(m_bench->ChordName(), QStringLiteral("C"));
    }
}

void WorkbenchTest::CMajor() {
    QCOMPARE(Marks(), (Frets{none, 1, none, 2, 3, none}));
    QCOMPARE(Notes(), QStringLiteral("E C G E C E"));
    QCOMPARE(m_bench->Missing().text, QStringLiteral("   "));
    QVERIFY(!m_bench->Missing().rootMissing);
    QCOMPARE(m_bench->Row(4).currentFret, 3);
    QCOMPARE(m_bench->Row(4).automaticFret, 3);
    QCOMPARE(m_bench->Row(0).automaticFret, 0);
}

void WorkbenchTest::NothingMarked() {
    m_bench->ClearKeyMarks();
    m_bench->PlaceFingers();
    QCOMPARE(Marks(), Frets(6, none));
    QCOMPARE(Notes(), QStringLiteral("E B G D A E"));
    QCOMPARE(m_bench->Missing().text, QString());
    QCOMPARE(m_bench->Row(4).currentFret, 3); // `StringFrets` stays.
}

void WorkbenchTest::MissingNotes_data() {
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("red");
    QTest::newRow("the lowest note alone decides the colour")
        << QList{1, 4, 9, 11, 14, 19} << QStringLiteral("C#      ") << true;
    QTest::newRow("a higher note is missing in black")
        << QList{4, 9, 11, 13, 14, 19} << QStringLiteral("   C#   ") << false;
    QTest::newRow("a note marked twice is missing twice")
        << QList{4, 9, 11, 13, 14, 19, 25} << QStringLiteral("   C#   C# ") << false;
}

void WorkbenchTest::MissingNotes() {
    QFETCH(const QList<int>, keys);
    QFETCH(const QString, text);
    QFETCH(const bool, red);
    m_bench->ClearKeyMarks();
    for (const int key : keys)
        m_bench->ToggleKey(key);
    m_bench->PlaceFingers();
    QCOMPARE(m_bench->Missing().text, text);
    QCOMPARE(m_bench->Missing().rootMissing, red);
}

void WorkbenchTest::BarreOfSixStrings() {
    m_bench->ChooseRoot(5, QStringLiteral("F"));
    m_bench->SwitchBarre();
    QCOMPARE(m_bench->ShownBarre(), (std::optional(Barre{1, 5})));
    QCOMPARE(Marks(), (Frets{none, none, 2, 3, 3, none}));
    QCOMPARE(Notes(), QStringLiteral("F C A F C F"));
    m_bench->ChooseRoot(7, QStringLiteral("G"));
    m_bench->ChooseBarreFret(2); // Moves the barre.
    QCOMPARE(m_bench->ShownBarre(), (std::optional(Barre{3, 5})));
    QCOMPARE(Marks(), (Frets{none, none, 4, 5, 5, none}));
    m_bench->SwitchBarre();
    QVERIFY(!m_bench->ShownBarre());
    QCOMPARE(Notes(), QStringLiteral("G B G D B G"));
}

void WorkbenchTest::StringsOutsideTheBarre() {
    m_bench->ChooseBarreStrings(0);
    m_bench->ChooseBarreFret(1);
    m_bench->SwitchBarre();
    // C major with a barre at fret 2: all strings start two semitones up, F# C# A E B F#;
    // only row 0 is counted from the nut.
    QCOMPARE(Notes(), QStringLiteral("G E C E C G"));
    QCOMPARE(Marks(), (Frets{3, 3, 3, none, 1, 1}));
}

void WorkbenchTest::BarreExtentIsAskedAnew() {
    m_bench->ChooseBarreStrings(0);
    m_bench->ChooseBarreFret(1);
    m_bench->SwitchBarre();
    m_bench->ChooseBarreStrings(5);
    QCOMPARE(m_bench->ShownBarre()->lastRow, 0); // The bar keeps its extent...
    m_bench->PlaceFingers();
    QCOMPARE(Marks(), (Frets{3, 5, 5, none, 3, 3})); // ...but all strings lie under it.
}

void WorkbenchTest::BarreWithoutExtent() {
    m_bench->ChooseBarreStrings(-1);
    QVERIFY_THROWS_EXCEPTION(RunTimeError, m_bench->SwitchBarre());
    QVERIFY(!m_bench->ShownBarre());
}

void WorkbenchTest::BarreFretWithBarreOff() {
    const Frets before = Marks();
    m_bench->ChooseBarreFret(4);
    QCOMPARE(Marks(), before);
    QVERIFY(!m_bench->ShownBarre());
    m_bench->SwitchBarre();
    QCOMPARE(m_bench->ShownBarre()->fret, 5);
}

void WorkbenchTest::BarreAtTheFarEnd() {
    m_bench->ClearKeyMarks();
    m_bench->ToggleKey(0); // C alone: often far above the barre.
    m_bench->ChooseBarreFret(14);
    m_bench->SwitchBarre();
    // Row 0 starts at G, five below C: fret 20 is past the search. Row 3 starts at F.
    QCOMPARE(m_bench->Row(0).mark, std::optional(20));
    QCOMPARE(m_bench->RowText(0), QStringLiteral("C"));
    QCOMPARE(m_bench->Row(3).mark, std::optional(20));
}

void WorkbenchTest::FretNumbers() {
    m_bench->PressFretNumber(5);
    QCOMPARE(m_bench->ShownBarre()->fret, 5);
    QCOMPARE(m_bench->BarreFretRow(), 4);
    m_bench->PressFretNumber(7);
    QCOMPARE(m_bench->ShownBarre()->fret, 7);
    m_bench->PressFretNumber(7);
    QVERIFY(!m_bench->ShownBarre());
    QCOMPARE(m_bench->BarreFretRow(), 6);
    QCOMPARE(Notes(), QStringLiteral("E C G E C E"));
}

void WorkbenchTest::MovingTheBarre() {
    m_bench->MoveBarre(1);
    QCOMPARE(m_bench->BarreFretRow(), 0); // None stands.
    m_bench->SwitchBarre();
    m_bench->MoveBarre(1);
    QCOMPARE(m_bench->BarreFretRow(), 1);
    QCOMPARE(m_bench->ShownBarre()->fret, 2);
    for (int move = 0; move < 20; ++move)
        m_bench->MoveBarre(1);
    QCOMPARE(m_bench->BarreFretRow(), 14);
    for (int move = 0; move < 20; ++move)
        m_bench->MoveBarre(-1);
    QCOMPARE(m_bench->BarreFretRow(), 0);
}

void WorkbenchTest::ACopyKeepsTheState() {
    const Workbench before = *m_bench;
    QVERIFY(*m_bench == before);
    m_bench->ToggleMute(2);
    QVERIFY(*m_bench != before);
    m_bench->ToggleMute(2);
    QVERIFY(*m_bench == before);
    m_bench->ReadFretboard(); // Marks keys and saves no colour.
    m_bench->ChooseType(3);
    m_bench->SwitchBarre();
    m_bench->PressString(1, 7);
    const Workbench after = *m_bench;
    QVERIFY(after != before);
    *m_bench = before;
    QVERIFY(*m_bench == before);
    QCOMPARE(m_bench->ChordName(), before.ChordName());
    *m_bench = after;
    QVERIFY(*m_bench == after);
}

void WorkbenchTest::ShapeOfTheNeck_data() {
    QTest::addColumn<bool>("thinStringAtBottom");
    QTest::newRow("thin string at the bottom") << true;
    QTest::newRow("thin string at the top") << false;
}

void WorkbenchTest::ShapeOfTheNeck() {
    QFETCH(bool, thinStringAtBottom);
    LayStrings(m_state, standardStrings, thinStringAtBottom);
    m_bench->StringsChanged();
    const auto row = [&](int string) { return RowOfString(string, thinStringAtBottom); };
    m_bench->PlaceFingers();
    QCOMPARE(FretsText(m_bench->NeckShape()), QStringLiteral("032010")); // C, fingered.
    m_bench->ToggleMute(row(6));
    m_bench->PressString(row(1), 12);
    QCOMPARE(FretsText(m_bench->NeckShape()), QStringLiteral("x3201(12)"));
    m_bench->ToggleMute(row(6));
    m_bench->ChooseBarreStrings(3);
    m_bench->ClearKeyMarks();
    m_bench->ChooseBarreFret(4);
    m_bench->SwitchBarre();
    m_bench->PressString(row(1), std::nullopt); // A mark off the board stands for the open string.
    const Shape shape = m_bench->NeckShape();
    QCOMPARE(FretsText(shape), QStringLiteral("555550"));
    QCOMPARE(shape.barres.size(), std::size_t(1));
    QCOMPARE(shape.barres.front(), (ShapeBarre{.fret = 5,
                                               .thinnest = thinStringAtBottom ? 1 : 3,
                                               .thickest = thinStringAtBottom ? 4 : 6}));
}

void WorkbenchTest::PressingStrings() {
    m_bench->PressString(2, 16);
    QCOMPARE(m_bench->RowText(2), QStringLiteral("B"));
    QCOMPARE(m_bench->Row(2).mark, std::optional(16));
    m_bench->PressString(2, std::nullopt);
    QCOMPARE(m_bench->RowText(2), QStringLiteral("G"));
    QCOMPARE(m_bench->Row(2).mark, std::optional(0));
    const Frets before = Marks();
    m_bench->PressString(std::nullopt, 3);
    QCOMPARE(Marks(), before);
    QCOMPARE(m_bench->Row(2).automaticFret, 0); // `StringFrets` is not touched.
}

void WorkbenchTest::ClearingTheFretboard() {
    m_bench->SwitchBarre();
    m_bench->ClearFretboard();
    QVERIFY(!m_bench->ShownBarre());
    QCOMPARE(Marks(), Frets(6, none));
    QCOMPARE(Notes(), QStringLiteral("E B G D A E"));
    QCOMPARE(m_bench->Missing().text, QString());
    QCOMPARE(m_bench->MarkedNames(), QStringLiteral("C E G ")); // The keys stay.
}

void WorkbenchTest::Combinations() {
    const QString string = QStringLiteral("5");
    for (const auto& [fret, note] : {std::pair(7, "E"), std::pair(10, "G"), std::pair(3, "C")}) {
        m_bench->FindNextFret(string);
        QCOMPARE(m_bench->Row(4).mark, std::optional(fret));
        QCOMPARE(m_bench->RowText(4), QString::fromLatin1(note));
    }
    QCOMPARE(m_bench->Row(4).automaticFret, 3);
}

void WorkbenchTest::CombinationsOfAnOpenString() {
    const Frets cycle{3, 8, 12, none, 3};
    for (const int fret : cycle) {
        m_bench->FindNextFret(QStringLiteral("1"));
        QCOMPARE(m_bench->Row(0).mark.value_or(none), fret);
    }
    m_bench->FindNextFret(QStringLiteral("2.5")); // Rounded to the even row: 1.5 is row 2.
    QCOMPARE(m_bench->Row(2).mark, std::optional(5));
}

void WorkbenchTest::CombinationsDisregardTheBarre() {
    m_bench->ChooseBarreFret(4);
    m_bench->SwitchBarre();
    QCOMPARE(m_bench->Row(4).automaticFret, 7);
    m_bench->FindNextFret(QStringLiteral("5"));
    QCOMPARE(m_bench->Row(4).mark, std::optional(10));
    m_bench->FindNextFret(QStringLiteral("5"));
    QCOMPARE(m_bench->Row(4).mark, std::optional(7));
    // Row 1 lies at the barre (E), which the search counts as fret 0 of the open B.
    QCOMPARE(m_bench->Row(1).automaticFret, 0);
    m_bench->FindNextFret(QStringLiteral("2"));
    QCOMPARE(m_bench->Row(1).mark, std::optional(1)); // Below the barre.
}

void WorkbenchTest::CombinationsOfStringsThatAreNotThere_data() {
    QTest::addColumn<QString>("text");
    for (const char* text : {"", "0", "7", "abc", "-1", "99999999999", "0.4"})
        QTest::newRow(*text == '\0' ? "empty" : text) << QString::fromLatin1(text);
}

void WorkbenchTest::CombinationsOfStringsThatAreNotThere() {
    QFETCH(const QString, text);
    const Frets before = Marks();
    QVERIFY_THROWS_EXCEPTION(RunTimeError, m_bench->FindNextFret(text));
    QCOMPARE(Marks(), before);
}

void WorkbenchTest::CombinationsWithoutMarks() {
    m_bench->ClearKeyMarks();
    const Frets before = Marks();
    m_bench->FindNextFret(QStringLiteral("2"));
    QCOMPARE(Marks(), before);
}

void WorkbenchTest::ReadingTheFretboard() {
    m_bench->ChooseRoot(9, QStringLiteral("A"));
    QCOMPARE(m_bench->Keys().Marked(), (std::vector<int>{9, 13, 16}));
    m_bench->ToggleMute(0);
    m_bench->ToggleMute(5);
    QVERIFY(!m_bench->Row(0).enabled);
    m_bench->ReadFretboard();
    QCOMPARE(m_bench->MarkedNames(), QStringLiteral("C# E A "));
    QCOMPARE(m_bench->Keys().Marked(), (std::vector<int>{1, 4, 9}));
    m_bench->ToggleMute(0);
    QVERIFY(m_bench->Row(0).enabled);
}

void WorkbenchTest::ReadMarksGiveBackTheirColour() {
    m_bench->ReadFretboard();
    m_bench->ToggleKey(0);
    QCOMPARE(m_bench->Keys().Fill(0), whiteKeyColour);
    m_bench->ToggleKey(1);
    m_bench->ToggleKey(1);
    QCOMPARE(m_bench->Keys().Fill(1), blackKeyColour);
}

void WorkbenchTest::NotesThatAreNone() {
    m_state.StringNotes[2] = QStringLiteral("H");
    m_bench->StringsChanged();
    m_bench->PlaceFingers();
    QCOMPARE(m_bench->RowText(2), QStringLiteral("H"));
    QVERIFY(!m_bench->Row(2).mark);
    m_bench->PressString(2, 3);
    m_bench->FindNextFret(QStringLiteral("3"));
    m_bench->SwitchBarre();
    QCOMPARE(m_bench->RowText(2), QStringLiteral("H"));
    QVERIFY(!m_bench->Row(2).mark);
    QVERIFY(m_bench->Row(3).mark); // The next one goes on.
}

void WorkbenchTest::RetunedStrings() {
    m_state.StringNotes[5] = QStringLiteral("D");
    m_bench->StringsChanged();
    QCOMPARE(Notes(), QStringLiteral("E B G D A D"));
    QCOMPARE(Marks(), (Frets{none, 1, none, 2, 3, none})); // The fingers stay.
    m_bench->PlaceFingers();
    QCOMPARE(Marks(), (Frets{none, 1, none, 2, 3, 2}));
}

QTEST_GUILESS_MAIN(WorkbenchTest)
#include "workbench_test.moc"
