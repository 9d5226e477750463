// The help text, shown modally or beside the main window.
#pragma once

#include "info/author.h"
#include "info/chordcount.h"
#include "info/helpchapters.h"
#include "info/infowindow.h"

#include <QPointer>

#include <functional>

class FindBar;
class QPlainTextEdit;
class frmAbout;
struct AppState;

class frmHelp : public InfoWindow {
    Q_OBJECT

public:
    // chordRows: asked when About is opened. A run-time error where help.dat cannot be read.
    frmHelp(const AppState& state, std::function<ChordRows()> chordRows,
            Author author = ProgramAuthor(), QWidget* parent = nullptr);

    // Shows the text from the chapter on, in the interface's language; without one, or where the
    // text has no such chapter, from the beginning of the manual in that language.
    void GoTo(std::optional<Chapter> chapter);

    // Opens About, one window however often it is asked for; a run-time error where the
    // chords are too many to be counted.
    void Command1_Click();

    QPlainTextEdit* Text1;
    GoldButton* Command1;
    FindBar* picFind;

protected:
    // Ctrl+F opens the field; Escape closes it before it closes the window.
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void Form_Load();
    void Form_Resize();
    void OpenAtTextWidth();
    void ScrollTo(int line);

    const AppState& m_state;
    std::function<ChordRows()> m_chordRows;
    Author m_author;
    int m_firstLine = 0;        // The line that the text is shown from when the window opens.
    QPointer<frmAbout> m_about; // The help owns it, so that it opens above a modal help.
};
