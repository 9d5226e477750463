#include "invariants.h"

#include "diagrams/frmdiags.h"
#include "diagrams/sheetdocument.h"

#include <algorithm>

namespace {

// The rings are a look that no step keeps.
bool Same(const Workbench& one, Workbench other) {
    if (one.RingsShown() != other.RingsShown())
        other.SwitchRings();
    return one == other;
}

QStringList NamesShown(const PicPage& pages) {
    QStringList names;
    for (const SheetPage& page : pages.Pages())
        for (const PlacedDiagram& placed : page.diagrams)
            names += placed.diagram.name;
    return names;
}

} // namespace

QString BrokenStrip(frmMain& window) {
    const ChordToPlay asked = window.State().ToPlay();
    if (asked != window.Playing().Chord())
        return QStringLiteral("the strip shows another chord");
    const VoicingModel& rows = window.lstVoicings->Rows();
    const auto& [notes, root, tuning] = asked.chord;
    if (rows.rowCount() != static_cast<int>(FindVoicings(notes, root, tuning).shapes.size()))
        return QStringLiteral("the strip has not all voicings");
    for (int row = 0; row < rows.rowCount(); ++row)
        for (const int pitch : SoundingPitches(rows.ShapeAt(row), tuning))
            if (!notes.Contains(pitch % notesPerOctave))
                return QStringLiteral("row %1 of the strip sounds %2").arg(row).arg(pitch);
    return {};
}

QString BrokenNames(frmMain& window, const AppState& state) {
    QStringList names;
    for (const PlayersName& name : window.State().NamesOfHand(PlayersNames(state.ChordTypes)))
        names += name.text;
    const QString expected = names.join(QStringLiteral(" · "));
    const QString shown = window.lblSounds->text();
    return shown == expected ? QString() : QStringLiteral("%1 is called %2").arg(expected, shown);
}

QString BrokenHistory(frmMain& window, const Workbench& before) {
    const Workbench present = window.State();
    int steps = 0;
    while (!Same(window.State(), before) && steps < static_cast<int>(History::mostSteps)) {
        window.Undo();
        ++steps;
    }
    const bool back = Same(window.State(), before);
    for (int step = 0; step < steps; ++step)
        window.Redo();
    if (!Same(window.State(), present))
        return QStringLiteral("redo does not lead to where undo began");
    return back ? QString() : QStringLiteral("undo does not lead back");
}

QString BrokenSheet(const frmDiags& sheet) {
    QStringList written;
    for (const SheetBlock& block : ReadSheetText(sheet.txtMain->Text(), {}))
        if (const auto* row = std::get_if<DiagramRow>(&block))
            for (const SheetDiagram& diagram : row->diagrams)
                written += diagram.name;
    // Songs have diagrams besides, at their head: of the chords that the text only names.
    QStringList shown = NamesShown(*sheet.picPage);
    for (const QString& name : written)
        if (!shown.removeOne(name))
            return QStringLiteral("the pages lack %1").arg(name);
    return {};
}

QString BrokenMirror(const Workbench& rightHanded, const Workbench& leftHanded) {
    const bool same = rightHanded.NeckShape() == leftHanded.NeckShape() &&
                      rightHanded.Keys().Marked() == leftHanded.Keys().Marked() &&
                      rightHanded.ShownBarre() == leftHanded.ShownBarre() &&
                      rightHanded.RootRow() == leftHanded.RootRow() &&
                      rightHanded.TypeRow() == leftHanded.TypeRow() &&
                      rightHanded.ScaleRow() == leftHanded.ScaleRow() &&
                      rightHanded.RingsShown() == leftHanded.RingsShown() &&
                      rightHanded.BarreFretRow() == leftHanded.BarreFretRow() &&
                      rightHanded.BarreStringsRow() == leftHanded.BarreStringsRow() &&
                      rightHanded.ChordName() == leftHanded.ChordName() &&
                      rightHanded.MarkedNames() == leftHanded.MarkedNames() &&
                      rightHanded.Missing() == leftHanded.Missing() &&
                      rightHanded.ToPlay() == leftHanded.ToPlay();
    if (!same)
        return QStringLiteral("the other hand has another state");
    for (int row = 0; row < stringCount; ++row)
        if (rightHanded.Row(row) != leftHanded.Row(row))
            return QStringLiteral("row %1 is another for the other hand").arg(row);
    return {};
}
