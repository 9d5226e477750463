// Every way to play the chord, in a window that stays open beside the main window.
#pragma once

#include "controls/textlabel.h"
#include "pictures/voicinglist.h"
#include "voicings/filtergroup.h"
#include "workbench/workbench.h"

#include <QWidget>

class frmVoicings : public QWidget, public FilterGroup {
    Q_OBJECT

public:
    explicit frmVoicings(const AppState& state);

    TextLabel* lblVoicings;
    VoicingList* lstVoicings;

    // The chord, every way to play it, what is on the neck, and what the hand comes from.
    void ShowState(const ChordToPlay& playing, const Voicings& found, const Shape& neck,
                   const Shape& hand);

Q_SIGNALS:
    void LayAsked(const Shape& shape);
    void StrumAsked(const Shape& shape); // Lays it and strums.
    void AddAsked(const Shape& shape);   // Lays it and adds it to the sheet.
    void CopyAsked(const Shape& shape);  // Its diagram, on the clipboard...
    void SaveAsked(const Shape& shape);  // ...or in a file.

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void ShowTexts(Tongue tongue);
    void Choose();
    void cmdAll_Click();
    void StepVoicing(int step); // Lays the next one of the list.

    // Runs it without letting the rows change their order under the pointer.
    void Ask(void (frmVoicings::*asked)(const Shape&), int row);

    const AppState& m_state;
    ChordToPlay m_playing;
    Voicings m_found;
    Shape m_neck;
    Shape m_hand; // From which it moves.
    bool m_asking = false;
    Tongue m_tongue = Tongue::Russian;
};
