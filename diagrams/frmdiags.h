// The chord diagram sheet: fingerings collected as lines of text, and a text to write them in.
#pragma once

#include "controls/goldbutton.h"
#include "controls/listbox.h"
#include "core/mdlmain.h"
#include "diagrams/fingeringcode.h"

#include <QLineEdit>
#include <QPlainTextEdit>

#include <functional>

// A list whose rows are only selected by the arrow keys, and clicked by mouse or Enter.
class ClickList : public ListBox {
    Q_OBJECT

public:
    using ListBox::ListBox;

Q_SIGNALS:
    void Clicked(int row);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    int m_pressedRow = -1;
};

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

    // Whether the program may end: asks when the text was not saved. False keeps it running.
    bool MayEnd();

    QPlainTextEdit* txtMain;
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

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void CreateControls();
    void LayOut();
    void Connect();
    void ApplyTongue();
    void Form_Resize();
    void Insert(const QString& text);
    bool Save();
    bool MayLoseText();

    AppState& m_state;
    std::function<BoardFingering()> m_board;
    QStringList m_rows;
};
