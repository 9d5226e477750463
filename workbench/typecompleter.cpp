#include "workbench/typecompleter.h"

#include "controls/application.h"
#include "controls/rowdelegate.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>

TypeCompleter::TypeCompleter(QLineEdit* field, const TextTable& chordTypes, CommandOf commandOf)
    : QCompleter(field),
      m_field(field),
      m_chordTypes(chordTypes),
      m_commandOf(std::move(commandOf)) {
    setModel(&m_rows);
    setMaxVisibleItems(mostRows);
    connect(field, &QLineEdit::textEdited, this, &TypeCompleter::Offer);
    connect(this, qOverload<const QModelIndex&>(&QCompleter::activated), this,
            &TypeCompleter::Choose);
}

void TypeCompleter::MakeList() {
    m_list = new QListView;
    m_list->setObjectName(QStringLiteral("lstOffered"));
    m_list->setEditTriggers(QListView::NoEditTriggers);
    setPopup(m_list);
    m_list->setItemDelegate(new RowDelegate(m_list));
    m_field->setCompleter(this);
}

void TypeCompleter::Offer(const QString& typed) {
    if (m_list == nullptr) // Not before it is needed: the window opens sooner.
        MakeList();
    // The toolkit would write the rows into the field while one moves through them.
    disconnect(this, nullptr, m_field, nullptr);
    m_offered = MatchTypedChord(m_chordTypes, typed, mostRows);
    QStringList texts;
    for (const TypedChord& chord : m_offered)
        texts += chord.text;
    m_rows.setStringList(texts);
}

void TypeCompleter::Choose(const QModelIndex& row) {
    const auto index = static_cast<std::size_t>(row.row());
    if (row.isValid() && index < m_offered.size())
        Q_EMIT Chosen(m_offered[index]);
}

bool TypeCompleter::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && watched == m_list &&
        PressInList(*static_cast<QKeyEvent*>(event)))
        return true;
    return QCompleter::eventFilter(watched, event);
}

bool TypeCompleter::PressInList(const QKeyEvent& press) {
    const bool moves = (press.key() == Qt::Key_Up || press.key() == Qt::Key_Down) &&
                       press.modifiers() == Qt::NoModifier;
    if (moves)
        return false;
    if (press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter) {
        const QModelIndex row = m_list->currentIndex();
        m_list->hide();
        if (row.isValid())
            Choose(row);
        else
            Q_EMIT m_field->returnPressed();
        return true;
    }
    const auto command = m_commandOf(press);
    if (!command)
        return false;
    m_list->hide();
    Application::Guard(command);
    return true;
}
