// The settings dialog: tuning, order of the strings, interface language. It works on a copy
// of the six strings and hands it over at OK.
#pragma once

#include "controls/dropdown.h"
#include "controls/listbox.h"
#include "controls/textlabel.h"
#include "controls/upscrollbar.h"
#include "core/settings.h"
#include "sound/sound.h"

#include <QCheckBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <array>
#include <functional>
#include <optional>

class GoldButton;

class frmSettings : public QDialog {
    Q_OBJECT

public:
    // handOver: takes what the dialog says at OK.
    using HandOver = std::function<void(const Settings& settings)>;

    frmSettings(AppState& state, MidiPlayer& midi, Clock& clock, HandOver handOver,
                QWidget* parent = nullptr);

    // Fills the dialog. What is wrong in the settings (a tuning that is not there, a note that is
    // none) is reported on the way, and the rest is filled in all the same.
    void Form_Load();

    void LoadDialogSettings();

    // Writes the settings file, or leaves the old one, and gives what was not remembered and why.
    // A run-time error when the chosen language file is no longer there; all but the language
    // is written then.
    std::optional<Phrase> SaveDialogSettings();

    // After OK: what was not remembered and why.
    const std::optional<Phrase>& Unsaved() const { return m_unsaved; }

    void Option1_Click();
    void Option2_Click();
    void Option3_Click();
    void Option4_Click();
    void lstTunings_Click(int row);
    void VScroll1_Change(int index);
    void VScroll2_Change(int index);
    void Image1_Click(int index);
    void cmdOK_Click();
    void cmdCancel_Click();

    QGroupBox* Frame1;
    QGroupBox* Frame2;
    QGroupBox* Frame3;
    ListBox* lstLang;
    ListBox* lstTunings;
    QCheckBox* Check1;
    QCheckBox* Check2;
    TextLabel* lblScheme;
    DropDown* lstScheme;
    TextLabel* lblNote;   // Over the bars that choose a string's note...
    TextLabel* lblOctave; // ...and its octave.
    QPushButton* cmdOK;
    QPushButton* cmdCancel;
    std::array<QRadioButton*, 4> Options;          // Option1 to Option4.
    std::array<QLabel*, stringCount> StringLabels; // Of the strings 1 to 6.
    std::array<QLineEdit*, stringCount> Text1;
    std::array<UpScrollBar*, stringCount> VScroll1;
    std::array<UpScrollBar*, stringCount> VScroll2;
    std::array<GoldButton*, stringCount> Image1;

private:
    void CreateControls();
    void LayOut();
    QLayout* LayOutStrings();
    void Connect();
    void ShowTexts();
    void ListLanguages();
    void UseStandardTuning();
    void EnableStrings(bool enable);
    void SetSoundNumbers();
    void SelectTuning(const QString& row);
    void ShowStrings(const OpenStrings& strings);
    StringLayout CheckedLayout() const;
    std::optional<QString> ChosenLanguage() const; // Nothing where its file is gone.
    Settings DialogSettings() const;               // All but the language.

    AppState& m_state;
    MidiPlayer& m_midi;
    Clock& m_clock;
    HandOver m_handOver;
    Settings m_loaded; // What the settings file said when the dialog was filled.
    std::optional<Phrase> m_unsaved;
    bool m_filling = false; // No handler of the scroll bars runs.
};
