// The main window's commands and the one place that writes into its controls.
#include "workbench/frmmain.h"

#include "controls/cataloguemodel.h"
#include "controls/colours.h"
#include "core/runtimeerror.h"
#include "music/spelling.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMessageBox>
#include <QScopeGuard>
#include <QSignalBlocker>

namespace {

void SetColour(QLabel* label, const QColor& colour) {
    QPalette palette = label->palette();
    if (palette.color(QPalette::Active, QPalette::WindowText) == colour)
        return;
    palette.setColor(QPalette::WindowText, colour);
    // A muted string's label is grey, but still turns blue under the pointer.
    if (colour == Colours::normalText)
        palette.setColor(QPalette::Disabled, QPalette::WindowText, Colours::mutedText);
    label->setPalette(palette);
}

// A text from a file as it stands, whatever it looks like.
void Tell(const QString& title, const QString& text, QWidget* parent) {
    QMessageBox box(QMessageBox::Information, title, text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

QString PlainToolTip(const QString& text) {
    return Qt::mightBeRichText(text) ? QStringLiteral("<qt>%1</qt>").arg(text.toHtmlEscaped())
                                     : text;
}

void SetStruckOut(QLabel* label, bool struckOut) {
    QFont font = label->font();
    if (font.strikeOut() == struckOut)
        return;
    font.setStrikeOut(struckOut);
    label->setFont(font);
}

} // namespace

frmMain::frmMain(AppState& state, Workbench& workbench, MidiPlayer& midi, Clock& clock)
    : m_state(state),
      m_workbench(workbench),
      m_playback(state, midi, clock,
                 {[this](int key) { return m_workbench.Keys().IsMarked(key); },
                  [this](int row) { return m_workbench.SoundOfRow(row); },
                  [this] { return m_workbench.ShownBarreFret(); },
                  [this] { return lstTemp->currentIndex() == 1; }}) {
    setObjectName(QStringLiteral("frmMain"));
    CreateControls();
    LayOut();
    Connect();
    m_playback.SetShow([this] { ShowInstruments(); });
    ShowBuiltInTexts();
    ApplyTongue();
    ShowState();
}

void frmMain::ShowTypes() {
    lstType->setModel(new CatalogueModel(m_state.ChordTypes, lstType));
}

void frmMain::ShowScales() {
    lstLad->setModel(new CatalogueModel(m_state.Scales, lstLad));
}

void frmMain::ShowRoots() {
    QStringList roots;
    for (int semitone = 0; semitone < notesPerOctave; ++semitone)
        roots += NoteName(semitone).toString();
    lstBase->SetTexts(roots);
}

void frmMain::SelectDefaults() {
    lstWhat->SelectRow(1);
    lstTemp->SelectRow(0);
    lstBase->SelectRow(0);
    lstLad->SelectRow(0);
    lstType->SelectRow(0);
}

void frmMain::lstBase_Click(int row) {
    Do([&] { m_workbench.ChooseRoot(row, lstBase->RowText(row)); });
}

void frmMain::lstType_Click(int row) {
    Do([&] { m_workbench.ChooseType(row); });
}

void frmMain::lstType_DblClick() {
    const QString names = m_workbench.AlternativeNames();
    const Phrase title{QStringLiteral("Аккорд:"), QStringLiteral("Chord:")};
    Tell(title.In(m_state.InterfaceTongue()), names, this);
}

void frmMain::lstLad_Click(int row) {
    if (row >= 0)
        Do([&] { m_workbench.ChooseScale(row, lstLad->RowText(row)); });
}

void frmMain::lstBarre_Click(int row) {
    m_workbench.ChooseBarreStrings(row);
}

void frmMain::lstLadBarre_Click(int row) {
    Do([&] { m_workbench.ChooseBarreFret(row); });
}

void frmMain::cmdFind_Click() {
    if (const auto row = FindChordType(m_state.ChordTypes, txtFind->text()))
        lstType->SelectRow(*row);
    else
        Tell(QStringLiteral("Find"), m_state.UiText.NoSuchChordType, this);
}

void frmMain::cmdFindChord_Click() {
    Do([&] { m_workbench.FindChord(); });
}

void frmMain::cmdFindNew_Click() {
    Do([&] { m_workbench.FindNextFret(txtStr->text()); });
}

void frmMain::cmdMakeBarre_Click() {
    Do([&] { m_workbench.SwitchBarre(); });
}

void frmMain::Command1_Click() {
    Do([&] { m_workbench.PlaceFingers(); });
}

void frmMain::Command2_Click() {
    Do([&] { m_workbench.ReadFretboard(); });
}

void frmMain::GoldButton1_Click() {
    m_playback.PlayKeys(lstWhat->currentIndex() == 1);
}

void frmMain::GoldButton2_Click() {
    m_playback.PlayStrings(lstWhat->currentIndex() == 1);
}

void frmMain::GoldButton3_Click() {
    m_playback.Stop();
}

void frmMain::VScroll3_Change(int value) {
    txtStr->setText(QString::number(value));
}

void frmMain::Do(const std::function<void()>& command) {
    m_notice.clear();
    const auto show = qScopeGuard([this] { ShowState(); });
    command();
}

void frmMain::DoQuietly(const std::function<void()>& command) {
    try {
        Do(command);
    } catch (const RunTimeError&) {
        // The fretboard goes on with what could be done.
    }
}

void frmMain::ShowState() {
    ShowInstruments();
    ShowNotes();
    ShowHighlights();
    ShowHint();
    panel->picStrings->TellParts();
    panel->picKeyboard->TellParts();
    lblChord->setText(m_workbench.ChordName());
    lblChord->setToolTip(PlainToolTip(m_workbench.ChordHint()));
    lblKeys->setText(m_workbench.MarkedNames());
    lblNoS->setText(m_workbench.Missing().text);
    SetColour(lblNoS, m_workbench.Missing().rootMissing ? Colours::mark : Colours::normalText);
    lblNoS->setAutoFillBackground(m_workbench.Missing().rootMissing);
    lblNoS->setToolTip(
        m_workbench.Missing().rootMissing
            ? Phrase{QStringLiteral("Ни одна струна не даёт основного тона аккорда."),
                     QStringLiteral("No string sounds the root of the chord.")}
                  .In(m_state.InterfaceTongue())
            : QString());
    const QSignalBlocker silent(lstLadBarre);
    lstLadBarre->setCurrentIndex(m_workbench.BarreFretRow());
}

void frmMain::ShowInstruments() {
    FretboardView board;
    board.barre = m_workbench.ShownBarre();
    board.thinStringAtBottom = m_state.ThinStringAtBottom;
    board.soundingRow = m_playback.SoundingRow();
    for (int row = 0; row < stringCount; ++row) {
        board.marks[static_cast<std::size_t>(row)] = m_workbench.Row(row).mark;
        board.muted[static_cast<std::size_t>(row)] = !m_workbench.Row(row).enabled;
    }
    // A press there would take hold of the barre, should it have come there meanwhile.
    if (m_pointed &&
        !m_workbench.GrabsBarre(FretboardLayout::MarkCentre(m_pointed->row, m_pointed->fret).x())) {
        board.pointed = m_pointed;
        if (const auto note = m_workbench.NoteAt(m_pointed->row, m_pointed->fret))
            board.pointedNote = NoteName(*note).toString();
    }
    panel->picStrings->Show(board);
    KeyboardView keyboard;
    keyboard.soundingKey = m_playback.SoundingKey();
    for (int key = 0; key < keyCount; ++key)
        keyboard.fills[static_cast<std::size_t>(key)] = m_workbench.Keys().Fill(key);
    panel->picKeyboard->Show(keyboard);
}

void frmMain::ShowNotes() {
    for (int row = 0; row < stringCount; ++row) {
        QLabel* label = panel->Label4[static_cast<std::size_t>(row)];
        const bool enabled = m_workbench.Row(row).enabled;
        label->setText(m_workbench.RowText(row));
        label->setProperty("Tag", m_state.SoundNumbers[static_cast<std::size_t>(row)]);
        label->setEnabled(enabled);
        SetStruckOut(label, !enabled);
    }
}

void frmMain::ShowHighlights() {
    for (int index = 0; index < InstrumentPanel::fretLabels; ++index)
        SetColour(panel->Label3[static_cast<std::size_t>(index)],
                  m_fretLabelLit && index == LastFretLabel ? Colours::highlight
                                                           : Colours::normalText);
    for (int row = 0; row < stringCount; ++row)
        SetColour(panel->Label4[static_cast<std::size_t>(row)],
                  m_stringLabelLit && row == LastStringLabel ? Colours::highlight
                                                             : Colours::normalText);
}

void frmMain::closeEvent(QCloseEvent* event) {
    event->ignore(); // Also where saving the sheet fails with a run-time error.
    if (m_mayEnd && !m_mayEnd())
        return;
    m_playback.Abandon();
    event->accept();
    QApplication::quit();
}
