// Voicings as the rows of a list: the shape as text, its fingers, and both in words.
#pragma once

#include "core/phrase.h"
#include "music/voicings.h"

#include <QAbstractListModel>

#include <functional>

class VoicingModel : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    // chord: what the shapes are called in words.
    void Show(std::vector<Voicing> voicings, const QString& chord, Tongue tongue);

    // What a tool tip says of a shape besides; nothing until it is set.
    void SetRemark(std::function<QString(const Shape&)> remark) { m_remark = std::move(remark); }

    // The row must be there.
    Shape ShapeAt(int row) const;

    // The row of the shape with these frets; -1 where there is none.
    int RowOf(const Shape& shape) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    std::vector<Voicing> m_voicings;
    QString m_chord;
    Tongue m_tongue = Tongue::Russian;
    std::function<QString(const Shape&)> m_remark;
};
