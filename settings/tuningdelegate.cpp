#include "settings/tuningdelegate.h"

#include "controls/colours.h"
#include "controls/elided.h"
#include "controls/tooltip.h"
#include "core/mdlmain.h"
#include "core/tunings.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr qsizetype mostLetters = 24; // Of six notes and the blanks between them; more is cut.
constexpr int margin = 4;

} // namespace

QString TuningDelegate::NotesOf(int row) const {
    QStringList notes = m_tunings.Field(TuningDef::Notes, row + 1).split(u',').mid(0, stringCount);
    std::reverse(notes.begin(), notes.end());
    return notes.join(u' ');
}

void TuningDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
    const QString notes = NotesOf(index.row()).left(mostLetters);
    const int room = option.fontMetrics.horizontalAdvance(QStringLiteral("F# C# F# C# F# C#"));
    QStyleOptionViewItem name = option;
    initStyleOption(&name, index);
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    // The row is painted as any other, its text only as far as the notes.
    name.text = Elided(name.text, name.fontMetrics, option.rect.width() - room - 3 * margin);
    option.widget->style()->drawControl(QStyle::CE_ItemViewItem, &name, painter, option.widget);
    painter->save();
    painter->setFont(option.font);
    painter->setPen(!enabled   ? Colours::mutedText.Now()
                    : selected ? Colours::selectionText.Now()
                               : Colours::quietText.Now());
    painter->drawText(option.rect.adjusted(option.rect.width() - room - margin, 0, -margin, 0),
                      Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, notes);
    painter->restore();
}

bool TuningDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                               const QStyleOptionViewItem& option, const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return RowDelegate::helpEvent(event, view, option, index);
    ShowToolTip(event->globalPos(),
                index.data().toString() + QStringLiteral(": ") + NotesOf(index.row()),
                view->viewport());
    return true;
}
