#include "workbench/hint.h"

#include "music/shape.h"
#include "pictures/partnames.h"

namespace {

// How the picture is used, once the pointer rests on it.
QString WithHelp(const QString& hint, const TwipPicture* picture) {
    if (picture == nullptr)
        return hint;
    const QString& help = picture->accessibleName();
    return hint.isEmpty() ? help : hint + QStringLiteral(". ") + help;
}

QString FocusedPart(const TwipPicture& picture) {
    const auto focus = static_cast<std::size_t>(picture.FocusPart());
    const QString part = picture.Parts().parts[focus].name;
    return part.left(1).toUpper() + part.mid(1);
}

const Phrase wipedNews{QStringLiteral("Гриф пуст. Ctrl+Z вернёт всё, как было."),
                       QStringLiteral("The neck is empty. Ctrl+Z brings everything back.")};

} // namespace

void ShowPointed(FretboardView& board, const Pointed& pointed, const Workbench& workbench) {
    if (!pointed.place)
        return;
    const auto [row, fret] = *pointed.place;
    // A press there would take hold of the barre, should it have come there meanwhile.
    const double x = board.layout.MarkCentre(row, fret).x();
    if (board.barre && board.layout.IsOnBarre(*board.barre, x))
        return;
    board.pointed = pointed.place;
    if (const auto note = workbench.NoteAt(row, fret))
        board.pointedNote = NoteName(*note).toString();
}

QString HintAt(const Pointed& pointed, const SeeGroup& see, const Workbench& workbench,
               const AppState& state, const QString& notice) {
    if (pointed.chord && see.lblChord->IsCut())
        return see.lblChord->text();
    const Tongue tongue = state.InterfaceTongue();
    if (pointed.wiped && !workbench.HasFingers())
        return wipedNews.In(tongue);
    const auto marked = workbench.Keys().Marked();
    if (pointed.place) {
        const auto note = workbench.NoteAt(pointed.place->row, pointed.place->fret);
        const int string = StringOfRow(pointed.place->row, state.ThinStringAtBottom);
        return WithHelp(note ? CrossingHint(string, pointed.place->fret, *note, marked, tongue)
                             : QString(),
                        pointed.restsOn);
    }
    if (!pointed.key && pointed.restsOn != nullptr)
        return WithHelp({}, pointed.restsOn);
    if (!pointed.key && !notice.isEmpty())
        return notice;
    const PicKeyboard& keyboard = *see.panel->picKeyboard;
    if (pointed.key || keyboard.hasFocus())
        return WithHelp(KeyHint(pointed.key.value_or(keyboard.FocusPart()), marked, tongue),
                        pointed.restsOn);
    return see.panel->picStrings->hasFocus() ? FocusedPart(*see.panel->picStrings) : QString();
}
