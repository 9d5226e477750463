// The names of a catalogue as the rows of a list.
#pragma once

#include "core/texttable.h"

#include <QAbstractListModel>

// Row k shows field 1 of entry k + 1. The table must outlive the model and stay as it is.
class CatalogueModel : public QAbstractListModel {
public:
    explicit CatalogueModel(const TextTable& table, QObject* parent = nullptr)
        : QAbstractListModel(parent), m_table(table) {}

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : m_table.Count();
    }

    QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid() || role != Qt::DisplayRole)
            return {};
        return m_table.Field(1, index.row() + 1);
    }

private:
    const TextTable& m_table;
};
