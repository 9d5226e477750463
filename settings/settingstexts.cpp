#include "settings/settingstexts.h"

#include <array>

namespace {

using enum TextPlace;

constexpr std::array texts{
    Ours(u"frmSettings", Caption, u"Настройки", u"Settings"),
    OfFile(u"Frame1", Caption, 1, u"Настройка:"),
    OfFile(u"Option1", Caption, 3, u"Стандартная (тонкая вверху)"),
    OfFile(u"Option2", Caption, 4, u"Стандартная (тонкая внизу)"),
    OfFile(u"Option3", Caption, 5, u"Пользовательская (тонкая вверху):"),
    OfFile(u"Option4", Caption, 6, u"Пользовательская (тонкая внизу):"),
    Ours(u"lstTunings", Name, u"Строи", u"Tunings"),
    Ours(u"Check2", Caption, u"Гриф для левши", u"Left-handed neck"),
    Ours(u"lblScheme", Caption, u"Цвета:", u"Colours:"),
    Ours(u"lstScheme", Item, u"как на рабочем столе", u"as the desktop"),
    Ours(u"lstScheme", Item, u"светлые", u"light"),
    Ours(u"lstScheme", Item, u"тёмные", u"dark"),
    Ours(u"lstScheme", Hint, u"Цвета окон", u"Colours of the windows"),

    OfFile(u"Frame3", Caption, 2, u"Струны:"),
    // The labels of the strings 1 to 6 are not in the order of their names.
    OfFile(u"Label1", Caption, 8, u"Тонкая струна:"),
    OfFile(u"Label3", Caption, 9, u"Вторая струна:"),
    OfFile(u"Label4", Caption, 10, u"Третья струна:"),
    OfFile(u"Label5", Caption, 11, u"Четвертая струна:"),
    OfFile(u"Label6", Caption, 12, u"Пятая струна:"),
    OfFile(u"Label2", Caption, 13, u"Шестая струна:"),
    Ours(u"lblNote", Caption, u"нота", u"note"),
    Ours(u"lblOctave", Caption, u"октава", u"octave"),
    Ours(u"Text1()", Hint, u"Нота струны %1", u"Note of string %1"),
    Ours(u"VScroll1()", Hint, u"Выбрать ноту струны %1", u"Choose the note of string %1"),
    Ours(u"VScroll2()", Hint, u"Октава струны %1", u"Octave of string %1"),
    Ours(u"Image1()", Hint, u"Послушать струну %1", u"Listen to string %1"),

    // In both languages, for whoever has the wrong one.
    Ours(u"Frame2", Caption, u"Язык интерфейса/Interface language:",
         u"Язык интерфейса/Interface language:"),
    Ours(u"lstLang", Name, u"Язык интерфейса/Interface language:",
         u"Язык интерфейса/Interface language:"),
    OfFile(u"Check1", Caption, 7, u"Запоминать настройки"),
    OfFile(u"cmdCancel", Caption, 15, u"Отмена"),
};

} // namespace

std::span<const WindowText> SettingsTexts() {
    return texts;
}
