// The settings dialog: tuning, order of the strings, interface language. It works on a copy
// of the six strings and hands it over at OK.
#pragma once

#include "controls/listbox.h"
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
    // handOver: takes the strings, string 1 first, and their order at OK.
    using HandOver = std::function<void(const OpenStrings& strings, bool thinStringAtBottom)>;

    frmSettings(AppState& state, MidiPlayer& midi, Clock& clock, HandOver handOver,
                QWidget* parent = nullptr);

    // Fills the dialog. A run-time error (a tuning that is not there, a note that is none)
    // leaves it as far as it got; it can be used all the same.
    void Form_Load();

    void LoadDialogSettings();

    // Writes the settings file whole, or leaves the old one and gives the reason. A run-time
    // error when the chosen language file is no longer there; nothing is written then.
    std::optional<Phrase> SaveDialogSettings();

    // After OK: why the settings file could not be written.
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
    void Connect();
    void ShowBuiltInTexts();
    void ApplyLanguage();
    void ListLanguages();
    void ApplyTongue();
    void UseStandardTuning();
    void EnableStrings(bool enable);
    void SetSoundNumbers();
    StringLayout CheckedLayout() const;
    QString ChosenLanguage() const;
    OpenStrings Strings() const;

    AppState& m_state;
    MidiPlayer& m_midi;
    Clock& m_clock;
    HandOver m_handOver;
    std::optional<Phrase> m_unsaved;
    bool m_filling = false; // No handler of the scroll bars runs.
};
