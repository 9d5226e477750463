// The workbench without a window: choosing, spelling, searching, naming, scales.
#include "core/chordtypes.h"
#include "core/runtimeerror.h"
#include "music/spelling.h"
#include "withbench.h"

class ChoosingTest : public QObject, WithBench {
    Q_OBJECT

private Q_SLOTS:
    void init() { SetUp(); }

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
};

void ChoosingTest::ChoosingNamesAndSpells() {
    QCOMPARE(m_bench->ChordName(), QStringLiteral("C"));
    QCOMPARE(m_bench->MarkedNames(), QStringLiteral("C E G "));
    m_bench->ChooseType(6);
    QCOMPARE(m_bench->ChordName(), QStringLiteral("C7"));
    QCOMPARE(m_bench->Keys().Marked(), (std::vector<int>{0, 4, 7, 10}));
    m_bench->ChooseRoot(11, QStringLiteral("B"));
    QCOMPARE(m_bench->ChordName(), QStringLiteral("B7"));
    QCOMPARE(m_bench->Keys().Marked(), (std::vector<int>{11, 15, 18, 21}));
}

void ChoosingTest::HintFollowsTheTypeOnly() {
    m_bench->ChooseType(1);
    QCOMPARE(m_bench->ChordHint(), QStringLiteral("m, min, -, minor"));
    m_bench->ChooseType(3);
    QCOMPARE(m_bench->ChordHint(), QStringLiteral("Уменьшенное трезвучие"));
    m_bench->ChooseRoot(4, QStringLiteral("E"));
    QCOMPARE(m_bench->ChordHint(), QStringLiteral("Уменьшенное трезвучие"));
}

void ChoosingTest::NothingChosenDoesNothing() {
    Workbench bench(m_state);
    bench.ChooseRoot(0, QStringLiteral("C"));
    QCOMPARE(bench.ChordName(), QString());
    QVERIFY(bench.Keys().Marked().empty());
    Workbench other(m_state);
    other.ChooseType(0);
    QCOMPARE(other.ChordName(), QString());
    QVERIFY(other.Keys().Marked().empty());
}

void ChoosingTest::UnknownRoot() {
    QVERIFY_THROWS_EXCEPTION(RunTimeError, m_bench->ChooseRoot(0, QStringLiteral("Db")));
    QCOMPARE(m_bench->ChordName(), QStringLiteral("Db")); // What was done stays.
    QVERIFY(m_bench->Keys().Marked().empty());
}

void ChoosingTest::StructuresPastTheEnd() {
    AppendTypes("far\r\n\r\n\r\n9999");
    QVERIFY_THROWS_EXCEPTION(RunTimeError, m_bench->ChooseType(50));
    QCOMPARE(m_bench->Keys().Marked(), (std::vector<int>{0, 9, 18, 27}));
    QCOMPARE(m_bench->MarkedNames(), QString()); // Cleared before, not written after.
    AppendTypes("edge\r\n\r\n\r\n9998");
    m_bench->ChooseType(50);
    QCOMPARE(m_bench->Keys().Marked().back(), 35);
}

void ChoosingTest::StepZeroLeavesTheKeyRed() {
    AppendTypes("zero\r\n\r\n\r\n40");
    m_bench->ChooseType(50);
    QCOMPARE(m_bench->Keys().Marked(), (std::vector<int>{0, 4}));
    m_bench->ClearKeyMarks();
    QCOMPARE(m_bench->Keys().Marked(), std::vector<int>{4});
}

void ChoosingTest::StepsThatAreNoDigits() {
    AppendTypes("letters\r\n\r\n\r\na4-3");
    m_bench->ChooseType(50);
    QCOMPARE(m_bench->Keys().Marked(), (std::vector<int>{0, 4, 7}));
}

void ChoosingTest::AlternativeNamesOfNothing() {
    const Workbench bench(m_state);
    QVERIFY_THROWS_EXCEPTION(RunTimeError, bench.AlternativeNames());
}

void ChoosingTest::Searching_data() {
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

void ChoosingTest::Searching() {
    QFETCH(const QString, text);
    QFETCH(const int, row);
    QCOMPARE(FindChordType(m_state.ChordTypes, text).value_or(none), row);
}

void ChoosingTest::TheExactPassComesFirst() {
    AppendTypes("-\r\n\r\nx\r\n45"); // Among the other notations of an earlier type, too.
    QCOMPARE(FindChordType(m_state.ChordTypes, QStringLiteral("-")).value_or(none), 50);
}

void ChoosingTest::ATypeWithoutSuffix() {
    AppendTypes("mine\r\n\r\n\r\n45");
    m_bench->ChooseRoot(0, QStringLiteral("C"));
    m_bench->ChooseType(50);
    QCOMPARE(m_bench->ChordName(), QStringLiteral("C"));
    m_bench->FindChord();
    QCOMPARE(m_bench->ChordName(), QStringLiteral("C"));
}

void ChoosingTest::ARepeatedDegreeKeepsItsMark() {
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

void ChoosingTest::Naming_data() {
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

void ChoosingTest::Naming() {
    QFETCH(const QList<int>, keys);
    QFETCH(const QString, name);
    m_bench->ClearKeyMarks();
    for (const int key : keys)
        m_bench->ToggleKey(key);
    m_bench->FindChord();
    QCOMPARE(m_bench->ChordName(), name);
    QCOMPARE(m_bench->Keys().Marked(), std::vector<int>(keys.begin(), keys.end()));
}

void ChoosingTest::NamingByTheLastOfEqualStructures() {
    AppendTypes("mine\r\n\r\n!\r\n43\r\nten\r\n\r\nten\r\n10");
    m_bench->FindChord();
    QCOMPARE(m_bench->ChordName(), QStringLiteral("C!"));
    // "10" as a structure means steps 1 and 0, but it is compared as text.
    QCOMPARE(NameChord({0, 10}, m_state.ChordTypes), QStringLiteral("Cten"));
}

void ChoosingTest::EmptyStructuresNameSingleKeys() {
    AppendTypes("note\r\n\r\n note\r\n\r\n");
    QCOMPARE(NameChord({5}, m_state.ChordTypes), QStringLiteral("F note"));
    QCOMPARE(NameChord({}, m_state.ChordTypes), QStringLiteral(" note"));
}

void ChoosingTest::Scales_data() {
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

void ChoosingTest::Scales() {
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

void ChoosingTest::ScaleWithoutRoot() {
    Workbench bench(m_state);
    QVERIFY_THROWS_EXCEPTION(RunTimeError, bench.ChooseScale(0, QStringLiteral("x")));
}

void ChoosingTest::ScaleThatFailsHalfWay() {
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

QTEST_GUILESS_MAIN(ChoosingTest)
#include "choosing_test.moc"
