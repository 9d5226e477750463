// Finds words in a text box: a field, which hit is shown and how many there are.
#pragma once

#include "core/phrase.h"

#include <QWidget>

#include <vector>

class QLabel;
class QLineEdit;
class QPlainTextEdit;

class FindBar : public QWidget {
    Q_OBJECT

public:
    // Closed at first, when it only names the key that opens it. The text box must be read-only and
    // outlive the bar.
    FindBar(QPlainTextEdit& text, Tongue tongue, QWidget* parent);

    // Shows the field and selects what stands in it. The search begins at the text's cursor, or
    // where that is out of sight with the first line in sight.
    void Open();

    // Takes the marks away and gives the focus back to the text, at the hit that was shown.
    void Close();

    bool IsOpen() const { return m_open; }

    // Marks every hit, and shows the first one at or after the text's cursor.
    void txtFind_Change();

    // Shows the next hit, or the one before; after the last comes the first.
    void GoOn(bool backward);

    QLabel* lblFindKey;
    QLineEdit* txtFind;
    QLabel* lblFound;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void ShowField(bool show);
    void ShowHit();
    void Mark();

    QPlainTextEdit& m_text;
    Tongue m_tongue;
    QString m_folded; // The text, read when the bar is opened.
    std::vector<int> m_hits;
    std::size_t m_shown = 0;
    bool m_open = false;
};
