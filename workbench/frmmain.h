// The main window: handlers a few lines long, bearing the names of their controls. A command
// goes to the workbench; ShowState alone writes its state into the controls.
#pragma once

#include "music/names.h"
#include "pictures/diagramlayout.h"
#include "sound/playback.h"
#include "workbench/choosegroup.h"
#include "workbench/commandkeys.h"
#include "workbench/heargroup.h"
#include "workbench/hint.h"
#include "workbench/history.h"
#include "workbench/moregroup.h"
#include "workbench/pictureparts.h"
#include "workbench/playingchord.h"
#include "workbench/seegroup.h"
#include "workbench/trygroup.h"

#include <QWidget>

#include <functional>

struct KeyCommand;
struct TextSource;
struct TypedChord;

// The groups are bases for their controls to be the window's own. Their order is the order in
// which Tab goes through them.
class frmMain : public QWidget,
                public ChooseGroup,
                public SeeGroup,
                public TryGroup,
                public HearGroup,
                public MoreGroup {
    Q_OBJECT

public:
    // Built with the Russian texts and empty lists; start-up fills them. What is passed in
    // must outlive the window.
    frmMain(AppState& state, Workbench& workbench, MidiPlayer& midi, Clock& clock);
    ~frmMain() override;

    // Start-up's steps.
    void ShowTypes();  // Fills lstType from the catalogue.
    void ShowScales(); // Fills lstLad from the catalogue.
    void ShowRoots();  // Fills lstBase with the twelve names.
    void SelectDefaults();

    // Gives every control its texts; nothing is selected in the drop-down lists then.
    void ShowTexts(const TextSource& source);

    // Writes the whole state into the controls and repaints what changed.
    void ShowState();

    // Runs a command and shows what it did, also when a run-time error ends it.
    void Do(const std::function<void()>& command);

    // Takes the last step back, or takes back that; nothing where there is none.
    void Undo();
    void Redo();

    // The settings laid strings on the rows. Other ones than before leave nothing to undo.
    void StringsChanged();

    void OpenAtBestSize(const QSize& screen); // What the screen has for windows.

    // Asked when the window is about to close; false keeps it open.
    void SetMayEnd(std::function<bool()> mayEnd) { m_mayEnd = std::move(mayEnd); }

    // Shows the text on the line under the fret numbers until the next command: news that
    // nobody has to answer.
    void ShowNotice(const Phrase& notice);

    Workbench& State() { return m_workbench; }

    // The chord that the marked keys ask for, and every way to play it.
    const PlayingChord& Playing() const { return m_playing; }

    // The command keys, but for the plain arrows, work in that window as in this one.
    void TakeKeysOf(const QWidget* window) { m_commandKeys.TakeKeysOf(window); }

    // Commands of the lists of diagrams, here and in frmVoicings.
    void LayShape(const Shape& shape);
    void LayAndStrum(const Shape& shape);
    void LayAndAdd(const Shape& shape);

    // What is on the neck, under the chord's name; where lblChord shows none, under the first of
    // lblSounds.
    Diagram NeckDiagram() const;

    // A way to play what the marked keys ask for, under its name.
    Diagram DiagramOf(const Shape& shape) const;

    // Choose.
    void lstBase_Click(int row);
    void lstType_Click(int row);
    void lstType_DblClick();
    void lstLad_Click(int row);
    void cmdFind_Click();
    void txtFind_Chosen(const TypedChord& chord); // Of the rows that are offered while one types.

    // See.
    void cmdFindChord_Click();
    void lblSounds_Click(int name);
    void cmdRings_Click();
    void lstVoicings_Click(int row);
    void lstVoicings_DblClick(int row);

    // Point at the pictures and the labels around them. Places are in twips.
    void picStrings_MouseDown(Qt::MouseButton button, QPointF place);
    void picStrings_MouseMove(QPointF place);
    void picStrings_MouseUp();
    void picKeyboard_MouseDown(Qt::MouseButton button, QPointF place);
    void picKeyboard_MouseMove(QPointF place);
    void Label3_Click(int index);
    void Label3_MouseMove(int index);
    void Label6_MouseDown(int index, Qt::MouseButton button);
    void Label6_MouseMove(int index);
    void cmdAddDiag_Menu(QPoint place);
    void Form_MouseMove();

    // Try.
    void VScroll3_Change(int value);
    void cmdFindNew_Click();
    void cmdMakeBarre_Click();
    void lstBarre_Click(int row);
    void lstLadBarre_Click(int row);
    void Command1_Click();
    void Command2_Click();

    // Hear.
    void GoldButton1_Click();
    void GoldButton2_Click();
    void GoldButton3_Click();
    void cmdStrum_Click();

    // Of the keys alone.
    void GoToFind();
    void StepRoot(int step);
    void StepType(int step);
    void StepString(int step);
    void StepBarre(int step);
    void StepVoicing(int step);

    // Runs the key's command. shift: 1 Shift, 2 Ctrl, 4 Alt. False for a key that has none.
    bool Form_KeyDown(int key, int shift);

    // The command of the key where the focus is now; null for a key that has none.
    const KeyCommand* CommandOfKey(int key, int shift) const;

Q_SIGNALS:
    void StateShown(); // After a command, when the controls show what it did.
    void HelpAsked(bool modal);
    void SettingsAsked();
    void DiagramsAsked();
    void VoicingsAsked();
    void AddToSheetAsked(); // What is on the neck is to be added to the sheet.
    void CopyAsked(const Diagram& diagram);
    void SaveAsked(const Diagram& diagram);

protected:
    void mouseMoveEvent(QMouseEvent*) override { Form_MouseMove(); }
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void LayOut();
    void ConnectChoose();
    void ConnectSee();
    void ConnectNames();
    void ConnectVoicings();
    void ConnectPoint();
    void ConnectTry();
    void ConnectHear();
    void ConnectMore();
    void ConnectDiagrams();
    void ShowInstruments();
    void ShowLabels();
    void ShowNames();
    void ShowVoicings();
    void ShowHint();
    void Light(bool fretLabel, bool stringLabel);
    void PointAt(const Pointed& pointed);
    bool IsOnBarre(double x) const;

    // The same as Do for the commands of the fretboard, which ignore a run-time error.
    void DoQuietly(const std::function<void()>& command);

    AppState& m_state;
    Workbench& m_workbench;
    History m_history;
    std::optional<PlayersNames> m_names; // Of the catalogue, once it is filled.
    std::vector<PlayersName> m_sounding;
    Playback m_playback;
    std::function<bool()> m_mayEnd;
    PlayingChord m_playing;
    CommandKeys m_commandKeys;
    FretboardCommands m_fretboardCommands;
    KeyboardCommands m_keyboardCommands;

    bool BarreDragging = false;
    int LastFretLabel = 0;
    int LastStringLabel = 0;
    bool m_fretLabelLit = false; // Whether that label is blue now.
    bool m_stringLabelLit = false;
    Pointed m_pointed;
    QString m_notice;
};
