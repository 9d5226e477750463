#include "controls/listbox.h"

#include "controls/rowdelegate.h"
#include "core/runtimeerror.h"

#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QStringListModel>

ListBox::ListBox(const QString& name, QWidget* parent) : QListView(parent) {
    setObjectName(name);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setUniformItemSizes(true); // A million rows are measured by one of them.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setItemDelegate(new RowDelegate(this));
    setModel(new QStringListModel(this));
}

void ListBox::SetTexts(const QStringList& texts) {
    if (auto* own = qobject_cast<QStringListModel*>(model()))
        own->setStringList(texts);
    else
        setModel(new QStringListModel(texts, this));
}

void ListBox::AddText(const QString& text) {
    auto* own = qobject_cast<QStringListModel*>(model());
    if (own == nullptr)
        return SetTexts({text});
    own->insertRow(RowCount());
    own->setData(own->index(RowCount() - 1), text);
}

int ListBox::RowCount() const {
    return model()->rowCount();
}

int ListBox::Row() const {
    const QModelIndex current = currentIndex();
    return selectionModel()->isSelected(current) ? current.row() : -1;
}

void ListBox::SetDimmed(bool dimmed) {
    if (dimmed == IsDimmed())
        return;
    static_cast<RowDelegate*>(itemDelegate())->SetDimmed(dimmed);
    viewport()->update();
}

bool ListBox::IsDimmed() const {
    return static_cast<const RowDelegate*>(itemDelegate())->IsDimmed();
}

QString ListBox::RowText(int row) const {
    return model()->index(row, 0).data().toString();
}

QSize ListBox::sizeHint() const {
    return QSize(0, fontMetrics().height() * 5).expandedTo(minimumSize());
}

void ListBox::SelectRow(int row) {
    if (row == -1) {
        selectionModel()->clear();
        return;
    }
    CheckIndex(row, 0, RowCount() - 1, {accessibleName(), accessibleName()});
    if (row == Row())
        Q_EMIT RowChosen(row);
    else
        setCurrentIndex(model()->index(row, 0));
    scrollTo(model()->index(row, 0));
}

void ListBox::ShowRow(int row) {
    if (row == Row())
        return;
    const QSignalBlocker silent(this);
    if (row < 0)
        selectionModel()->clear();
    else
        setCurrentIndex(model()->index(row, 0));
}

void ListBox::mousePressEvent(QMouseEvent* event) {
    const QModelIndex pressed = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && pressed.isValid())
        PressRow(pressed, event);
}

void ListBox::PressRow(const QModelIndex& pressed, QMouseEvent* event) {
    const int before = Row();
    m_pressedRow = pressed.row();
    QListView::mousePressEvent(event);
    if (pressed.row() == before)
        Q_EMIT RowChosen(before);
}

void ListBox::mouseMoveEvent(QMouseEvent* event) {
    // Dragging would select rows without their commands.
    if (event->buttons() == Qt::NoButton)
        QListView::mouseMoveEvent(event);
}

void ListBox::mouseReleaseEvent(QMouseEvent*) {
    // So would letting go over another row than the pressed one.
}

void ListBox::mouseDoubleClickEvent(QMouseEvent* event) {
    const QModelIndex pressed = indexAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !pressed.isValid())
        return;
    if (pressed.row() == m_pressedRow) {
        Q_EMIT RowDoubleClicked(pressed.row());
        return;
    }
    QMouseEvent press(QEvent::MouseButtonPress, event->position(), event->globalPosition(),
                      event->button(), event->buttons(), event->modifiers());
    PressRow(pressed, &press);
}

void ListBox::focusInEvent(QFocusEvent* event) {
    // The toolkit makes the first row current where none is; that chooses nothing yet.
    const QScopedValueRollback takesFocus(m_takesFocus, true);
    QListView::focusInEvent(event);
}

void ListBox::keyPressEvent(QKeyEvent* event) {
    if (Row() < 0) // The first key chooses the first row instead of moving on from it.
        selectionModel()->clearCurrentIndex();
    QListView::keyPressEvent(event);
}

// No row is cut in half at the end: what is left of the height stays empty.
void ListBox::resizeEvent(QResizeEvent* event) {
    QListView::resizeEvent(event);
    const int row = sizeHintForRow(0);
    const int left = row > 0 ? (height() - 2 * frameWidth()) % row : 0;
    if (const QMargins margins(0, 0, 0, left); margins != viewportMargins())
        setViewportMargins(margins);
}

void ListBox::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    if (current.isValid() && !m_takesFocus)
        Q_EMIT RowChosen(current.row());
}

void ListBox::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QListView::selectionChanged(selected, deselected);
    if (!deselected.isEmpty() && !selectionModel()->hasSelection())
        Q_EMIT RowChosen(-1);
}

QItemSelectionModel::SelectionFlags ListBox::selectionCommand(const QModelIndex& index,
                                                              const QEvent* event) const {
    // With Ctrl a click would take the selection away and leave the row current, and a key
    // would make another row current and leave the selection.
    const auto command = QListView::selectionCommand(index, event);
    const bool byKey = event != nullptr && event->type() == QEvent::KeyPress;
    return command.testFlag(QItemSelectionModel::Toggle) ||
                   command.testFlag(QItemSelectionModel::Deselect) || (byKey && index.isValid())
               ? QItemSelectionModel::ClearAndSelect
               : command;
}
