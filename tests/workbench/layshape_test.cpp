// Laying a shape on the neck, and which chord is to be played.
#include "core/settings.h"
#include "music/fingernumbers.h"
#include "workbench/workbench.h"

#include <QTest>

class LayShapeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void Marks_data();
    void Marks();
    void Barre_data();
    void Barre();
    void ABarreThatStoodGoes();
    void WhatStays();
    void MissingNotesAsAfterFingering();
    void MutesAreTheUsersAgain_data();
    void MutesAreTheUsersAgain();
    void ARightPressCountsAsTheUsersOwn();
    void TheSearchGoesOnFromIt();
    void ChordToPlay_data();
    void ChordToPlay();
    void NoChord();

private:
    void Lay(const char* frets) {
        m_workbench->LayShape(WithFingers(*ReadShape(QString::fromLatin1(frets))));
    }
    void Choose(int root, const char* type) {
        for (int entry = 1; entry <= m_state.ChordTypes.Count(); ++entry)
            if (m_state.ChordTypes.FieldEquals(1, entry, QString::fromLatin1(type))) {
                m_workbench->ChooseRoot(root, NoteName(root).toString());
                m_workbench->ChooseType(entry - 1);
            }
    }
    QString MarkTexts() const {
        QStringList marks; // From string 6.
        for (int string = stringCount; string >= 1; --string) {
            const auto mark =
                m_workbench->Row(RowOfString(string, m_state.ThinStringAtBottom)).mark;
            marks += mark ? QString::number(*mark) : QStringLiteral("-");
        }
        return marks.join(u' ');
    }

    AppState m_state;
    std::unique_ptr<Workbench> m_workbench;
};

void LayShapeTest::init() {
    m_state = AppState();
    LayStrings(m_state, standardStrings, true);
    m_workbench = std::make_unique<Workbench>(m_state);
    m_workbench->StringsChanged();
    m_workbench->ChooseBarreStrings(5);
    m_workbench->ChooseBarreFret(0);
    Choose(0, "maj");
}

void LayShapeTest::Marks_data() {
    QTest::addColumn<bool>("thinAtBottom");
    QTest::newRow("the thin string below") << true;
    QTest::newRow("the thick string below") << false;
}

void LayShapeTest::Marks() {
    QFETCH(bool, thinAtBottom);
    LayStrings(m_state, standardStrings, thinAtBottom);
    m_workbench->StringsChanged();
    Lay("x32010");
    QCOMPARE(MarkTexts(), QStringLiteral("- 3 2 - 1 -"));
    QCOMPARE(FretsText(m_workbench->NeckShape()), QStringLiteral("x32010"));
    const auto row = [&](int string) -> const StringRow& {
        return m_workbench->Row(RowOfString(string, thinAtBottom));
    };
    QVERIFY(!row(6).enabled && row(5).enabled);
    QCOMPARE(m_workbench->RowText(RowOfString(6, thinAtBottom)), QStringLiteral("E"));
    QCOMPARE(m_workbench->RowText(RowOfString(5, thinAtBottom)), QStringLiteral("C"));
    QCOMPARE(row(6).currentFret + row(6).automaticFret, 0);
    QCOMPARE(row(5).currentFret, 3);
    QCOMPARE(row(5).automaticFret, 3);
    QCOMPARE(row(3).currentFret, 0);
}

void LayShapeTest::Barre_data() {
    QTest::addColumn<QString>("frets");
    QTest::addColumn<bool>("thinAtBottom");
    QTest::addColumn<int>("fret"); // 0: marks alone.
    QTest::addColumn<int>("strings");
    QTest::addColumn<QString>("marks");
    const auto row = [](const char* what, const char* frets, bool thinAtBottom, int fret,
                        int strings, const char* marks) {
        QTest::newRow(what) << QString::fromLatin1(frets) << thinAtBottom << fret << strings
                            << QString::fromLatin1(marks);
    };
    row("over all strings", "133211", true, 1, 6, "- 3 3 2 - -");
    row("from the thick string as well", "133211", false, 1, 6, "- 3 3 2 - -");
    row("five strings from the thin one", "x35543", true, 3, 5, "- - 5 5 4 -");
    row("the bar would not start at the bottom row", "x35543", false, 0, 0, "- 3 5 5 4 3");
    row("an open string would not sound at its fret", "xx0211", true, 0, 0, "- - - 2 1 1");
    row("no barre", "x32010", true, 0, 0, "- 3 2 - 1 -");
}

void LayShapeTest::Barre() {
    QFETCH(QString, frets);
    QFETCH(bool, thinAtBottom);
    QFETCH(int, fret);
    QFETCH(int, strings);
    LayStrings(m_state, standardStrings, thinAtBottom);
    m_workbench->StringsChanged();
    Lay(qPrintable(frets));
    QTEST(MarkTexts(), "marks");
    QCOMPARE(FretsText(m_workbench->NeckShape()), frets);
    QCOMPARE(m_workbench->ShownBarreFret(), fret > 0 ? std::optional(fret) : std::nullopt);
    if (fret == 0)
        return;
    QCOMPARE(m_workbench->BarreFretRow(), fret - 1);
    QCOMPARE(m_workbench->BarreStringsRow(), strings - 1);
}

void LayShapeTest::ABarreThatStoodGoes() {
    m_workbench->SwitchBarre();
    QVERIFY(m_workbench->ShownBarre());
    Lay("x32010");
    QVERIFY(!m_workbench->ShownBarre());
}

void LayShapeTest::WhatStays() {
    const QString name = m_workbench->ChordName();
    const auto keys = m_workbench->Keys().Marked();
    Lay("8(10)(10)988");
    QCOMPARE(m_workbench->ChordName(), name);
    QCOMPARE(m_workbench->Keys().Marked(), keys);
    QCOMPARE(m_workbench->RootRow(), 0);
    QCOMPARE(m_workbench->TypeRow(), 0);
}

void LayShapeTest::MissingNotesAsAfterFingering() {
    Lay("032010");
    QVERIFY(m_workbench->Missing().text.trimmed().isEmpty());
    Lay("0x2xx0"); // The muted strings are as if they sounded open.
    QVERIFY(m_workbench->Missing().text.contains(u'C'));
    QVERIFY(m_workbench->Missing().rootMissing);
}

void LayShapeTest::MutesAreTheUsersAgain_data() {
    QTest::addColumn<int>("command");
    QTest::newRow("after the automatic fingering") << 0;
    QTest::newRow("after another chord") << 1;
    QTest::newRow("after clearing") << 2;
    QTest::newRow("after a scale") << 3;
}

void LayShapeTest::MutesAreTheUsersAgain() {
    QFETCH(int, command);
    m_workbench->ToggleMute(2); // String 3.
    Lay("x32010");
    Lay("xx5553");
    QVERIFY(m_workbench->Row(2).enabled && !m_workbench->Row(4).enabled);
    if (command == 0)
        m_workbench->PlaceFingers();
    else if (command == 1)
        Choose(2, "min");
    else if (command == 2)
        m_workbench->ClearFretboard();
    else
        m_workbench->ChooseScale(0, QStringLiteral("scale"));
    for (int row = 0; row < stringCount; ++row)
        QCOMPARE(m_workbench->Row(row).enabled, row != 2);
}

void LayShapeTest::ARightPressCountsAsTheUsersOwn() {
    Lay("x32010");
    m_workbench->ToggleMute(0); // Muted by the user.
    m_workbench->ToggleMute(5); // Sounds again: that is the user's own, too.
    m_workbench->PlaceFingers();
    QVERIFY(!m_workbench->Row(0).enabled);
    QVERIFY(m_workbench->Row(5).enabled);
}

void LayShapeTest::TheSearchGoesOnFromIt() {
    Lay("x32010");
    m_workbench->FindNextFret(QStringLiteral("5")); // String 5: from fret 3 to E at 7.
    QCOMPARE(m_workbench->Row(4).mark, std::optional(7));
}

void LayShapeTest::ChordToPlay_data() {
    QTest::addColumn<QList<int>>("toggled");
    QTest::addColumn<int>("root");
    QTest::addColumn<QString>("name");
    QTest::newRow("the chosen chord") << QList<int>{} << 0 << "C";
    QTest::newRow("its notes elsewhere") << QList<int>{0, 24} << 0 << "C";
    QTest::newRow("other notes, over the lowest") << QList<int>{0} << 4 << "";
    QTest::newRow("a note more") << QList<int>{9} << 0 << "";
}

void LayShapeTest::ChordToPlay() {
    QFETCH(QList<int>, toggled);
    for (const int key : toggled)
        m_workbench->ToggleKey(key);
    const auto toPlay = m_workbench->ToPlay();
    QTEST(toPlay.chord.root, "root");
    QTEST(toPlay.name, "name");
    for (const int key : m_workbench->Keys().Marked())
        QVERIFY(toPlay.chord.notes.Contains(key));
}

void LayShapeTest::NoChord() {
    m_workbench->ClearKeyMarks();
    QVERIFY(m_workbench->ToPlay().chord.notes.Empty());
    QVERIFY(m_workbench->ToPlay().name.isEmpty());
}

QTEST_APPLESS_MAIN(LayShapeTest)
#include "layshape_test.moc"
