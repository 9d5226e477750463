#include "diagrams/sheettexts.h"

#include <array>

namespace {

using enum TextPlace;

constexpr std::array texts{
    Ours(u"frmDiags", Caption, u"Диаграмма аккордов", u"Tonvik Diags"),

    Ours(u"cmdAdd", Hint, u"Добавить аппликатуру с грифа", u"Add the fingering on the neck"),
    Ours(u"cmdDel", Hint, u"Убрать выбранную строку", u"Remove the selected row"),
    Ours(u"cmdClear", Hint, u"Очистить список", u"Clear the list"),
    Ours(u"cmdMake", Hint, u"Вписать весь список в текст", u"Write the whole list into the text"),
    Ours(u"lblRows", Caption, u"Список аппликатур", u"Fingerings"),
    Ours(u"lstMain", Hint, u"Аппликатуры: щелчок вписывает строку в текст",
         u"Fingerings: a click writes the row into the text"),

    Ours(u"GoldButton1", Hint, u"Открыть файл (Ctrl+O)", u"Open a file (Ctrl+O)"),
    Ours(u"cmdSave", Hint, u"Сохранить в файл (Ctrl+S)", u"Save to a file (Ctrl+S)"),
    Ours(u"cmdImport", Hint, u"Взять текст из файла ChordPro", u"Take the text of a ChordPro file"),
    Ours(u"cmdExport", Hint, u"Записать как PDF, SVG, PNG или ChordPro",
         u"Write as PDF, SVG, PNG or ChordPro"),
    Ours(u"cmdPrint", Hint, u"Печать (Ctrl+P)", u"Print (Ctrl+P)"),
    Ours(u"lblPages", Caption, u"Страницы", u"Pages"),
    Ours(u"picPage", Name, u"Страницы листа", u"Pages of the sheet"),

    Ours(u"cmdCut", Hint, u"Вырезать", u"Cut"),
    Ours(u"cmdCopy", Hint, u"Копировать", u"Copy"),
    Ours(u"cmdPast", Hint, u"Вставить", u"Paste"),
    Ours(u"GoldButton2", Hint, u"Начертить шесть линий", u"Draw six lines"),
    Ours(u"lblLength", Caption, u"Длина линий:", u"Line length:"),
    Ours(u"Text1", Hint, u"Длина линий в знаках", u"Length of the lines in characters"),
    Ours(u"lblText", Caption, u"Текст", u"Text"),
    Ours(u"txtMain", Name, u"Текст листа", u"Text of the sheet"),
};

} // namespace

std::span<const WindowText> SheetTexts() {
    return texts;
}
