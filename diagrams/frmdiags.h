// The chord diagram sheet: fingerings collected as lines of text, and a text to write them in.
#pragma once

#include "controls/goldbutton.h"
#include "controls/textlabel.h"
#include "core/mdlmain.h"
#include "diagrams/clicklist.h"
#include "diagrams/exportdialog.h"
#include "diagrams/filestamp.h"
#include "diagrams/fingeringcode.h"
#include "diagrams/picpage.h"
#include "diagrams/recovery.h"
#include "diagrams/sheettext.h"

#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>

#include <functional>
#include <memory>
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
    void cmdExport_Click(); // A run-time error when it cannot be written.
    void cmdImport_Click(); // A run-time error when it cannot be read.
    void cmdPrint_Click();  // A run-time error when it cannot be printed.
    void picPage_Click(const PlacedDiagram& diagram);
    void picPage_DblClick(const PlacedDiagram& diagram);
    void picPage_Menu(const PlacedDiagram& placed, QPoint screen);

    // Adds a row with what stands on a neck, as cmdAdd does; gives its text.
    QString AddRow(const BoardFingering& board);

    // What lays a shape on the neck, and what knows the shape of a chord by its name.
    void SetLay(std::function<void(const Shape& shape)> lay) { m_lay = std::move(lay); }
    void SetShapes(std::function<std::optional<Shape>(const QString& name)> shapeOfName,
                   std::function<Shape(const Shape& shape)> fingered);

    // From now on a recovery file in this folder follows what is not saved, so many milliseconds
    // behind it.
    void KeepRecovery(const QString& folder, int pause = 5000);

    // Asks whether to bring back what a run that was interrupted has left there, once.
    void OfferLeft();

    // Whether the program may end: asks when the text was not saved, or rows were collected that
    // were never written into it. False keeps it running.
    bool MayEnd();

    // Brings the sheet to the front: where it was, or else, with room on the screen, beside what
    // is to be seen meanwhile.
    void OpenBeside(const QRect& seen);

    SheetText* txtMain;
    PicPage* picPage;
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
    GoldButton* cmdExport;
    GoldButton* cmdImport;
    GoldButton* cmdPrint;
    TextLabel* lblRows;   // Headings: over the list...
    TextLabel* lblPages;  // ...the pages...
    TextLabel* lblText;   // ...and the text.
    TextLabel* lblLength; // What the number beside it is.
    QLabel* lblSaved;     // Says that a file was saved or exported, until the text changes.

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void CreateControls();
    void LayOut();
    void Connect();
    void Form_Resize();
    void ShowRows();
    QString UnwrittenRows() const;
    bool HasUnsavedText() const;

    // Asks whether to save; what is saved is the text, and the addition behind it.
    bool MayLose(const Phrase& question, const QString& addition);
    bool Save(const QString& addition = {});
    void Saved(const QString& path);

    // Whether the file may be replaced: asks where another program has changed it meanwhile.
    bool MayReplace(const QString& path);

    void ShowPages();
    std::vector<SheetPage> PagesOn(QSizeF paper) const;
    SheetQuestions Questions() const;
    QString SongTitle(const QString& otherwise) const;
    bool MayWritePages(const QString& path, int pages);
    bool ExportPages(const ExportChoice& choice); // False when it is given up.
    void BringBack(const SheetContents& contents);
    void Kept();     // Brings the recovery file up to date...
    void KeepSoon(); // ...or does so within five seconds.
    bool MayLoseText();

    AppState& m_state;
    std::function<BoardFingering()> m_board;
    QList<CollectedRow> m_rows;
    QString m_folder;              // The last that a file dialog chose a file of.
    std::optional<QPoint> m_place; // Where the sheet was when it was closed.
    bool m_new = true;             // The text was never opened or saved.
    FileStamp m_file;              // That the text was opened from or saved to last.

    QHash<QString, Shape> m_collected; // What was on the neck when a row was collected.
    std::function<void(const Shape& shape)> m_lay;
    SheetQuestions m_questions;
    QTimer m_preview;
    std::unique_ptr<Recovery> m_recovery;
    QTimer m_keeping;
};
