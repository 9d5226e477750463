#include "controls/rowdelegate.h"

#include "controls/colours.h"
#include "controls/elided.h"
#include "controls/tooltip.h"

#include <QAbstractItemView>
#include <QHelpEvent>

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    return {1, QStyledItemDelegate::sizeHint(option, index).height()};
}

bool RowDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                            const QStyleOptionViewItem& option, const QModelIndex& index) {
    if (event->type() == QEvent::ToolTip && index.isValid()) {
        QStyleOptionViewItem row = option;
        initStyleOption(&row, index);
        const int room =
            view->style()->subElementRect(QStyle::SE_ItemViewItemText, &row, view).width();
        const QString text = index.data().toString();
        if (Elided(text, row.fontMetrics, room).size() < text.size()) {
            ShowToolTip(event->globalPos(), text, view->viewport());
            return true;
        }
    }
    return QStyledItemDelegate::helpEvent(event, view, option, index);
}

void RowDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    constexpr qsizetype mostLetters = 2000; // More than any list shows beside each other.
    QStyledItemDelegate::initStyleOption(option, index);
    option->text.truncate(mostLetters);
    if (!m_dimmed)
        return;
    option->palette.setColor(QPalette::Highlight, Colours::dimSelection);
    option->palette.setColor(QPalette::HighlightedText, Colours::text);
}
