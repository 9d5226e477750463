// The help text, shown modally or beside the main window.
#pragma once

#include "info/author.h"
#include "info/chordcount.h"
#include "info/infowindow.h"

#include <QPointer>

#include <functional>

class QPlainTextEdit;
class frmAbout;
struct AppState;

class frmHelp : public InfoWindow {
    Q_OBJECT

public:
    // chordRows: asked when About is opened. A run-time error where help.dat cannot be read.
    frmHelp(const AppState& state, std::function<ChordRows()> chordRows,
            Author author = ProgramAuthor(), QWidget* parent = nullptr);

    // Opens About, one window however often it is asked for; a run-time error where the
    // chords are too many to be counted.
    void Command1_Click();

    QPlainTextEdit* Text1;
    GoldButton* Command1;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void Form_Load();
    void Form_Resize();
    void OpenAtTextWidth();

    const AppState& m_state;
    std::function<ChordRows()> m_chordRows;
    Author m_author;
    QPointer<frmAbout> m_about; // The help owns it, so that it opens above a modal help.
};
