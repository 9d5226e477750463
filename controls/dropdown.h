// A drop-down list that tells of every choice, also of the row that is selected already. Long
// texts widen it only so far; in the open list their ends are read in tool tips.
#pragma once

#include <QComboBox>

class DropDown : public QComboBox {
    Q_OBJECT

public:
    explicit DropDown(const QString& name, QWidget* parent = nullptr);

    // Replaces the rows; none of the new ones is selected, and nothing runs.
    void SetTexts(const QStringList& texts);

    // Selects the row and runs its command, also when it is selected already.
    // A run-time error for a row that is not there.
    void SelectRow(int row);

    // Selects a row whose command has run; -1 selects nothing.
    void ShowRow(int row);

    void showPopup() override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    // Once for each choice or change; -1 when nothing is selected any more.
    void RowChosen(int row);

private:
    int m_rowAtPopup = -1; // Chosen again in the open list, it changes no index.
};
