// The controls for seeing a chord: its name, the two pictures, its notes.
#pragma once

#include "controls/choicelabel.h"
#include "controls/goldbutton.h"
#include "music/fingering.h"
#include "pictures/instrumentpanel.h"
#include "pictures/voicinglist.h"

#include <QLabel>

class QVBoxLayout;

struct SeeGroup {
    // Makes the controls as the window's children, and lays them out in a column.
    explicit SeeGroup(QWidget* window);

    QVBoxLayout* seeColumn; // For the window to place.
    QLabel* Label1;
    TextLabel* lblChord;
    GoldButton* cmdFindChord;
    ChoiceLabel* lblSounds;
    GoldButton* cmdRings;
    InstrumentPanel* panel;
    VoicingList* lstVoicings;
    TextLabel* lblVoicings;
    GoldButton* cmdVoicings;
    GoldButton* cmdAddDiag; // Adds what is on the neck to the sheet.
    TextLabel* Label2;
    TextLabel* lblKeys;
    TextLabel* Label7;
    TextLabel* lblNoS;

    // Measures the chord's name and its picture anew by the letters of the window; the name is
    // so many times larger than in the smallest.
    void FitToLetters(double name) const;

    // Says in the tool tips of the string handles how the guitar is tuned.
    void ShowTuning(const AppState& state);

    // The chord's notes that no string sounds, and a warning where the root is one of them.
    void ShowMissing(const MissingNotes& missing, Tongue tongue) const;

private:
    QString m_tuning; // That the tool tips name.

    QLayout* ChordLine();
    QLayout* VoicingLine();
    QWidget* NoteLines(QWidget* window);
};
