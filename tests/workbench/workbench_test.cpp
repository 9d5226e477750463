// The workbench without a window: fingering, barre, combinations, the state as a value.
#include "core/runtimeerror.h"
#include "withbench.h"

class WorkbenchTest : public QObject, WithBench {
    Q_OBJECT

private Q_SLOTS:
    void init() { SetUp(); }

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
};

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
