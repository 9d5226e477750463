// The rows of the list of tunings: beside each name its six notes, the thick string first, as
// tunings are said; a tool tip has both whole.
#pragma once

#include "controls/rowdelegate.h"
#include "core/texttable.h"

class TuningDelegate : public RowDelegate {
public:
    // Row k is entry k + 1 of the tunings, which must outlive the delegate.
    explicit TuningDelegate(const TextTable& tunings, QObject* parent = nullptr)
        : RowDelegate(parent), m_tunings(tunings) {}

    // "D A D G B E"; what a tuning lacks is not there.
    QString NotesOf(int row) const;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

private:
    const TextTable& m_tunings;
};
