// The chord diagram sheet: fingerings collected as lines of text, and a text to write them in.
#pragma once

#include "controls/goldbutton.h"
#include "core/mdlmain.h"
#include "diagrams/clicklist.h"
#include "diagrams/fingeringcode.h"
#include "diagrams/sheettext.h"

#include <QLabel>
#include <QLineEdit>

#include <functional>
#include <optional>

class frmDiags : public QWidget {
    Q_OBJECT

public:
    // board: what stands on the fretboard when a diagram is added.
    frmDiags(AppState& state, std::function<BoardFingering()> board);

    void cmdAdd_Click();
    void cmdDel_Click(); // A run-time error with no row selected.
    void cmdClear_Click();
    void cmdMake_Click();
    void cmdCut_Click();
    void cmdCopy_Click();
    void cmdPast_Click();
    void GoldButton1_Click(); // Opens a file; a run-time error when it cannot be read.
    void cmdSave_Click();     // A run-time error when it cannot be written.
    void GoldButton2_Click(); // A run-time error for a line too long to be of use.
    void lstMain_Click(int row);

    // Whether the program may end: asks when the text was not saved, or rows were collected that
    // were never written into it. False keeps it running.
    bool MayEnd();

    // Brings the sheet to the front: where it was, or else, with room on the screen, beside what
    // is to be seen meanwhile.
    void OpenBeside(const QRect& seen);

    SheetText* txtMain;
    ClickList* lstMain;
    QLineEdit* Text1;
    GoldButton* cmdAdd;
    GoldButton* cmdDel;
    GoldButton* cmdClear;
    GoldButton* cmdMake;
    GoldButton* cmdCut;
    GoldButton* cmdCopy;
    GoldButton* cmdPast;
    GoldButton* GoldButton1;
    GoldButton* GoldButton2;
    GoldButton* cmdSave;
    QLabel* lblSaved; // Says that the file was saved, until the text changes.

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void CreateControls();
    void LayOut();
    void Connect();
    void ApplyTongue();
    void Form_Resize();
    void ShowRows();
    QString UnwrittenRows() const;
    bool HasUnsavedText() const;

    // Asks whether to save; what is saved is the text, and the addition behind it.
    bool MayLose(const Phrase& question, const QString& addition);
    bool Save(const QString& addition = {});
    void Saved(const QString& path);

    // A row of the list, and whether it was ever written into the text.
    struct CollectedRow {
        QString text;
        bool written = false;
    };

    AppState& m_state;
    std::function<BoardFingering()> m_board;
    QList<CollectedRow> m_rows;
    QString m_folder;              // The last that a file dialog chose a file of.
    std::optional<QPoint> m_place; // Where the sheet was when it was closed.
    bool m_new = true;             // The text was never opened or saved.
};
