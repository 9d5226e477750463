#include "workbench/pictureparts.h"

#include "music/shape.h"
#include "pictures/keyboardlayout.h"
#include "pictures/partnames.h"
#include "workbench/views.h"

namespace {

PicturePart StringPart(const Workbench& workbench, const AppState& state,
                       const FretboardCommands& commands, int row) {
    const Tongue tongue = state.InterfaceTongue();
    const StringRow& string = workbench.Row(row);
    const auto barre = workbench.ShownBarre();
    const int fret = SoundingFret(workbench.SoundOfRow(row), workbench.ShownBarreFret());

    PicturePart part;
    part.role = QAccessible::Slider;
    part.name = StringPartName({.string = StringOfRow(row, state.ThinStringAtBottom),
                                .openNote = state.StringNotes[static_cast<std::size_t>(row)],
                                .note = workbench.RowText(row),
                                .fret = fret,
                                .barred = barre && barre->Covers(row) && !string.mark,
                                .muted = !string.enabled},
                               tongue);
    part.place = FretboardLayout::RowRect(row);
    // The automatic fingering may go beyond the fretboard.
    const int highest = std::max<int>(FretboardLayout::fretColumns, fret);
    part.range =
        PartRange{fret, 0, highest, [&commands, row](int chosen) {
                      commands.press(row, chosen > 0 ? std::optional(chosen) : std::nullopt);
                  }};
    const Phrase nextNote{QStringLiteral("Следующая нота аккорда"),
                          QStringLiteral("Next chord note")};
    const Phrase mute{QStringLiteral("Заглушить"), QStringLiteral("Mute")};
    const Phrase unmute{QStringLiteral("Вернуть звук"), QStringLiteral("Unmute")};
    part.actions = {
        {nextNote.In(tongue), [&commands, row] { commands.nextNote(row); }},
        {(string.enabled ? mute : unmute).In(tongue), [&commands, row] { commands.mute(row); }}};
    return part;
}

PicturePart BarrePart(const Workbench& workbench, const AppState& state,
                      const FretboardCommands& commands) {
    const Tongue tongue = state.InterfaceTongue();
    const auto barre = workbench.ShownBarre();
    const int fret = workbench.BarreFretRow() + 1;
    const Phrase switchBarre{QStringLiteral("Поставить или снять барре"),
                             QStringLiteral("Set or lift the barre")};
    PicturePart part;
    part.role = QAccessible::CheckBox;
    part.name = BarrePartName(barre, state.ThinStringAtBottom, tongue);
    part.checked = barre.has_value();
    part.place = LayoutOfFretboard(state).BarreRect(barre.value_or(Barre{fret, stringCount - 1}));
    part.range =
        PartRange{fret, 1, barreFrets, [&commands](int chosen) { commands.moveBarre(chosen); }};
    part.actions = {{switchBarre.In(tongue), [&commands] { commands.switchBarre(); }}};
    return part;
}

PicturePart KeyPart(bool marked, Tongue tongue, const KeyboardCommands& commands, int key) {
    const Phrase mark{QStringLiteral("Отметить"), QStringLiteral("Mark")};
    const Phrase unmark{QStringLiteral("Снять отметку"), QStringLiteral("Unmark")};
    PicturePart part;
    part.role = QAccessible::CheckBox;
    part.name = KeyPartName(key, marked, tongue);
    part.place = KeyboardLayout().KeyRect(key);
    part.checked = marked;
    part.actions = {
        {(marked ? unmark : mark).In(tongue), [&commands, key] { commands.toggle(key); }}};
    return part;
}

} // namespace

PictureParts FretboardParts(const Workbench& workbench, const AppState& state,
                            const FretboardCommands& commands) {
    const Phrase clear{QStringLiteral("Снять всё"), QStringLiteral("Clear all")};
    const Phrase copy{QStringLiteral("Копировать диаграмму"), QStringLiteral("Copy the diagram")};
    const Phrase save{QStringLiteral("Сохранить диаграмму…"), QStringLiteral("Save the diagram…")};
    PictureParts board;
    for (int row = stringCount - 1; row >= 0; --row)
        board.parts.push_back(StringPart(workbench, state, commands, row));
    board.parts.push_back(BarrePart(workbench, state, commands));
    const Tongue tongue = state.InterfaceTongue();
    board.actions.push_back({clear.In(tongue), [&commands] { commands.clear(); }});
    if (commands.copyDiagram)
        board.actions.push_back({copy.In(tongue), [&commands] { commands.copyDiagram(); }});
    if (commands.saveDiagram)
        board.actions.push_back({save.In(tongue), [&commands] { commands.saveDiagram(); }});
    return board;
}

PictureParts KeyboardParts(const Workbench& workbench, Tongue tongue,
                           const KeyboardCommands& commands) {
    const Phrase clear{QStringLiteral("Снять все отметки"), QStringLiteral("Clear all marks")};
    PictureParts keyboard;
    for (int key = 0; key < keyCount; ++key)
        keyboard.parts.push_back(KeyPart(workbench.Keys().IsMarked(key), tongue, commands, key));
    keyboard.actions.push_back({clear.In(tongue), [&commands] { commands.clear(); }});
    return keyboard;
}
