// The sheet's text box: plain text, character by character as it was typed.
#pragma once

#include <QPlainTextEdit>

class SheetText : public QPlainTextEdit {
public:
    explicit SheetText(QWidget* parent = nullptr);

    // Lines ended by LF, also those that Shift+Enter divides; no-break spaces stay.
    QString Text() const;
    QString SelectedText() const;

    // Inserts at the cursor in place of the selection, as one step that can be undone.
    void Insert(const QString& text);

protected:
    // A tab is a character here, so Ctrl+Tab and Ctrl+Shift+Tab go on to the next control.
    void keyPressEvent(QKeyEvent* event) override;
    QMimeData* createMimeDataFromSelection() const override;
};
