// Paints a row of the list of diagrams.
#pragma once

#include <QStyledItemDelegate>

class VoicingDelegate : public QStyledItemDelegate {
public:
    // cell: the room of a diagram.
    VoicingDelegate(QSize cell, QObject* parent) : QStyledItemDelegate(parent), m_cell(cell) {}

    void SetCell(QSize cell) { m_cell = cell; }

    void SetLeftHanded(bool leftHanded) { m_leftHanded = leftHanded; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

private:
    QSize m_cell;
    bool m_leftHanded = false;
};
