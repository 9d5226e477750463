// Choosing: a root with a type of chord, or with a scale, and the name of the marked keys.
#include "core/chordtypes.h"
#include "core/numbers.h"
#include "core/scales.h"
#include "music/spelling.h"
#include "workbench/workbench.h"

void Workbench::ChooseRoot(int row, const QString& name) {
    m_rootRow = row;
    m_rootName = name;
    if (m_rootRow < 0 || m_typeRow < 0)
        return;
    BeginChoice(false);
    NameChosenChord();
    SpellChord();
    PlaceFingers();
    EndChoice();
}

void Workbench::ChooseType(int row) {
    m_typeRow = row;
    if (m_rootRow < 0 || m_typeRow < 0)
        return;
    BeginChoice(false);
    NameChosenChord();
    m_chordHint = AlternativeNames();
    SpellChord();
    PlaceFingers();
    EndChoice();
}

void Workbench::ChooseChord(int rootRow, int typeRow, std::optional<PitchClass> bass) {
    m_rootRow = rootRow;
    m_rootName = NoteName(rootRow).toString();
    ChooseType(typeRow);
    m_preferredBass = bass;
}

void Workbench::ChooseNameOfHand(int rootRow, int typeRow) {
    m_rootRow = rootRow;
    m_rootName = NoteName(rootRow).toString();
    m_typeRow = typeRow;
    BeginChoice(false);
    NameChosenChord();
    m_chordHint = AlternativeNames();
    ClearKeyMarks();
    MarkChord();
    FindMissing();
}

void Workbench::BeginChoice(bool ofScale) {
    m_preferredBass.reset();
    m_scaleRules = ofScale;
    m_ringsShown = ofScale;
    if (m_placed && NeckShape() != *m_placed)
        m_hand = NeckShape();
}

void Workbench::EndChoice() {
    m_placed = NeckShape();
}

Shape Workbench::HandShape() const {
    const Shape neck = NeckShape();
    return neck == m_placed && m_hand ? *m_hand : neck;
}

void Workbench::NameChosenChord() {
    m_chordName = m_rootName + m_state->ChordTypes.Field(ChordType::Suffix, m_typeRow + 1);
    m_namesChord = true;
}

void Workbench::SpellChord() {
    if (m_typeRow < 0 || m_rootRow < 0)
        return;
    ClearKeyMarks();
    ClearFingering();
    MarkChord();
}

void Workbench::MarkChord() {
    const int root = SemitoneOf(m_rootName).value_or(-1);
    for (const int key :
         ChordKeys(root, m_state->ChordTypes.Field(ChordType::Structure, m_typeRow + 1)))
        m_keys.Mark(key);
    ShowMarkedKeyNames();
}

void Workbench::ChooseScale(int row, const QString& name) {
    m_scaleRow = row;
    BeginChoice(true);
    ClearKeyMarks();
    ClearFingering();
    m_keys.Mark(m_rootRow);
    const QString degrees = m_state->Scales.Field(ScaleDef::Degrees, row + 1);
    for (const double step : ScaleSteps(degrees))
        m_keys.Mark(ToInteger16(m_rootRow + step));
    m_chordName = m_rootName + u' ' + name;
    m_namesChord = false;
    ShowMarkedKeyNames();
    EndChoice();
}

QString Workbench::AlternativeNames() const {
    return m_state->ChordTypes.Field(ChordType::AltNames, m_typeRow + 1);
}

void Workbench::FindChord() {
    m_chordName = NameChord(m_keys.Marked(), m_state->ChordTypes);
    m_namesChord = m_chordName != unknownChord;
}
