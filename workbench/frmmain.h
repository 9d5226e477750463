// The main window: handlers a few lines long, bearing the names of their controls. A command
// goes to the workbench; ShowState alone writes its state into the controls.
#pragma once

#include "controls/dropdown.h"
#include "controls/goldbutton.h"
#include "controls/listbox.h"
#include "pictures/instrumentpanel.h"
#include "sound/playback.h"
#include "workbench/workbench.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QWidget>

#include <functional>

class LanguageTexts;

class frmMain : public QWidget {
    Q_OBJECT

public:
    // Built with the Russian texts and empty lists; start-up fills them. What is passed in
    // must outlive the window.
    frmMain(AppState& state, Workbench& workbench, MidiPlayer& midi, Clock& clock);

    // Start-up's steps.
    void ShowTypes();  // Fills lstType from the catalogue.
    void ShowScales(); // Fills lstLad from the catalogue.
    void ShowRoots();  // Fills lstBase with the twelve names.
    void FillBuiltInLists();
    void ApplyLanguage(const LanguageTexts& texts);

    // The texts that no language file holds, in the interface's language.
    void ApplyTongue();
    void SelectDefaults();

    // Writes the whole state into the controls and repaints what changed.
    void ShowState();

    // Runs a command and shows what it did, also when a run-time error ends it.
    void Do(const std::function<void()>& command);

    // At the largest scale, in steps of a half, that leaves a fifth of the screen free; on a
    // small screen as large as there is room.
    void OpenAtBestSize();

    // Asked when the window is about to close; false keeps it open.
    void SetMayEnd(std::function<bool()> mayEnd) { m_mayEnd = std::move(mayEnd); }

    void lstBase_Click(int row);
    void lstType_Click(int row);
    void lstType_DblClick();
    void lstLad_Click(int row);
    void lstBarre_Click(int row);
    void lstLadBarre_Click(int row);
    void cmdFind_Click();
    void cmdFindChord_Click();
    void cmdFindNew_Click();
    void cmdMakeBarre_Click();
    void Command1_Click();
    void Command2_Click();
    void GoldButton1_Click();
    void GoldButton2_Click();
    void GoldButton3_Click();
    void VScroll3_Change(int value);

    void picStrings_MouseDown(Qt::MouseButton button, QPointF place);
    void picStrings_MouseMove(QPointF place);
    void picStrings_MouseUp();
    void picStrings_MouseLeave();
    void picKeyboard_MouseDown(Qt::MouseButton button, QPointF place);
    void picKeyboard_MouseMove(QPointF place);
    void picKeyboard_MouseLeave();
    void Label3_Click(int index);
    void Label3_MouseMove(int index);
    void Label6_MouseDown(int index, Qt::MouseButton button);
    void Label6_MouseMove(int index);
    void Form_MouseMove();

    // Runs the key's command. shift: 1 Shift, 2 Ctrl, 4 Alt. False for a key that has none.
    bool Form_KeyDown(int key, int shift);

    // Shows the text on the line under the fret numbers until the next command: news that
    // nobody has to answer.
    void ShowNotice(const Phrase& notice);

    Workbench& State() { return m_workbench; }

    QGroupBox* Frame1;
    QGroupBox* Frame2;
    QGroupBox* Frame3;
    QGroupBox* Frame4;
    QGroupBox* Frame5;
    ListBox* lstBase;
    ListBox* lstType;
    ListBox* lstLad;
    QLineEdit* txtFind;
    GoldButton* cmdFind;
    QLabel* Label1;
    QLabel* lblChord;
    GoldButton* cmdFindChord;
    InstrumentPanel* panel;
    QLabel* Label2;
    QLabel* lblKeys;
    QLabel* Label5;
    QLabel* Label7;
    QLabel* lblNoS;
    QLineEdit* txtStr;
    QScrollBar* VScroll3;
    GoldButton* cmdFindNew;
    GoldButton* cmdMakeBarre;
    DropDown* lstBarre;
    DropDown* lstLadBarre;
    GoldButton* GoldButton1;
    GoldButton* GoldButton2;
    GoldButton* GoldButton3;
    DropDown* lstWhat;
    DropDown* lstTemp;
    GoldButton* Command1;
    GoldButton* Command2;
    GoldButton* cmdNewDiag;
    GoldButton* cmdSettings;
    GoldButton* cmdHelp;

Q_SIGNALS:
    void HelpAsked(bool modal);
    void SettingsAsked();
    void DiagramsAsked();

protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void CreateControls();
    void ShowBuiltInTexts();
    void LayOut();
    void Connect();
    void ArrowKey(int key, int shift);
    void StepRow(ListBox& list, int step, int rows);
    void StepString(int step);
    void ShowInstruments();
    void ShowNotes();
    void ShowHighlights();
    void PointAt(std::optional<BoardPlace> place, std::optional<int> key);
    void ShowHint();
    QString Hint();

    // What the pictures' parts are called and do.
    PictureParts FretboardParts();
    PictureParts KeyboardParts();
    PicturePart StringPart(int row);
    PicturePart BarrePart();
    PicturePart KeyPart(int key);

    // The same for the commands of the fretboard, which ignore a run-time error.
    void DoQuietly(const std::function<void()>& command);

    AppState& m_state;
    Workbench& m_workbench;
    Playback m_playback;
    std::function<bool()> m_mayEnd;

    bool BarreDragging = false;
    int LastFretLabel = 0;
    int LastStringLabel = 0;
    bool m_fretLabelLit = false; // Whether that label is blue now.
    bool m_stringLabelLit = false;
    std::optional<BoardPlace> m_pointed; // Under the pointer...
    std::optional<int> m_pointedKey;     // ...and on the piano.
    QString m_notice;
};
