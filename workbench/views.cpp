#include "workbench/views.h"

#include "core/numbers.h"
#include "music/fingernumbers.h"

#include <algorithm>
#include <cmath>

namespace {

// The chosen root, or the lowest key where that is not marked.
std::optional<PitchClass> RootOf(const Workbench& workbench) {
    const auto marked = workbench.Keys().Marked();
    const int chosen = workbench.RootRow();
    const auto sounds = [chosen](int key) { return key % notesPerOctave == chosen; };
    if (std::any_of(marked.begin(), marked.end(), sounds))
        return chosen;
    if (marked.empty())
        return std::nullopt;
    return marked.front() % notesPerOctave;
}

RingsView RingsOf(const Workbench& workbench, const AppState& state) {
    RingsView rings;
    rings.open = OpenNotes(state.StringNotes);
    for (const int key : workbench.Keys().Marked())
        rings.notes.Add(key);
    rings.root = RootOf(workbench);
    return rings;
}

NutSign SignOf(const StringRow& row, int fret) {
    if (!row.enabled)
        return NutSign::Muted;
    return fret == 0 ? NutSign::Open : NutSign::None;
}

} // namespace

FretboardLayout LayoutOfFretboard(const AppState& state) {
    return {.leftHanded = state.LeftHanded};
}

std::optional<int> RowOfSearch(const QString& number) {
    const double row = std::nearbyint(LeadingNumber(number)) - 1;
    if (row < 0 || row >= stringCount)
        return std::nullopt;
    return static_cast<int>(row);
}

FretboardView ViewOfFretboard(const Workbench& workbench, const AppState& state) {
    FretboardView view;
    view.layout = LayoutOfFretboard(state);
    view.barre = workbench.ShownBarre();
    view.thinStringAtBottom = state.ThinStringAtBottom;
    if (workbench.RingsShown())
        view.rings = RingsOf(workbench, state);
    const Shape held = WithFingers(workbench.NeckShape());
    const auto root = RootOf(workbench);
    for (int row = 0; row < stringCount; ++row) {
        const auto mark = workbench.Row(row).mark;
        view.marks[static_cast<std::size_t>(row)] = mark;
        view.roots[static_cast<std::size_t>(row)] =
            mark && root && workbench.NoteAt(row, *mark) == root;
        view.muted[static_cast<std::size_t>(row)] = !workbench.Row(row).enabled;
        view.fingers[static_cast<std::size_t>(row)] =
            held.Finger(StringOfRow(row, state.ThinStringAtBottom));
    }
    return view;
}

KeyboardView ViewOfKeyboard(const Workbench& workbench) {
    KeyboardView view;
    for (int key = 0; key < keyCount; ++key)
        view.fills[static_cast<std::size_t>(key)] = workbench.Keys().Fill(key);
    return view;
}

LabelsView ViewOfLabels(const Workbench& workbench, const AppState& state) {
    LabelsView view;
    view.layout = LayoutOfFretboard(state);
    view.soundNumbers = state.SoundNumbers;
    const Shape held = workbench.NeckShape();
    for (int row = 0; row < stringCount; ++row) {
        view.notes[static_cast<std::size_t>(row)] = workbench.RowText(row);
        view.muted[static_cast<std::size_t>(row)] = !workbench.Row(row).enabled;
        view.nutSigns[static_cast<std::size_t>(row)] =
            SignOf(workbench.Row(row), held.Fret(StringOfRow(row, state.ThinStringAtBottom)));
    }
    return view;
}

Shape HeldOnNeck(const Workbench& workbench) {
    Shape shape = workbench.NeckShape();
    if (const auto fingers = FindFingers(shape))
        for (int string = 1; string <= stringCount; ++string)
            shape.fingers[static_cast<std::size_t>(string - 1)] =
                static_cast<std::int8_t>(fingers->Of(string));
    return shape;
}
