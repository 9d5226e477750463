#include "pictures/voicinglist.h"

#include "controls/colours.h"
#include "controls/handle.h"
#include "pictures/voicingdelegate.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

VoicingList::VoicingList(const QString& name, Flow flow, QWidget* parent)
    : QListView(parent), m_flow(flow) {
    setObjectName(name);
    setModel(&m_model);
    setItemDelegate(new VoicingDelegate(smallestCell, this));
    setFlow(QListView::LeftToRight);
    setWrapping(flow == Flow::Grid);
    setResizeMode(QListView::Adjust);
    setUniformItemSizes(true);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(flow == Flow::Grid ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setAutoScroll(false); // Only what is asked for moves the list under the reader's eyes.
    setMouseTracking(true);
    // Another chord begins with its usual voicings, wherever the one before was left.
    connect(&m_model, &QAbstractItemModel::modelReset, this, [this] {
        horizontalScrollBar()->setValue(0);
        verticalScrollBar()->setValue(0);
    });
}

void VoicingList::SetScale(double scale) {
    if (scale == m_scale)
        return;
    m_scale = scale;
    static_cast<VoicingDelegate*>(itemDelegate())->SetCell(Cell());
    scheduleDelayedItemsLayout();
    updateGeometry();
}

void VoicingList::SetStripRows(int rows) {
    if (rows == m_stripRows)
        return;
    m_stripRows = rows;
    setWrapping(rows > 1);
    setVerticalScrollBarPolicy(rows > 1 ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    updateGeometry();
}

void VoicingList::SetLeftHanded(bool leftHanded) {
    static_cast<VoicingDelegate*>(itemDelegate())->SetLeftHanded(leftHanded);
    viewport()->update();
}

void VoicingList::SetCurrentRow(int row) {
    const QScopedValueRollback setting(m_settingRow, true);
    if (row != CurrentRow())
        setCurrentIndex(m_model.index(row));
}

void VoicingList::BringIntoView(int row) {
    if (row >= 0)
        scrollTo(m_model.index(row), QAbstractItemView::EnsureVisible);
}

void VoicingList::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    if (!m_settingRow)
        BringIntoView(current.row());
}

QSize VoicingList::sizeHint() const {
    constexpr int shownColumns = 8;
    constexpr int shownRows = 5;
    const int rows = m_flow == Flow::Grid ? shownRows : m_stripRows;
    const int bar = m_flow == Flow::Grid ? verticalScrollBar()->sizeHint().width() : 0;
    const int frame = 2 * frameWidth() + 2; // The last column needs a pixel to spare.
    return {Cell().width() * shownColumns + frame + bar, Cell().height() * rows + frame};
}

QSize VoicingList::minimumSizeHint() const {
    const int frame = 2 * frameWidth();
    return {Cell().width() * 2 + frame, Cell().height() + frame};
}

// As in the other lists: the press chooses, dragging and letting go choose nothing.
void VoicingList::mousePressEvent(QMouseEvent* event) {
    const QModelIndex pressed = indexAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !pressed.isValid())
        return;
    QListView::mousePressEvent(event);
    Q_EMIT LayAsked(pressed.row());
}

void VoicingList::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() == Qt::NoButton)
        QListView::mouseMoveEvent(event);
}

void VoicingList::mouseReleaseEvent(QMouseEvent*) {}

void VoicingList::mouseDoubleClickEvent(QMouseEvent* event) {
    const QModelIndex pressed = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && pressed.isValid())
        Q_EMIT StrumAsked(pressed.row());
}

void VoicingList::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && event->modifiers().testFlag(Qt::ControlModifier))
        return event->ignore();
    if (enter && currentIndex().isValid()) {
        Q_EMIT LayAsked(CurrentRow());
        return;
    }
    if (event->matches(QKeySequence::Copy) && currentIndex().isValid()) {
        Q_EMIT CopyAsked(CurrentRow());
        return;
    }
    QListView::keyPressEvent(event);
}

// A wheel turned towards the user leads on, as there is nothing below a strip.
void VoicingList::wheelEvent(QWheelEvent* event) {
    if (m_flow == Flow::Grid || m_stripRows > 1 || event->angleDelta().x() != 0)
        return QListView::wheelEvent(event);
    constexpr int notch = 120;
    QScrollBar* bar = horizontalScrollBar();
    bar->setValue(bar->value() - event->angleDelta().y() * Cell().width() / notch);
    event->accept();
}

void VoicingList::contextMenuEvent(QContextMenuEvent* event) {
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    const QModelIndex index = byMouse ? indexAt(event->pos()) : currentIndex();
    if (!index.isValid())
        return;
    BringIntoView(index.row());
    ShowMenu(index,
             byMouse ? event->globalPos() : viewport()->mapToGlobal(visualRect(index).center()));
}

void VoicingList::ShowMenu(const QModelIndex& index, QPoint place) {
    const int row = index.row();
    const QString text = index.data(Qt::DisplayRole).toString();
    const auto words = [this](const QString& russian, const QString& english) {
        return m_tongue == Tongue::Russian ? russian : english;
    };
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](const QString& caption, auto run) {
        Handle(menu->addAction(caption), &QAction::triggered, this, run);
    };
    add(words(QStringLiteral("Взять"), QStringLiteral("Lay on the neck")),
        [this, row] { Q_EMIT LayAsked(row); });
    add(words(QStringLiteral("Взять и ударить по струнам"), QStringLiteral("Lay and strum")),
        [this, row] { Q_EMIT StrumAsked(row); });
    add(words(QStringLiteral("Добавить на лист диаграмм"), QStringLiteral("Add to the sheet")),
        [this, row] { Q_EMIT AddAsked(row); });
    add(words(QStringLiteral("Копировать %1"), QStringLiteral("Copy %1")).arg(text),
        [this, row] { Q_EMIT CopyAsked(row); });
    add(words(QStringLiteral("Сохранить диаграмму…"), QStringLiteral("Save the diagram…")),
        [this, row] { Q_EMIT SaveAsked(row); });
    menu->popup(place);
}
