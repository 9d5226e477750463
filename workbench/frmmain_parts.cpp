// The pictures' parts as a screen reader and the keyboard find them, and the line that says
// what the pointer or the keyboard is at.
#include "workbench/frmmain.h"

#include "pictures/keyboardlayout.h"
#include "pictures/partnames.h"

PictureParts frmMain::FretboardParts() {
    PictureParts board;
    for (int row = stringCount - 1; row >= 0; --row)
        board.parts.push_back(StringPart(row));
    board.parts.push_back(BarrePart());
    board.actions.push_back({Phrase{QStringLiteral("Снять всё"), QStringLiteral("Clear all")}.In(
                                 m_state.InterfaceTongue()),
                             [this] { DoQuietly([&] { m_workbench.ClearFretboard(); }); }});
    return board;
}

PicturePart frmMain::StringPart(int row) {
    const Tongue tongue = m_state.InterfaceTongue();
    const StringRow& string = m_workbench.Row(row);
    const RowSound sound = m_workbench.SoundOfRow(row);
    const auto barre = m_workbench.ShownBarre();
    const int fret = SoundingFret(sound, m_workbench.ShownBarreFret());

    PicturePart part;
    part.role = QAccessible::Slider;
    part.name = StringPartName({.string = StringOfRow(row, m_state.ThinStringAtBottom),
                                .openNote = m_state.StringNotes[static_cast<std::size_t>(row)],
                                .note = m_workbench.RowText(row),
                                .fret = fret,
                                .barred = barre && barre->Covers(row) && !string.mark,
                                .muted = !string.enabled},
                               tongue);
    part.place = FretboardLayout::RowRect(row);
    // The automatic fingering may go beyond the fretboard.
    const int highest = std::max<int>(FretboardLayout::fretColumns, fret);
    part.range = PartRange{fret, 0, highest, [this, row](int chosen) {
                               const auto place = chosen > 0 ? std::optional(chosen) : std::nullopt;
                               DoQuietly([&] { m_workbench.PressString(row, place); });
                           }};
    part.actions = {
        {Phrase{QStringLiteral("Следующая нота аккорда"), QStringLiteral("Next chord note")}.In(
             tongue),
         [this, row] { Label6_MouseDown(row, Qt::LeftButton); }},
        {(string.enabled ? Phrase{QStringLiteral("Заглушить"), QStringLiteral("Mute")}
                         : Phrase{QStringLiteral("Вернуть звук"), QStringLiteral("Unmute")})
             .In(tongue),
         [this, row] { Label6_MouseDown(row, Qt::RightButton); }},
    };
    return part;
}

PicturePart frmMain::BarrePart() {
    const Tongue tongue = m_state.InterfaceTongue();
    const auto barre = m_workbench.ShownBarre();
    PicturePart part;
    part.role = QAccessible::CheckBox;
    part.name = BarrePartName(barre, m_state.ThinStringAtBottom, tongue);
    part.checked = barre.has_value();
    part.place = FretboardLayout::BarreRect(
        barre.value_or(Barre{m_workbench.BarreFretRow() + 1, stringCount - 1}));
    part.range = PartRange{m_workbench.BarreFretRow() + 1, 1, barreFrets,
                           [this](int fret) { lstLadBarre->SelectRow(fret - 1); }};
    part.actions = {{Phrase{QStringLiteral("Поставить или снять барре"),
                            QStringLiteral("Set or lift the barre")}
                         .In(tongue),
                     [this] { cmdMakeBarre_Click(); }}};
    return part;
}

PictureParts frmMain::KeyboardParts() {
    PictureParts keyboard;
    for (int key = 0; key < keyCount; ++key)
        keyboard.parts.push_back(KeyPart(key));
    keyboard.actions.push_back(
        {Phrase{QStringLiteral("Снять все отметки"), QStringLiteral("Clear all marks")}.In(
             m_state.InterfaceTongue()),
         [this] { Do([&] { m_workbench.ClearKeyMarks(); }); }});
    return keyboard;
}

PicturePart frmMain::KeyPart(int key) {
    const bool marked = m_workbench.Keys().IsMarked(key);
    const Tongue tongue = m_state.InterfaceTongue();
    PicturePart part;
    part.role = QAccessible::CheckBox;
    part.name = KeyPartName(key, marked, tongue);
    part.place = KeyboardLayout::KeyRect(key);
    part.checked = marked;
    part.actions = {{(marked ? Phrase{QStringLiteral("Снять отметку"), QStringLiteral("Unmark")}
                             : Phrase{QStringLiteral("Отметить"), QStringLiteral("Mark")})
                         .In(tongue),
                     [this, key] { Do([&] { m_workbench.ToggleKey(key); }); }}};
    return part;
}

void frmMain::ShowHint() {
    QLabel& label = *panel->lblHint;
    const QString hint = Hint();
    label.setText(hint.isEmpty()
                      ? hint // No font is loaded for nothing.
                      : label.fontMetrics().elidedText(hint, Qt::ElideRight, label.width()));
    label.setToolTip(label.text() == hint ? QString() : hint);
    label.setAccessibleName(hint);
}

void frmMain::ShowNotice(const Phrase& notice) {
    m_notice = notice.In(m_state.InterfaceTongue());
    ShowHint();
    QAccessibleEvent alert(panel->lblHint, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

QString frmMain::Hint() {
    const Tongue tongue = m_state.InterfaceTongue();
    const auto marked = m_workbench.Keys().Marked();
    if (m_pointed) {
        const auto note = m_workbench.NoteAt(m_pointed->row, m_pointed->fret);
        const int string = StringOfRow(m_pointed->row, m_state.ThinStringAtBottom);
        return note ? CrossingHint(string, m_pointed->fret, *note, marked, tongue) : QString();
    }
    const auto& keyboard = *panel->picKeyboard;
    if (!m_pointedKey && !m_notice.isEmpty())
        return m_notice;
    if (m_pointedKey || keyboard.hasFocus())
        return KeyHint(m_pointedKey.value_or(keyboard.FocusPart()), marked, tongue);
    if (panel->picStrings->hasFocus()) {
        const QString part =
            FretboardParts().parts[static_cast<std::size_t>(panel->picStrings->FocusPart())].name;
        return part.left(1).toUpper() + part.mid(1);
    }
    return {};
}
