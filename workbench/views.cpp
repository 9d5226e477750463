#include "workbench/views.h"

#include "music/fingernumbers.h"

namespace {

// The root is the chosen one, or the lowest key where that is not marked.
RingsView RingsOf(const Workbench& workbench, const AppState& state) {
    RingsView rings;
    rings.open = OpenNotes(state.StringNotes);
    const auto marked = workbench.Keys().Marked();
    for (const int key : marked)
        rings.notes.Add(key);
    const int root = workbench.RootRow();
    if (root >= 0 && rings.notes.Contains(root))
        rings.root = root;
    else if (!marked.empty())
        rings.root = marked.front() % notesPerOctave;
    return rings;
}

} // namespace

FretboardLayout LayoutOfFretboard(const AppState& state) {
    return {.leftHanded = state.LeftHanded};
}

FretboardView ViewOfFretboard(const Workbench& workbench, const AppState& state) {
    FretboardView view;
    view.layout = LayoutOfFretboard(state);
    view.barre = workbench.ShownBarre();
    view.thinStringAtBottom = state.ThinStringAtBottom;
    if (workbench.RingsShown())
        view.rings = RingsOf(workbench, state);
    const Shape held = WithFingers(workbench.NeckShape());
    for (int row = 0; row < stringCount; ++row) {
        view.marks[static_cast<std::size_t>(row)] = workbench.Row(row).mark;
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
    for (int row = 0; row < stringCount; ++row) {
        view.notes[static_cast<std::size_t>(row)] = workbench.RowText(row);
        view.muted[static_cast<std::size_t>(row)] = !workbench.Row(row).enabled;
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
