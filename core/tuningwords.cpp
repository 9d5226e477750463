#include "core/tuningwords.h"

#include "core/settings.h"
#include "core/tunings.h"

#include <algorithm>

namespace {

QString NameOf(const QString& notes, const AppState& state) {
    const SixTexts& standard = standardStrings.notes;
    if (notes == QStringList(standard.begin(), standard.end()).join(u','))
        return Phrase{QStringLiteral("обычный"), QStringLiteral("standard")}.In(
            state.InterfaceTongue());
    for (int entry = 1; entry <= state.Tunings.Count(); ++entry)
        if (state.Tunings.FieldEquals(TuningDef::Notes, entry, notes))
            return state.Tunings.Field(TuningDef::Name, entry);
    return {};
}

} // namespace

QString TuningNotes(const AppState& state) {
    QStringList notes;
    for (int string = 1; string <= stringCount; ++string) {
        const int row = RowOfString(string, state.ThinStringAtBottom);
        notes += state.StringNotes[static_cast<std::size_t>(row)];
    }
    return notes.join(u',');
}

QString TuningInWords(const AppState& state) {
    const QString notes = TuningNotes(state);
    QStringList thickFirst = notes.split(u',');
    std::reverse(thickFirst.begin(), thickFirst.end());
    const Phrase tuning{QStringLiteral("Строй: "), QStringLiteral("Tuning: ")};
    const QString name = NameOf(notes, state);
    return tuning.In(state.InterfaceTongue()) + thickFirst.join(u' ') +
           (name.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(name));
}
