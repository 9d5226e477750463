#include "music/spelling.h"

#include "core/chordtypes.h"
#include "core/notes.h"
#include "core/numbers.h"

#include <QList>

const QString unknownChord = QStringLiteral("---");

std::vector<int> ChordKeys(int root, QStringView structure) {
    std::vector<int> keys{root};
    int key = root;
    for (const QChar step : structure) {
        if (step >= u'0' && step <= u'9')
            key += step.unicode() - u'0';
        keys.push_back(key);
        if (key >= keyCount)
            break; // Past the piano's end; the structure cannot come back.
    }
    return keys;
}

std::vector<double> ScaleSteps(QStringView degrees) {
    std::vector<double> steps;
    for (const QStringView degree : degrees.split(u','))
        steps.push_back(LeadingNumber(degree) - 1);
    steps.erase(steps.begin());
    return steps;
}

QString NameChord(const std::vector<int>& markedKeys, const TextTable& chordTypes) {
    QString structure;
    for (std::size_t i = 1; i < markedKeys.size(); ++i)
        structure += QString::number(markedKeys[i] - markedKeys[i - 1]);
    const QString root = markedKeys.empty() ? QString() : NoteName(markedKeys.front()).toString();
    for (int entry = chordTypes.Count(); entry >= 1; --entry)
        if (chordTypes.FieldEquals(ChordType::Structure, entry, structure))
            return root + chordTypes.Field(ChordType::Suffix, entry);
    return unknownChord;
}

std::optional<int> FindChordType(const TextTable& chordTypes, const QString& text) {
    for (int entry = 1; entry <= chordTypes.Count(); ++entry)
        if (chordTypes.FieldEquals(ChordType::Name, entry, text))
            return entry - 1;
    const QString listed = text + u',';
    for (int entry = 1; entry <= chordTypes.Count(); ++entry)
        if (chordTypes.FieldContains(ChordType::AltNames, entry, listed))
            return entry - 1;
    return std::nullopt;
}
