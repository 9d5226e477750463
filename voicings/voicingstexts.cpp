#include "voicings/voicingstexts.h"

#include <array>

namespace {

using enum TextPlace;

constexpr std::array texts{
    Ours(u"frmVoicings", Caption, u"Аппликатуры", u"Every way to play it"),
    Ours(u"lstVoicings", Name, u"Аппликатуры", u"Every way to play it"),

    Ours(u"lblFret", Caption, u"Нижний лад от и до:", u"Lowest fret from and to:"),
    Ours(u"lstFromFret", Hint, u"Нижний зажатый лад: от", u"The lowest stopped fret: from"),
    Ours(u"lstToFret", Hint, u"Нижний зажатый лад: до", u"The lowest stopped fret: to"),
    Ours(u"lblOpenStrings", Caption, u"Открытые струны:", u"Open strings:"),
    Ours(u"lstOpenStrings", Hint, u"Открытые струны", u"Open strings"),
    Ours(u"lstOpenStrings", Item, u"всё равно", u"any"),
    Ours(u"lstOpenStrings", Item, u"есть", u"some"),
    Ours(u"lstOpenStrings", Item, u"нет", u"none"),
    Ours(u"lblFingers", Caption, u"Пальцев:", u"Fingers:"),
    Ours(u"lstFingers", Hint, u"Сколько пальцев нужно", u"How many fingers it takes"),
    Ours(u"lstFingers", Item, u"сколько угодно", u"any number"),
    Ours(u"lstFingers", Item, u"не больше трёх", u"three at most"),
    Ours(u"lstFingers", Item, u"не больше двух", u"two at most"),
    Ours(u"lstFingers", Item, u"один", u"one"),
    Ours(u"lblBass", Caption, u"В басу:", u"In the bass:"),
    Ours(u"lstBass", Hint, u"Самая низкая нота", u"The lowest note"),
    Ours(u"lstBass", Item, u"всё равно", u"any note"),
    Ours(u"lstBass", Item, u"основной тон", u"the root"),
    Ours(u"lstBass", Item, u"терция", u"the third"),
    Ours(u"lstBass", Item, u"квинта", u"the fifth"),
    Ours(u"lblStrings", Caption, u"Струны:", u"Strings:"),
    Ours(u"chkString()", Hint,
         u"Струна %1: отмечена звучит, не отмечена заглушена, наполовину отмечена всё равно",
         u"String %1: checked it sounds, unchecked it is muted, half checked either"),
    Ours(u"chkString()", Name, u"Струна %1", u"String %1"),
    Ours(u"chkNoBarre", Caption, u"без барре", u"no barre"),
    Ours(u"chkComplete", Caption, u"все ноты аккорда", u"every note of the chord"),
    Ours(u"lblOrder", Caption, u"Порядок:", u"Order:"),
    Ours(
        u"lstOrder", Hint,
        u"Порядок. Ближе к руке: меньше ладов и струн, на которые сдвигаются пальцы, и пальцев, "
        u"которые поднимаются или ставятся, считая от того, что вы последним поставили на гриф; "
        u"пальцы, расставленные программой при выборе аккорда, не в счёт",
        u"Order. Near the hand: the fewer frets and strings that fingers move and fingers that are "
        u"lifted or set, from what you last put on the neck; fingers that the program set when a "
        u"chord was chosen do not count"),
    Ours(u"lstOrder", Item, u"сначала обычные", u"usual first"),
    Ours(u"lstOrder", Item, u"по месту на грифе", u"by position"),
    Ours(u"lstOrder", Item, u"по басу", u"by bass"),
    Ours(u"lstOrder", Item, u"ближе к руке", u"near the hand"),
    Ours(u"cmdAll", Caption, u"Показать все", u"Show all"),
    Ours(u"cmdAll", Hint, u"Снять все условия", u"Take back all filters"),
};

} // namespace

std::span<const WindowText> VoicingsTexts() {
    return texts;
}
