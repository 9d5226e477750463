// What filters let through, and in which order.
#include "music/chords.h"
#include "music/voicingchoice.h"

#include <QTest>

#include <algorithm>

namespace {

const QString cMajor = QStringLiteral("C maj");

ChordOnStrings On(const QString& chord) {
    const NamedChord named(chord);
    return {named.notes, named.root, StandardTuning()};
}

std::vector<Voicing> All(const ChordOnStrings& chord) {
    return FindVoicings(chord.notes, chord.root, chord.tuning).shapes;
}

QStringList Chosen(const QString& chord, const VoicingFilter& filter,
                   VoicingOrder order = VoicingOrder::Usual, const Shape& neck = {}) {
    const ChordOnStrings on = On(chord);
    QStringList texts;
    for (const Voicing& voicing : ChooseVoicings(All(on), on, filter, order, neck))
        texts.append(FretsText(voicing.ToShape()));
    return texts;
}

Shape Held(const char* frets) {
    return WithFingers(*ReadShape(QString::fromLatin1(frets)));
}

} // namespace

class VoicingChoiceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Filters_data();
    void Filters();
    void FiltersCombine();
    void Orders();
    void Movement_data();
    void Movement();
};

void VoicingChoiceTest::Filters_data() {
    QTest::addColumn<VoicingFilter>("filter");
    QTest::addColumn<QString>("chord");
    QTest::addColumn<QString>("passes");
    QTest::addColumn<QString>("stays");
    const auto row = [](const char* what, const VoicingFilter& filter, const char* passes,
                        const char* stays, const char* chord = "C maj") {
        QTest::newRow(what) << filter << QString::fromLatin1(chord) << QString::fromLatin1(passes)
                            << QString::fromLatin1(stays);
    };
    VoicingFilter filter;
    filter.fromFret = 3;
    row("position from", filter, "x35553", "x32010");
    row("open strings alone are position 1", filter, "x75757", "0x0000", "E m7");
    filter = {};
    filter.toFret = 2;
    row("position to", filter, "x32010", "x35553");
    filter = {};
    filter.openStrings = true;
    row("open strings", filter, "x32010", "x35553");
    filter.openStrings = false;
    row("no open strings", filter, "x35553", "x32010");
    filter = {};
    filter.noBarre = true;
    row("no barre", filter, "x32010", "8(10)(10)988");
    filter = {};
    filter.mostFingers = 3;
    row("three fingers", filter, "x32010", "8(10)(10)988");
    filter = {};
    filter.bass = ChordDegree::Root;
    row("the root in the bass", filter, "x32010", "032010");
    filter.bass = ChordDegree::Third;
    row("the third", filter, "032010", "x32010");
    filter.bass = ChordDegree::Fifth;
    row("the fifth", filter, "332010", "x32010");
    row("a lowered fifth where there is no other", filter, "x3421x", "xx4575", "F# dim");
    filter = {};
    filter.complete = true;
    row("complete", filter, "x35353", "x32310", "C 7");
    filter = {};
    filter.sounds[5] = true;
    filter.sounds[0] = false;
    row("which strings sound", filter, "87555x", "x32010");
}

void VoicingChoiceTest::Filters() {
    QFETCH(VoicingFilter, filter);
    QFETCH(QString, chord);
    QFETCH(QString, passes);
    QFETCH(QString, stays);
    const QStringList all = Chosen(chord, {});
    QVERIFY2(all.contains(passes) && all.contains(stays), "the list has both");
    const QStringList chosen = Chosen(chord, filter);
    QVERIFY(chosen.contains(passes));
    QVERIFY(!chosen.contains(stays));
}

void VoicingChoiceTest::FiltersCombine() {
    VoicingFilter filter;
    filter.bass = ChordDegree::Root;
    filter.openStrings = true;
    filter.mostFingers = 3;
    filter.toFret = 1;
    const QStringList chosen = Chosen(cMajor, filter);
    QCOMPARE(chosen.value(0), QStringLiteral("x32010"));
    QVERIFY(!chosen.contains(QStringLiteral("x32013"))); // Four fingers.
    const auto all = static_cast<qsizetype>(All(On(cMajor)).size());
    QCOMPARE(Chosen(cMajor, {}).size(), all);
    filter.sounds.fill(false);
    QVERIFY(Chosen(cMajor, filter).isEmpty());
}

void VoicingChoiceTest::Orders() {
    const auto before = [](const QStringList& list, const char* first, const char* second) {
        return list.indexOf(QString::fromLatin1(first)) < list.indexOf(QString::fromLatin1(second));
    };
    const QStringList usual = Chosen(cMajor, {});
    QVERIFY(before(usual, "x35553", "xx2010") && before(usual, "8(10)(10)988", "032010"));
    const QStringList byPosition = Chosen(cMajor, {}, VoicingOrder::Position);
    QVERIFY(before(byPosition, "032010", "x35553") && before(byPosition, "x35553", "8(10)(10)988"));
    QVERIFY2(before(byPosition, "x32010", "032010"), "the usual one first at one position");
    const QStringList byBass = Chosen(cMajor, {}, VoicingOrder::Bass);
    QVERIFY(before(byBass, "032010", "332010") && before(byBass, "332010", "x32010"));
    const QStringList near = Chosen(cMajor, {}, VoicingOrder::Movement, Held("x35553"));
    QCOMPARE(near.value(0), QStringLiteral("x35553"));
    QCOMPARE(near.size(), usual.size());
}

void VoicingChoiceTest::Movement_data() {
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QList<int>>("moved"); // Frets, strings, fingers lifted or set.
    const auto row = [](const char* what, const char* from, const char* to,
                        const QList<int>& moved) {
        QTest::newRow(what) << QString::fromLatin1(from) << QString::fromLatin1(to) << moved;
    };
    row("nothing moves", "x32010", "x32010", {0, 0, 0});
    row("an empty neck: all fingers are set", "xxxxxx", "x32010", {0, 0, 3});
    row("one finger lifted", "x32013", "x32010", {0, 0, 1});
    row("the same grip a string thinner", "x32xxx", "xx32xx", {0, 2, 0});
    row("the same grip two frets higher", "133211", "355433", {8, 0, 0});
}

void VoicingChoiceTest::Movement() {
    QFETCH(QString, from);
    QFETCH(QString, to);
    const HandMovement moved =
        MovementBetween(WithFingers(*ReadShape(from)), WithFingers(*ReadShape(to)));
    const QList<int> counts{moved.frets, moved.strings, moved.lifted};
    QTEST(counts, "moved");
    QCOMPARE(moved.Total(), counts[0] + counts[1] + counts[2]);
}

QTEST_APPLESS_MAIN(VoicingChoiceTest)
#include "voicingchoice_test.moc"
