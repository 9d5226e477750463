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

    // What typing in the list asks for, the next row that begins with the text, is found
    // without making a text of each of a million rows.
    QModelIndexList match(const QModelIndex& start, int role, const QVariant& value, int hits,
                          Qt::MatchFlags flags) const override {
        const bool typed = flags == Qt::MatchFlags(Qt::MatchStartsWith | Qt::MatchWrap);
        if (!start.isValid() || role != Qt::DisplayRole || hits != 1 || !typed)
            return QAbstractListModel::match(start, role, value, hits, flags);
        const QString text = value.toString();
        const int rows = rowCount();
        for (int i = 0; i < rows; ++i) {
            const int row = (start.row() + i) % rows;
            if (m_table.FieldStartsWith(1, row + 1, text))
                return {index(row)};
        }
        return {};
    }

private:
    const TextTable& m_table;
};
