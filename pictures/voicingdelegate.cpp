#include "pictures/voicingdelegate.h"

#include "controls/colours.h"
#include "controls/faces.h"
#include "controls/focusring.h"
#include "controls/tooltip.h"
#include "pictures/diagrampainting.h"
#include "pictures/voicingmodel.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>

#include <algorithm>

namespace {

// The diagram's margins serve the position number on one side alone: in the narrow room of a row
// the other ones are given up, so that strings and frets become larger.
QRectF PlaceIn(const QRectF& room, const Diagram& diagram) {
    const DiagramLayout layout(diagram);
    const QSizeF size = layout.Size();
    const double dot = layout.DotSize() / 2;
    const QRectF number = layout.PositionRect();
    const double left = std::min(number.right() - number.width() * 0.8, layout.Grid().left() - dot);
    const double right =
        std::max(number.left() + number.width() * 0.8, layout.Grid().right() + dot);
    const double top = layout.SignRect(1).top();
    const double bottom = layout.FingersInDots() ? layout.Grid().bottom() : size.height();
    const double scale = std::min(room.width() / (right - left), room.height() / (bottom - top));
    return {room.center().x() - (left + right) / 2 * scale,
            room.center().y() - (top + bottom) / 2 * scale, size.width() * scale,
            size.height() * scale};
}

} // namespace

void VoicingDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
    const auto* rows = static_cast<const VoicingModel*>(index.model());
    const bool current = option.state.testFlag(QStyle::State_Selected);
    const bool pointed = option.state.testFlag(QStyle::State_MouseOver);
    DiagramColours colours = ScreenDiagramColours();
    if (current) {
        // What is on the neck; what rules it is selected elsewhere.
        PaintFace(*painter, QRectF(option.rect).adjusted(1, 1, -1, -1), Colours::dimSelection,
                  QPen(Colours::selection, 2));
        colours = {Colours::text, Colours::text, Colours::dimSelection};
    } else if (pointed) {
        painter->fillRect(option.rect, Colours::fieldStripe.Now());
    }
    constexpr int margin = 4;
    const Diagram diagram{{}, rows->ShapeAt(index.row()), m_leftHanded};
    const QRectF room = QRectF(option.rect).adjusted(margin, margin, -margin, -margin);
    PaintDiagram(*painter, PlaceIn(room, diagram), diagram, colours);
    if (option.state.testFlag(QStyle::State_HasFocus) && FocusRing::IsShown(option.widget))
        FocusRing::Paint(*painter, QRectF(option.rect));
}

QSize VoicingDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const {
    return m_cell;
}

bool VoicingDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                const QStyleOptionViewItem& option, const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    ShowToolTip(event->globalPos(), index.data(Qt::ToolTipRole).toString(), view->viewport());
    return true;
}
