// Paints a row of the list of diagrams.
#pragma once

#include <QStyledItemDelegate>

class VoicingDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void SetLeftHanded(bool leftHanded) { m_leftHanded = leftHanded; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

private:
    bool m_leftHanded = false;
};
