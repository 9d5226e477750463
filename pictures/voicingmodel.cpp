#include "pictures/voicingmodel.h"

#include "pictures/shapewords.h"

#include <algorithm>

void VoicingModel::Show(std::vector<Voicing> voicings, const QString& chord, Tongue tongue) {
    beginResetModel();
    m_voicings = std::move(voicings);
    m_chord = chord;
    m_tongue = tongue;
    endResetModel();
}

Shape VoicingModel::ShapeAt(int row) const {
    return m_voicings[static_cast<std::size_t>(row)].ToShape();
}

int VoicingModel::RowOf(const Shape& shape) const {
    PackedFrets frets;
    for (int string = 1; string <= stringCount; ++string) {
        if (shape.Fret(string) > highestVoicingFret)
            return -1;
        frets.Set(string, shape.Fret(string));
    }
    const auto found =
        std::find_if(m_voicings.begin(), m_voicings.end(), [frets](const Voicing& voicing) {
            return voicing.frets.Bits() == frets.Bits();
        });
    return found == m_voicings.end() ? -1 : static_cast<int>(found - m_voicings.begin());
}

int VoicingModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_voicings.size());
}

QVariant VoicingModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const Shape shape = ShapeAt(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return FretsText(shape);
    case Qt::UserRole:
        return FingersText(shape);
    case Qt::AccessibleTextRole:
        return ShapeInWords(m_chord, shape, m_tongue);
    case Qt::ToolTipRole: {
        const QString words = ShapeInWords(m_chord, shape, m_tongue);
        const QString remark = m_remark ? m_remark(shape) : QString();
        return remark.isEmpty() ? words : QString(words + u'\n' + remark);
    }
    default:
        return {};
    }
}
