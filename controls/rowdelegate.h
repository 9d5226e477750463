// The rows of a list: a text too long for its list is cut in painting, and its tool tip shows it
// to its end.
#pragma once

#include <QStyledItemDelegate>

class RowDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    // Shows the selected row less strongly: what is chosen there rules nothing now.
    void SetDimmed(bool dimmed) { m_dimmed = dimmed; }
    bool IsDimmed() const { return m_dimmed; }

    // As high as a line; the list decides how wide.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    bool m_dimmed = false;
};
