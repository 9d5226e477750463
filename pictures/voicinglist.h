// The list of diagrams: a strip of one row, or a grid that grows with its window.
#pragma once

#include "pictures/voicingmodel.h"

#include <QListView>

class VoicingList : public QListView {
    Q_OBJECT

public:
    enum class Flow { Strip, Grid };

    // The room of a diagram in a window of the smallest size.
    static constexpr QSize smallestCell{62, 78};

    VoicingList(const QString& name, Flow flow, QWidget* parent = nullptr);

    VoicingModel& Rows() { return m_model; }
    const VoicingModel& Rows() const { return m_model; }

    // The room of a diagram, so many times the smallest one.
    void SetScale(double scale);
    QSize Cell() const { return (QSizeF(smallestCell) * m_scale).toSize(); }

    // So many rows of a strip stand below each other; more than one are read line by line.
    void SetStripRows(int rows);

    // Diagrams and their order of strings from the other side.
    void SetLeftHanded(bool leftHanded);
    Tongue InTongue() const { return m_tongue; }
    void SetTongue(Tongue tongue) { m_tongue = tongue; }

    // The row without running anything; -1 for none. It is only brought into view when asked.
    int CurrentRow() const { return currentIndex().row(); }
    void SetCurrentRow(int row);
    void BringIntoView(int row);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    // By a press, by Enter or from the menu of a row, which is there.
    void LayAsked(int row);
    void StrumAsked(int row); // Lays it and strums.
    void AddAsked(int row);   // Lays it and adds it to the sheet.
    void CopyAsked(int row);  // The diagram, on the clipboard...
    void SaveAsked(int row);  // ...or in a file.

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void ShowMenu(const QModelIndex& index, QPoint place);

    Flow m_flow;
    VoicingModel m_model;
    Tongue m_tongue = Tongue::Russian;
    double m_scale = 1;
    int m_stripRows = 1;
    bool m_settingRow = false;
};
