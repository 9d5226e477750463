#include "workbench/maintexts.h"

#include "workbench/workbench.h"

#include <array>

namespace {

using enum TextPlace;

constexpr std::array texts{
    Ours(u"frmMain", Caption, u"Тонвик", u"Tonvik"),

    OfFile(u"Frame1", Caption, 1, u"Аккорд/лад:"),
    Ours(u"lstBase", Hint, u"Основной тон (Ctrl+вверх, Ctrl+вниз)",
         u"Root note (Ctrl+Up, Ctrl+Down)"),
    Ours(u"lstType", Hint, u"Тип аккорда (Alt+вверх, Alt+вниз)", u"Chord type (Alt+Up, Alt+Down)"),
    OfFile(u"Label5", Caption, 4, u"Лад:"),
    Ours(u"lstLad", Hint, u"Лад (гамма)", u"Scale"),
    Ours(u"txtFind", Hint, u"Аккорд или тип, который нужно найти (Ctrl+F)",
         u"Chord or type to look for (Ctrl+F)"),
    Ours(u"txtFind", Caption, u"Введите тип аккорда", u"Enter a chord type"),
    Ours(u"cmdFind", Hint, u"Найти тип аккорда (F3)", u"Find the chord type (F3)"),

    Ours(u"cmdFindChord", Hint, u"Назвать аккорд по нажатым клавишам (Shift+F3)",
         u"Name the chord of the marked keys (Shift+F3)"),
    Ours(u"cmdRings", Hint, u"Показать на грифе все ноты отмеченных клавиш (F12)",
         u"Show all notes of the marked keys on the neck (F12)"),
    // A tool tip would cover what one points at: lblHint says it.
    Ours(u"picStrings", Name, u"Гриф: щелчок ставит палец, правая кнопка снимает всё",
         u"Fretboard: click to set a finger, right click to clear everything"),
    Ours(u"picStrings", Description,
         u"PgUp и PgDn: струна или барре; + и -: лад; пробел: следующая нота аккорда",
         u"Page Up and Page Down: string or barre; + and -: fret; Space: next chord note"),
    Ours(u"Label3()", Hint, u"Барре на ладу %1", u"Barre at fret %1"),
    Ours(u"Label6()", Hint,
         u"Следующая нота аккорда на этой струне; правая кнопка: заглушить её или вернуть звук",
         u"Next chord note on this string; right click: mute or unmute it"),
    Ours(u"picKeyboard", Name,
         u"Клавиатура: щелчок отмечает ноту, правая кнопка снимает все отметки",
         u"Keyboard: click to mark a note, right click to clear all marks"),
    Ours(u"picKeyboard", Description, u"+ и -: клавиша; PgUp и PgDn: октава; пробел: отметить",
         u"+ and -: key; Page Up and Page Down: octave; Space: mark"),
    Ours(u"lstVoicings", Hint, u"Аппликатуры аккорда (Ctrl+PgDn, Ctrl+PgUp)",
         u"Ways to play the chord (Ctrl+Page Down, Ctrl+Page Up)"),
    Ours(u"cmdVoicings", Hint, u"Все аппликатуры аккорда (F11)",
         u"Every way to play the chord (F11)"),
    Ours(u"cmdAddDiag", Hint, u"Добавить то, что на грифе, на лист диаграмм (Ctrl+D)",
         u"Add what is on the neck to the diagram sheet (Ctrl+D)"),
    OfFile(u"Label2", Caption, 20, u"Нажаты клавиши:"), // The key serves twice.
    OfFile(u"Label7", Caption, 23, u"Недостающие звуки:"),

    OfFile(u"Frame2", Caption, 2, u"Подбор комбинации:"),
    Ours(u"txtStr", Hint, u"Номер ряда, снизу вверх: от 1 до 6 (Shift+вверх, Shift+вниз)",
         u"Row number, counted from the bottom: 1 to 6 (Shift+Up, Shift+Down)"),
    Ours(u"VScroll3", Hint, u"Выбор струны", u"Choose the string"),
    OfFile(u"cmdFindNew", Caption, 5, u"Изменить"),
    Ours(u"cmdFindNew", Hint, u"Следующий лад с нотой аккорда на этой струне (F4)",
         u"Next fret with a chord note on this string (F4)"),
    Ours(u"Frame3", Name, u"Барре", u"Barre"),
    OfFile(u"cmdMakeBarre", Caption, 6, u"Барре"),
    Ours(u"cmdMakeBarre", Hint, u"Поставить или снять барре (F2)", u"Set or lift the barre (F2)"),
    OfFile(u"lstBarre", Item, 8, u"1 струна"),
    OfFile(u"lstBarre", Item, 9, u"2 струны"),
    OfFile(u"lstBarre", Item, 10, u"3 струны"),
    OfFile(u"lstBarre", Item, 11, u"4 струны"),
    OfFile(u"lstBarre", Item, 12, u"5 струн"),
    OfFile(u"lstBarre", Item, 13, u"6 струн"),
    Ours(u"lstBarre", Hint, u"Сколько струн прижимает барре", u"How many strings the barre covers"),
    OfFile(u"lstLadBarre", Numbered, 14, u"лад", barreFrets),
    Ours(u"lstLadBarre", Hint, u"Лад барре (Shift+влево, Shift+вправо)",
         u"Fret of the barre (Shift+left, Shift+right)"),
    Ours(u"Command1", Hint, u"Разложить отмеченные ноты по струнам (F8)",
         u"Place the marked notes on the strings (F8)"),
    Ours(u"Command2", Hint, u"Перенести ноты струн на клавиатуру (F9)",
         u"Mark the strings' notes on the keyboard (F9)"),

    Ours(u"Frame4", Name, u"Звук", u"Sound"),
    Ours(u"GoldButton1", Hint, u"Сыграть отмеченные клавиши (F5)", u"Play the marked keys (F5)"),
    Ours(u"GoldButton2", Hint, u"Сыграть струны (F6)", u"Play the strings (F6)"),
    Ours(u"cmdStrum", Hint, u"Сыграть все струны разом (Ctrl+Enter)",
         u"Play all strings at once (Ctrl+Enter)"),
    OfFile(u"GoldButton3", Caption, 7, u"Остановить"),
    Ours(u"GoldButton3", Hint, u"Остановить проигрывание (F7)", u"Stop playing (F7)"),
    OfFile(u"lstWhat", Item, 16, u"медленно"), // Slow has the higher key.
    OfFile(u"lstWhat", Item, 15, u"быстро"),
    Ours(u"lstWhat", Hint, u"Темп", u"Tempo"),
    OfFile(u"lstTemp", Item, 17, u"1 раз"),
    OfFile(u"lstTemp", Item, 18, u"цикл"),
    Ours(u"lstTemp", Hint, u"Повторение", u"Repetition"),

    OfFile(u"Frame5", Caption, 3, u"Дополнительно:"),
    Ours(u"cmdNewDiag", Hint, u"Диаграммы аккордов", u"Chord diagrams"),
    Ours(u"cmdSettings", Hint, u"Настройки (F10)", u"Settings (F10)"),
    Ours(u"cmdHelp", Hint, u"Помощь (F1)", u"Help (F1)"),
};

} // namespace

std::span<const WindowText> MainTexts() {
    return texts;
}
