// A list box whose rows run a command: by a click, also on the row that is selected
// already, or by any other change of the selection. A row that is too long shows its end in a
// tool tip.
#pragma once

#include <QListView>

class ListBox : public QListView {
    Q_OBJECT

public:
    explicit ListBox(const QString& name, QWidget* parent = nullptr);

    // Shows texts of its own instead of a model that was set.
    void SetTexts(const QStringList& texts);

    // Adds a row of its own after the others; the selection stays.
    void AddText(const QString& text);

    int RowCount() const;

    // -1 while nothing is selected.
    int Row() const;

    // Shows the selected row less strongly: what is chosen there rules nothing now.
    void SetDimmed(bool dimmed);
    bool IsDimmed() const;

    // The empty text for a row that is not there.
    QString RowText(int row) const;

    // As wide as it must be; a window that is larger gives it more.
    QSize sizeHint() const override;

    // Selects the row and runs its command, also when it is selected already; -1 selects
    // nothing. A run-time error for any other row that is not there.
    void SelectRow(int row);

    // Selects a row whose command has run; -1 selects nothing.
    void ShowRow(int row);

Q_SIGNALS:
    // Once for each click or change; -1 when nothing is selected any more.
    void RowChosen(int row);
    void RowDoubleClicked(int row); // A second quick click on another row is a click there.

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;

private:
    void PressRow(const QModelIndex& pressed, QMouseEvent* event);

    bool m_takesFocus = false;
    int m_pressedRow = -1; // By the last press.
};
