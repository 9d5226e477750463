// Shapes for chords that a text only names.
#include "diagrams/chordshapes.h"

#include "core/chordtypes.h"
#include "core/settings.h"
#include "music/names.h"

#include <QTest>

class ChordShapesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Names_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QList<int>>("notes"); // The root first; empty for no chord.
        QTest::addColumn<int>("bass");
        const auto row = [](const char* name, const QList<int>& notes, int bass = -1) {
            QTest::newRow(name) << QString::fromUtf8(name) << notes << bass;
        };
        row("C", {0, 4, 7});
        row("F#m7b5", {6, 9, 0, 4});
        row("Bb", {10, 2, 5});
        row("H7", {11, 3, 6, 9});
        row("C♯m", {1, 4, 8});
        row("Cb", {11, 3, 6});
        row("A-", {9, 0, 4});
        row("Edim7", {4, 7, 10, 1});
        row("G5", {7, 2});
        row("C/E", {0, 4, 7}, 4);
        row("Am7/F#", {9, 0, 4, 7}, 6);
        row("", {});
        row("c", {});
        row("am", {});
        row("N.C.", {});
        row("Zz", {});
        row("C/", {});
        row("C/x", {});
        row("C/Em", {});
        row("Chorus", {});
        row("---", {});
    }
    void Names() {
        QFETCH(const QString, name);
        QFETCH(const QList<int>, notes);
        const auto chord = ReadChordName(name, BuiltInChordTypes());
        QCOMPARE(chord.has_value(), !notes.isEmpty());
        if (!chord)
            return;
        NoteSet expected;
        for (const int note : notes)
            expected.Add(note);
        QCOMPARE(chord->root, notes[0]);
        QCOMPARE(chord->notes, expected);
        QTEST(chord->bass.value_or(-1), "bass");
    }

    void Shapes_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("frets");
        const auto row = [](const char* rule, const char* name, const char* frets) {
            QTest::newRow(rule) << QString::fromLatin1(name) << QString::fromLatin1(frets);
        };
        row("the usual one", "C", "x32010");
        row("another", "Am", "x02210");
        row("a barre", "F", "133211");
    }
    void Shapes() {
        QFETCH(const QString, name);
        AppState state = Standard();
        ChordShapes shapes(state);
        const auto shape = shapes(name);
        QVERIFY(shape);
        QTEST(FretsText(*shape), "frets");
        QVERIFY(FingersText(*shape) != QStringLiteral("000000"));
        QCOMPARE(shapes(name), shape); // Also when it is known already.
    }

    void TheAskedBassIsTheLowest() {
        AppState state = Standard();
        ChordShapes shapes(state);
        const auto lowest = [&](const QString& name) {
            const auto pitches = SoundingPitches(shapes(name).value(), TuningOf(state));
            return *std::min_element(pitches.begin(), pitches.end()) % notesPerOctave;
        };
        QCOMPARE(lowest(QStringLiteral("D/F#")), 6);
        QCOMPARE(lowest(QStringLiteral("Am/F#")), 6);
    }

    void AnotherTuningIsAnotherShape() {
        AppState state = Standard();
        ChordShapes shapes(state);
        const auto standard = shapes(QStringLiteral("D"));
        state.StringNotes[static_cast<std::size_t>(RowOfString(6, state.ThinStringAtBottom))] =
            QStringLiteral("D");
        QVERIFY(shapes(QStringLiteral("D")) != standard);
    }

    void WhatIsNoChordHasNoShape() {
        AppState state = Standard();
        ChordShapes shapes(state);
        QVERIFY(!shapes(QStringLiteral("Intro")));
    }

private:
    static AppState Standard() {
        AppState state;
        LayStrings(state, standardStrings, true);
        return state;
    }
};

QTEST_APPLESS_MAIN(ChordShapesTest)
#include "chordshapes_test.moc"
