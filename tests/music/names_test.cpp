// The names that players give to what the strings sound.
#include "core/chordtypes.h"
#include "music/namecosts.h"
#include "music/names.h"

#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

namespace {

Tuning StandardTuning() {
    Tuning tuning;
    for (std::size_t string = 0; string < stringCount; ++string)
        tuning[string] = {standardPitches[string] % notesPerOctave, standardPitches[string]};
    return tuning;
}

std::vector<int> Pitches(const QString& shape) {
    return SoundingPitches(ReadShape(shape).value(), StandardTuning());
}

QString Text(const std::vector<PlayersName>& names) {
    QStringList texts;
    for (const PlayersName& name : names)
        texts += name.text;
    return texts.join(QStringLiteral(" · "));
}

// The built-in types with those of a data file behind them, each of four lines.
TextTable TypesWith(const QByteArray& records) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("chords.dat")));
    if (!file.open(QIODevice::WriteOnly) || file.write(records) != records.size())
        qFatal("cannot write the data file");
    file.close();
    TextTable types = BuiltInChordTypes();
    types.AppendDataFile(file.fileName());
    return types;
}

} // namespace

class NamesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FirstName_data();
    void FirstName();
    void AllNames_data();
    void AllNames();
    void Spelling_data();
    void Spelling();
    void IntervalWords_data();
    void IntervalWords();
    void NothingSounds();
    void TwelveNotes();
    void StringsThatNameNoNote();
    void ChosenFirst_data();
    void ChosenFirst();
    void ChosenTypeOfTheFile();
    void CatalogueEntries();
    void TypesOfTheFile_data();
    void TypesOfTheFile();
    void KnownTypesAreOfTheCatalogue();

private:
    const TextTable m_types = BuiltInChordTypes();
    const PlayersNames m_names{m_types};
};

void NamesTest::FirstName_data() {
    QTest::addColumn<QString>("shape");
    QTest::addColumn<QString>("name");
    const auto row = [](const char* what, const char* shape, const char* name) {
        QTest::newRow(what) << QString::fromLatin1(shape) << QString::fromLatin1(name);
    };
    row("open chords: C", "x32010", "C");
    row("open chords: A", "x02220", "A");
    row("open chords: G", "320003", "G");
    row("open chords: E", "022100", "E");
    row("open chords: D", "xx0232", "D");
    row("open chords: Am", "x02210", "Am");
    row("open chords: Em", "022000", "Em");
    row("open chords: Dm", "xx0231", "Dm");
    row("open chords: F", "133211", "F");
    row("open chords: B7", "x21202", "B7");
    row("open chords: G7", "320001", "G7");
    row("open chords: C7 without its fifth", "x32310", "C7");
    row("open chords: D7", "xx0212", "D7");
    row("open chords: E7", "020100", "E7");
    row("open chords: A7", "x02020", "A7");
    row("major: first inversion", "032010", "C/E");
    row("major: second inversion", "332010", "C/G");
    row("major: the third in the bass is sharp", "200232", "D/F#");
    row("minor: first inversion", "x65888", "Cm/Eb");
    row("minor: second inversion", "002210", "Am/E");
    row("seventh in the bass alone: a triad over it", "xx0454", "E/D");
    row("seventh in the bass and above: a seventh chord", "x07877", "B7/A");
    row("foreign bass under a triad", "132010", "C/F");
    row("foreign bass: a semitone below a minor root", "4x2210", "Am/G#");
    row("fifth left out of a minor seventh", "3x333x", "Gm7");
    row("fifth left out of a major seventh", "3x443x", "Gmaj7");
    row("fifth left out of a ninth", "x7677x", "E9");
    row("root left out where nothing else fits", "0x2343", "C7#9/E");
    row("third left out of a seventh where nothing else fits", "3x00x1", "G7");
    row("maj7 rather than a minor triad over its sixth", "x32000", "Cmaj7");
    row("sixth by the bass", "x32213", "C6");
    row("sixth without its fifth: a triad's inversion", "x3221x", "Am/C");
    row("minor seventh by the bass", "x02213", "Am7");
    row("sus2 by the bass", "x02200", "Asus2");
    row("sus4 by the bass", "022200", "Esus4");
    row("sus2 and sus4 share their notes", "xx0233", "Dsus4");
    row("power chord", "x355xx", "C5");
    row("power chord on its fifth", "335xxx", "C5/G");
    row("augmented: named over its bass", "x3211x", "Caug");
    row("augmented: the next of its notes below", "xx2110", "Eaug");
    row("diminished seventh: named over its bass", "xx0101", "Ddim7");
    row("diminished seventh: the next of its notes below", "xx3434", "Fdim7");
    row("half-diminished", "x3434x", "Cm7b5");
    row("dim rather than a sixth without its fifth", "xx7575", "F#dim/A");
    row("raised ninth", "x3234x", "C7#9");
    row("ninth suspended without its fifth: a triad over a bass", "x3333x", "Bb/C");
    row("ninth suspended, with its fifth", "x33333", "C9sus4");
    row("ninth added", "x32030", "Cadd9");
    row("sixth and ninth", "x32233", "C6add9");
    row("thirteenth", "x02022", "A13");
    row("eleventh without ninth", "131311", "F7sus4");
}

void NamesTest::FirstName() {
    QFETCH(QString, shape);
    const auto names = m_names.Of(Pitches(shape));
    QVERIFY(!names.empty());
    QTEST(names.front().text, "name");
}

void NamesTest::AllNames_data() {
    QTest::addColumn<QString>("shape");
    QTest::addColumn<QString>("names");
    const auto row = [](const char* what, const char* shape, const char* names) {
        QTest::newRow(what) << QString::fromLatin1(shape) << QString::fromUtf8(names);
    };
    row("a plain chord has one name", "x32010", "C");
    row("best first", "x02213", "Am7 · C6/A");
    row("one note more tells them apart", "x32213", "C6 · Am7/C");
    row("ambiguous by itself", "x5x353", "Gm6/D · Em7b5/D");
    row("a bass of its own is a second reading", "x32000", "Cmaj7 · Em/C");
    row("diminished symmetry: each note is a root", "xx0101",
        "Ddim7 · Bdim7/D · Fdim7/D · G#dim7/D");
    row("augmented symmetry", "x3211x", "Caug · Abaug/C · Eaug/B#");
    row("a power chord", "022xxx", "E5");
    row("a single note", "x1xxxx", "Bb");
    row("a note in three octaves", "0xx9x0", "E");
    row("an interval", "x3xxx0", "C–E");
    row("an interval with its notes doubled", "x3x0x0", "C");
    row("a cluster that no type has", "xx012x", "");
}

void NamesTest::AllNames() {
    QFETCH(QString, shape);
    QTEST(Text(m_names.Of(Pitches(shape))), "names");
}

void NamesTest::Spelling_data() {
    QTest::addColumn<QString>("shape");
    QTest::addColumn<QString>("name");
    const auto row = [](const char* what, const char* shape, const char* name) {
        QTest::newRow(what) << QString::fromLatin1(shape) << QString::fromLatin1(name);
    };
    row("between A and B: always flat", "x13131", "Bb7");
    row("between A and B: flat in minor, too", "x13321", "Bbm");
    row("between D and E: always flat", "x68886", "Eb");
    row("between F and G: always sharp", "244322", "F#");
    row("between C and D: flat in major", "x46664", "Db");
    row("between C and D: sharp in minor", "x46654", "C#m");
    row("between C and D: a raised ninth is no minor third", "x4345x", "Db7#9");
    row("between G and A: flat in major", "466544", "Ab");
    row("between G and A: sharp in minor", "466444", "G#m");
    row("bass by its degree: major third", "x42220", "A/C#");
    row("bass by its degree: major third of E", "422100", "E/G#");
    row("bass by its degree: minor third", "x65888", "Cm/Eb");
    row("bass by its degree: minor third of F", "4x3564", "Fm/Ab");
    row("bass by its degree: the seventh of Db", "7x6624", "Db7/Cb");
    row("bass by its degree: a letter's other name", "1x3322", "F#maj7/E#");
    row("bass by its degree: instead of two signs the plain name", "5x48xx", "Ebdim/A");
    row("a foreign bass as a root: minor", "4x2210", "Am/G#");
    row("a foreign bass as a root: major", "4x3211", "F/Ab");
}

void NamesTest::Spelling() {
    QFETCH(QString, shape);
    const auto names = m_names.Of(Pitches(shape));
    QVERIFY(!names.empty());
    QTEST(names.front().text, "name");
}

void NamesTest::IntervalWords_data() {
    QTest::addColumn<QString>("shape");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("russian");
    QTest::addColumn<QString>("english");
    const auto row = [](const char* shape, const char* name, const char* russian,
                        const char* english) {
        QTest::newRow(english) << QString::fromLatin1(shape) << QString::fromUtf8(name)
                               << QString::fromUtf8(russian) << QString::fromLatin1(english);
    };
    row("x43xxx", "Db–F", "большая терция", "major third");
    row("x42xxx", "C#–E", "малая терция", "minor third");
    row("x32xxx", "C–E", "большая терция", "major third");
    row("12xxxx", "F–B", "тритон", "tritone");
    row("x4xx5x", "C#–E", "малая терция через октаву", "compound minor third");
    row("0xxxx1", "E–F", "малая секунда через октаву", "compound minor second");
    row("x3xx1x", "C", "", "");
}

void NamesTest::IntervalWords() {
    QFETCH(QString, shape);
    const auto names = m_names.Of(Pitches(shape));
    QCOMPARE(names.size(), std::size_t{1});
    QTEST(names.front().text, "name");
    QTEST(names.front().word.russian, "russian");
    QTEST(names.front().word.english, "english");
    QVERIFY(!names.front().chord);
}

void NamesTest::NothingSounds() {
    QVERIFY(m_names.Of({}).empty());
    QVERIFY(m_names.Of(Pitches(QStringLiteral("xxxxxx")), CatalogueChord{0, 1}).empty());
}

void NamesTest::TwelveNotes() {
    std::vector<int> pitches;
    for (int pitch = 48; pitch < 60; ++pitch)
        pitches.push_back(pitch);
    QVERIFY(m_names.Of(pitches).empty());
}

void NamesTest::StringsThatNameNoNote() {
    Tuning tuning = StandardTuning();
    tuning[5].reset();
    QCOMPARE(Text(m_names.Of(SoundingPitches(ReadShape(u"032010").value(), tuning))),
             QStringLiteral("C"));
}

void NamesTest::ChosenFirst_data() {
    QTest::addColumn<QString>("shape");
    QTest::addColumn<int>("root");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("names");
    const auto row = [](const char* what, const char* shape, int root, const char* type,
                        const char* names) {
        QTest::newRow(what) << QString::fromLatin1(shape) << root << QString::fromLatin1(type)
                            << QString::fromUtf8(names);
    };
    row("it fits", "x02213", 0, "6", "C6/A · Am7");
    row("it fits with its fifth left out", "x3221x", 0, "6", "C6 · Am/C");
    row("it is the best anyway", "x02213", 9, "m7", "Am7 · C6/A");
    row("another root", "x02213", 2, "6", "Am7 · C6/A");
    row("a note would be foreign to it", "x02010", 0, "maj", "Am7 · C/A · C6/A");
    row("an interval stays one", "x32xxx", 0, "maj", "C–E");
}

void NamesTest::ChosenFirst() {
    QFETCH(QString, shape);
    QFETCH(int, root);
    QFETCH(QString, type);
    int entry = 1;
    while (m_types.Field(ChordType::Name, entry) != type)
        ++entry;
    QTEST(Text(m_names.Of(Pitches(shape), CatalogueChord{root, entry})), "names");
}

void NamesTest::ChosenTypeOfTheFile() {
    const TextTable types = TypesWith("one\r\n\r\none\r\n43\r\ntwo\r\n\r\ntwo\r\n43");
    const PlayersNames names(types);
    const auto pitches = Pitches(QStringLiteral("x32010"));
    QCOMPARE(Text(names.Of(pitches)), QStringLiteral("C · Ctwo"));
    QCOMPARE(Text(names.Of(pitches, CatalogueChord{0, 51})), QStringLiteral("Cone · C · Ctwo"));
}

void NamesTest::CatalogueEntries() {
    const auto names = m_names.Of(Pitches(QStringLiteral("032010")));
    QCOMPARE(names.front().chord, (CatalogueChord{0, 1}));
    const auto power = m_names.Of(Pitches(QStringLiteral("022xxx")));
    QVERIFY(!power.front().chord);
    const TextTable types = TypesWith("fifth\r\n\r\n5\r\n7");
    QCOMPARE(PlayersNames(types).Of(Pitches(QStringLiteral("022xxx"))).front().chord,
             (CatalogueChord{4, 51}));
}

void NamesTest::TypesOfTheFile_data() {
    QTest::addColumn<QByteArray>("record");
    QTest::addColumn<QString>("shape");
    QTest::addColumn<QString>("names");
    const auto row = [](const char* what, const char* record, const char* shape,
                        const QString& names) {
        QTest::newRow(what) << QByteArray(record) << QString::fromLatin1(shape) << names;
    };
    row("notes that the built-in types lack", "cluster\r\n\r\ncl\r\n16", "xx012x",
        QStringLiteral("Dbcl/D"));
    row("an empty suffix: the bare root", "cluster\r\n\r\n\r\n16", "xx012x",
        QStringLiteral("Db/D"));
    row("markup is text", "b\r\n\r\n<b>\r\n16", "xx012x", QStringLiteral("Db<b>/D"));
    row("steps beyond the octave are folded", "c\r\n\r\ncl\r\n94", "x32xxx", QStringLiteral("C–E"));
    row("characters that are no steps", "c\r\n\r\ncl\r\n1x6", "xx012x", QStringLiteral("Dbcl/D"));
    row("no steps at all", "c\r\n\r\ncl\r\n", "x32010", QStringLiteral("C"));
    const QByteArray longSuffix = "c\r\n\r\n" + QByteArray(300, 'c') + "\r\n16";
    row("300 characters", longSuffix.constData(), "xx012x",
        QStringLiteral("Db") + QString(300, u'c') + QStringLiteral("/D"));
}

void NamesTest::TypesOfTheFile() {
    QFETCH(QByteArray, record);
    QFETCH(QString, shape);
    const TextTable types = TypesWith(record);
    QTEST(Text(PlayersNames(types).Of(Pitches(shape))), "names");
}

void NamesTest::KnownTypesAreOfTheCatalogue() {
    QStringList lacking;
    for (const KnownType& known : knownTypes) {
        bool found = false;
        for (int entry = 1; entry <= m_types.Count(); ++entry) {
            const NamedType type = NamedTypeOf(m_types, entry);
            found = found || (type.suffix == known.suffix && type.notes == known.notes);
        }
        if (!found)
            lacking += known.suffix.toString();
    }
    QCOMPARE(lacking.join(u' '), QStringLiteral("5 dim7 9sus4 7#11 maj7b5 9b5 add11 maj7#5 7sus2"));
}

QTEST_APPLESS_MAIN(NamesTest)
#include "names_test.moc"
