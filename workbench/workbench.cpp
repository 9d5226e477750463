#include "workbench/workbench.h"

#include "core/numbers.h"
#include "core/runtimeerror.h"

#include <algorithm>

namespace {

void CheckRow(int row) {
    if (row < 0 || row >= stringCount)
        CheckIndex(row + 1, 1, stringCount,
                   {QStringLiteral("струны"), QStringLiteral("the strings")});
}

RunTimeError NoSuchRow(const QString& text) {
    const Phrase asked = AsTyped(text);
    return RunTimeError(
        {QStringLiteral("Нет ряда с номером %1: их номера снизу от 1 до 6.").arg(asked.russian),
         QStringLiteral("There is no row %1: they are numbered 1 to 6 from the bottom.")
             .arg(asked.english)});
}

// The row of a text that counts them from 1; it need not be there.
int RowOf(const QString& text) {
    try {
        return ToInteger16(LeadingNumber(text) - 1);
    } catch (const RunTimeError&) {
        throw NoSuchRow(text);
    }
}

} // namespace

Workbench::Workbench(const AppState& state) : m_state(&state) {}

void Workbench::ChooseBarreStrings(int row) {
    m_barreStringsRow = row; // The barre keeps its extent until it is switched again.
}

void Workbench::ChooseBarreFret(int row) {
    m_barreFretRow = row;
    if (!m_barre)
        return;
    SwitchBarre();
    SwitchBarre();
}

void Workbench::SwitchBarre() {
    if (m_barre) {
        m_barre.reset();
    } else {
        if (m_barreStringsRow < 0)
            throw RunTimeError(
                {QStringLiteral("Барре: не выбрано, сколько струн оно прижимает (lstBarre)."),
                 QStringLiteral("Barre: how many strings it covers is not chosen (lstBarre).")});
        m_barre = BarreOfLists();
    }
    PlaceFingers();
}

std::optional<Barre> Workbench::BarreOfLists() const {
    return Barre{m_barreFretRow + 1, m_barreStringsRow};
}

void Workbench::PlaceFingers() {
    ClearFingering();
    const auto marked = m_keys.Marked();
    if (marked.empty())
        return;
    // Who lies under the barre is asked of the lists anew, whatever its picture's extent.
    const auto barre = m_barre ? BarreOfLists() : std::nullopt;
    const Fingering fingering = ::PlaceFingers(OpenNotes(m_state->StringNotes), marked, barre);
    for (std::size_t row = 0; row < stringCount; ++row) {
        m_rows[row].note = fingering[row].note;
        m_rows[row].mark = fingering[row].mark;
        if (const auto fret = fingering[row].fret)
            m_rows[row].currentFret = m_rows[row].automaticFret = *fret;
    }
    FindMissing();
}

void Workbench::ReadFretboard() {
    ClearKeyMarks();
    for (const StringRow& row : m_rows)
        if (row.enabled && row.note)
            m_keys.PaintRed(*row.note);
    ShowMarkedKeyNames();
}

void Workbench::ClearFretboard() {
    if (m_barre)
        SwitchBarre();
    ClearFingering();
}

void Workbench::FindNextFret(const QString& stringText) {
    const int row = RowOf(stringText);
    if (m_typeRow < 0 || m_rootRow < 0)
        return;
    const auto marked = m_keys.Marked();
    if (marked.empty())
        return;
    if (row < 0 || row >= stringCount)
        throw NoSuchRow(stringText);
    StringRow& string = At(row);
    const auto open = SemitoneOf(m_state->StringNotes[static_cast<std::size_t>(row)]);
    if (!open)
        return;
    const int fret = NextFret(*open, marked, string.currentFret, string.automaticFret);
    string.currentFret = fret;
    string.note = (*open + fret) % notesPerOctave;
    string.mark = fret == 0 ? std::nullopt : std::optional(fret);
    FindMissing();
}

void Workbench::PressString(std::optional<int> row, std::optional<int> fret) {
    if (!row)
        return;
    StringRow& string = At(*row);
    const int stopped = fret.value_or(0);
    const auto note = NoteAt(*row, stopped);
    if (!note)
        return;
    string.note = note;
    string.mark = stopped;
}

std::optional<PitchClass> Workbench::NoteAt(int row, int fret) const {
    CheckRow(row);
    const auto open = SemitoneOf(m_state->StringNotes[static_cast<std::size_t>(row)]);
    return open ? std::optional((*open + fret) % notesPerOctave) : std::nullopt;
}

void Workbench::PressFretNumber(int fret) {
    const int row = fret - 1;
    if (!m_barre) {
        m_barreFretRow = row;
        SwitchBarre();
    } else if (m_barreFretRow == row) {
        m_barre.reset();
        PlaceFingers();
    } else {
        ChooseBarreFret(row);
    }
}

void Workbench::MoveBarre(int frets) {
    const int row = m_barreFretRow + frets;
    if (m_barre && frets != 0 && row >= 0 && row < barreFrets)
        ChooseBarreFret(row);
}

void Workbench::ToggleMute(int row) {
    At(row).enabled = !At(row).enabled;
    if (m_ownMutes)
        (*m_ownMutes)[static_cast<std::size_t>(row)] = !At(row).enabled;
}

void Workbench::ToggleKey(int key) {
    m_keys.Toggle(key);
    ShowMarkedKeyNames();
}

void Workbench::ClearKeyMarks() {
    m_keys.ClearMarks();
    ShowMarkedKeyNames();
}

void Workbench::StringsChanged() {
    SetNotes(OpenNotes(m_state->StringNotes));
}

void Workbench::ClearFingering() {
    m_missing = {};
    TakeBackMutes();
    for (StringRow& row : m_rows)
        row.mark.reset();
    const auto barre = m_barre ? BarreOfLists() : std::nullopt;
    SetNotes(StartingNotes(OpenNotes(m_state->StringNotes), barre));
}

void Workbench::ShowMarkedKeyNames() {
    m_markedNames = KeyNames(m_keys.Marked());
}

void Workbench::FindMissing() {
    m_missing = FindMissingNotes(m_keys.Marked(), Notes());
}

void Workbench::SetNotes(const RowNotes& notes) {
    for (std::size_t row = 0; row < stringCount; ++row)
        m_rows[row].note = notes[row];
}

RowNotes Workbench::Notes() const {
    RowNotes notes;
    for (std::size_t row = 0; row < stringCount; ++row)
        notes[row] = m_rows[row].note;
    return notes;
}

RowSound Workbench::SoundOfRow(int row) const {
    const StringRow& string = Row(row);
    return {string.enabled, string.mark, m_state->SoundNumbers[static_cast<std::size_t>(row)]};
}

std::optional<int> Workbench::ShownBarreFret() const {
    return m_barre ? std::optional(m_barreFretRow + 1) : std::nullopt;
}

Shape Workbench::NeckShape() const {
    const bool thinAtBottom = m_state->ThinStringAtBottom;
    Shape shape;
    for (int row = 0; row < stringCount; ++row)
        if (Row(row).enabled)
            shape.frets[static_cast<std::size_t>(StringOfRow(row, thinAtBottom) - 1)] =
                static_cast<std::int8_t>(SoundingFret(SoundOfRow(row), ShownBarreFret()));
    if (m_barre)
        shape.barres.push_back(BarreOnStrings(*m_barre, thinAtBottom));
    return shape;
}

const StringRow& Workbench::Row(int row) const {
    CheckRow(row);
    return m_rows[static_cast<std::size_t>(row)];
}

bool Workbench::HasFingers() const {
    return m_barre || std::any_of(m_rows.begin(), m_rows.end(),
                                  [](const StringRow& row) { return row.mark.has_value(); });
}

QString Workbench::RowText(int row) const {
    const auto note = Row(row).note;
    return note ? NoteName(*note).toString() : m_state->StringNotes[static_cast<std::size_t>(row)];
}

StringRow& Workbench::At(int row) {
    CheckRow(row);
    return m_rows[static_cast<std::size_t>(row)];
}
