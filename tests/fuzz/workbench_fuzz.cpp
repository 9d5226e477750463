// Any sequence of commands on the workbench, over any chord types, scales and open notes:
// what the window shows stays true. An input is a line of commands, each a letter and one
// character more, a line of open notes with commas between them, and the records of a
// catalogue.
#include "core/chordtypes.h"
#include "core/codepage.h"
#include "core/scales.h"
#include "fuzz.h"
#include "music/spelling.h"
#include "pictures/fretboardlayout.h"
#include "pictures/keyboardlayout.h"
#include "workbench/history.h"

#include <algorithm>

namespace {

// A workbench between two commands, and what the commands have left unsaid.
struct Machine {
    AppState& state;
    Workbench workbench{state};
    bool retuned = false;  // Marks stand where the fingers were before.
    bool namesOld = false; // A command ended before it listed the marked keys.
};

bool InChord(const std::vector<int>& keys, int semitone) {
    return std::any_of(keys.begin(), keys.end(),
                       [=](int key) { return (key - semitone) % notesPerOctave == 0; });
}

// The automatic fingering without a barre, found by trying every fret.
void CheckFingering(const Workbench& workbench, const RowNotes& open) {
    const auto keys = workbench.Keys().Marked();
    for (int row = 0; row < stringCount; ++row) {
        const auto start = open[static_cast<std::size_t>(row)];
        const auto mark = workbench.Row(row).mark;
        int fret = 0;
        while (start && !keys.empty() && !InChord(keys, *start + fret))
            ++fret;
        Require(mark == (fret > 0 ? std::optional(fret) : std::nullopt), "the lowest chord note");
    }
    Require(workbench.Missing().text.count(u' ') == static_cast<qsizetype>(keys.size()),
            "every marked key is heard or missing");
}

void CheckRow(const Machine& machine, int row, std::optional<PitchClass> open) {
    const StringRow& string = machine.workbench.Row(row);
    Require(string.note.has_value() == open.has_value(), "only a note can be fingered");
    Require(string.mark.value_or(0) >= 0 && string.mark.value_or(0) <= 20, "a mark has a fret");
    Require(string.currentFret >= 0 && string.currentFret <= 20, "a search stands at a fret");
    Require(string.automaticFret >= 0 && string.automaticFret <= 20, "a fingering has a fret");
    if (!open) {
        Require(!string.mark || machine.retuned, "a string that is no note has no mark");
        Require(machine.workbench.RowText(row) ==
                    machine.state.StringNotes[static_cast<std::size_t>(row)],
                "a string that is no note shows its text");
        return;
    }
    Require(machine.workbench.RowText(row) == NoteName(*string.note), "a label names its note");
    if (!machine.retuned && !machine.workbench.ShownBarre())
        Require((*open + string.mark.value_or(0) - *string.note) % notesPerOctave == 0,
                "a string sounds where its mark is");
}

void Check(const Machine& machine) {
    const RowNotes open = OpenNotes(machine.state.StringNotes);
    for (int row = 0; row < stringCount; ++row)
        CheckRow(machine, row, open[static_cast<std::size_t>(row)]);
    if (!machine.namesOld)
        Require(machine.workbench.MarkedNames() == KeyNames(machine.workbench.Keys().Marked()),
                "the names are those of the marked keys");
    const int barreRow = machine.workbench.BarreFretRow();
    Require(barreRow >= -1 && barreRow < barreFrets, "the barre stays on the board");
}

void Retune(Machine& machine, int turn) {
    SixTexts& notes = machine.state.StringNotes;
    std::rotate(notes.begin(), notes.begin() + turn % stringCount, notes.end());
    machine.workbench.StringsChanged();
    machine.retuned = true;
}

// A row of a list; high numbers count from its end, where the records of a file are.
int RowOf(int n, int rows) {
    return n < 128 ? n % rows : rows - 1 - (255 - n) % rows;
}

// Carries a command out; its number n is from 0 to 255, and any number chooses something.
void Do(Machine& machine, char command, int n) {
    Workbench& workbench = machine.workbench;
    const double across = n / 255.0;
    switch (command) {
    case 'r': { // A root, none, or one that is no note.
        const int row = n % (notesPerOctave + 2) - 1;
        const QString name =
            row >= 0 && row < notesPerOctave ? NoteName(row).toString() : QStringLiteral("H");
        return workbench.ChooseRoot(row, name);
    }
    case 't':
        return workbench.ChooseType(RowOf(n, machine.state.ChordTypes.Count()));
    case 's':
        return workbench.ChooseScale(RowOf(n, machine.state.Scales.Count()),
                                     QStringLiteral("scale"));
    case 'C':
        return workbench.ChooseChord(n % notesPerOctave, RowOf(n, machine.state.ChordTypes.Count()),
                                     n % 3 > 0 ? std::optional(n % notesPerOctave) : std::nullopt);
    case 'N':
        return workbench.ChooseNameOfHand(n % notesPerOctave,
                                          RowOf(n, machine.state.ChordTypes.Count()));
    case 'R':
        return workbench.SwitchRings();
    case 'b':
        return workbench.ChooseBarreStrings(n % (stringCount + 1) - 1);
    case 'f':
        return workbench.ChooseBarreFret(n % (barreFrets + 1) - 1);
    case 'l':
        return workbench.PressFretNumber(n % barreFrets + 1);
    case 'd':
        return workbench.MoveBarre(n % 3 - 1);
    case 'B':
        return workbench.SwitchBarre();
    case 'n':
        return workbench.FindNextFret(QString::number(n % (stringCount + 2)));
    case 'p':
        return workbench.PressString(
            n % 8 > 0 ? std::optional(n % 8 % stringCount) : std::nullopt,
            FretboardLayout().FretAt(FretboardLayout::size.width() * across));
    case 'm':
        return workbench.ToggleMute(n % stringCount);
    case 'k':
        if (const auto key =
                KeyboardLayout().KeyAt({KeyboardLayout::size.width() * across, n % 2 * 1500.0}))
            workbench.ToggleKey(*key);
        return;
    case 'K':
        return workbench.ClearKeyMarks();
    case 'c':
        return workbench.ClearFretboard();
    case 'T':
        return workbench.ReadFretboard();
    case 'u':
        return Retune(machine, n);
    case 'P':
        workbench.PlaceFingers();
        if (!workbench.ShownBarre())
            CheckFingering(workbench, OpenNotes(machine.state.StringNotes));
        return;
    case 'F':
        workbench.FindChord();
        Require(workbench.ChordName() ==
                    NameChord(workbench.Keys().Marked(), machine.state.ChordTypes),
                "the marked keys are named");
        return;
    case 'a':
        Require(workbench.AlternativeNames() ==
                    machine.state.ChordTypes.Field(ChordType::AltNames, workbench.TypeRow() + 1),
                "the chosen type has its notations");
        return;
    default:
        return;
    }
}

void CheckUndo(const Workbench& before, const Workbench& after) {
    History history;
    history.Add(before, after);
    Workbench workbench = after;
    Require(history.Undo(workbench) == !(before == after), "only a change is a step");
    Require(workbench == before, "a step is taken back whole");
    history.Redo(workbench);
    Require(workbench == after, "a step comes back whole");
}

// What a user sees in the end.
QString Run(AppState state, const QByteArray& commands) {
    Machine machine{state};
    machine.workbench.StringsChanged();
    for (qsizetype i = 0; i + 1 < commands.size(); i += 2) {
        const auto n = static_cast<quint8>(commands[i + 1] - '0');
        const Workbench before = machine.workbench;
        const bool done = Succeeds([&] { Do(machine, commands[i], n); });
        CheckUndo(before, machine.workbench);
        machine.namesOld =
            !done || (machine.namesOld && !QByteArrayView("sKTCN").contains(commands[i]));
        Check(machine);
    }
    const Workbench& workbench = machine.workbench;
    QString seen = workbench.ChordName() + workbench.MarkedNames() + workbench.Missing().text;
    for (int row = 0; row < stringCount; ++row)
        seen += workbench.RowText(row) + QString::number(workbench.Row(row).mark.value_or(-1));
    return seen;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, std::size_t size) {
    static const Folder folder;
    Input input(data, size);
    const QByteArray commands = input.Line();
    const QStringList notes = FromAnsi(input.Line()).split(u',');
    AppState state;
    for (std::size_t row = 0; row < stringCount; ++row)
        state.StringNotes[row] = notes.value(static_cast<qsizetype>(row));
    if (const QByteArray records = input.Rest(); !records.isEmpty()) {
        const QString path = folder.Write(QStringLiteral("records.dat"), records);
        state.ChordTypes.AppendDataFile(path);
        state.Scales.AppendDataFile(path);
    }
    Require(Run(state, commands) == Run(state, commands), "the same commands give the same");
    return 0;
}
