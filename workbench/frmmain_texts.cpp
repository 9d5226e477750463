// The main window's texts: built-in Russian, a language file's, and those of our own.
#include "workbench/frmmain.h"

#include "core/language.h"

namespace {

const QString mainSection = QStringLiteral("Main");

struct ToolTip {
    const char16_t* control;
    const char16_t* russian;
    const char16_t* english;
};

// Tool tips; they are the accessible names of controls without a caption, too.
constexpr std::array toolTips{
    ToolTip{u"lstBase", u"Основной тон", u"Root note"},
    ToolTip{u"lstType", u"Тип аккорда", u"Chord type"},
    ToolTip{u"lstLad", u"Лад (гамма)", u"Scale"},
    ToolTip{u"txtFind", u"Аккорд или тип, который нужно найти (Ctrl+F)",
            u"Chord or type to look for (Ctrl+F)"},
    ToolTip{u"cmdFind", u"Найти тип аккорда (F3)", u"Find the chord type (F3)"},
    ToolTip{u"cmdFindChord", u"Назвать аккорд по нажатым клавишам (Shift+F3)",
            u"Name the chord of the marked keys (Shift+F3)"},
    ToolTip{u"cmdRings", u"Показать на грифе все ноты отмеченных клавиш (F12)",
            u"Show all notes of the marked keys on the neck (F12)"},
    ToolTip{u"picStrings", u"Гриф: щелчок ставит палец, правая кнопка снимает всё",
            u"Fretboard: click to set a finger, right click to clear everything"},
    ToolTip{u"picKeyboard", u"Клавиатура: щелчок отмечает ноту, правая кнопка снимает все отметки",
            u"Keyboard: click to mark a note, right click to clear all marks"},
    ToolTip{u"txtStr", u"Номер ряда, снизу вверх: от 1 до 6",
            u"Row number, counted from the bottom: 1 to 6"},
    ToolTip{u"VScroll3", u"Выбор струны", u"Choose the string"},
    ToolTip{u"cmdFindNew", u"Следующий лад с нотой аккорда на этой струне (F4)",
            u"Next fret with a chord note on this string (F4)"},
    ToolTip{u"cmdMakeBarre", u"Поставить или снять барре (F2)", u"Set or lift the barre (F2)"},
    ToolTip{u"lstBarre", u"Сколько струн прижимает барре", u"How many strings the barre covers"},
    ToolTip{u"lstLadBarre", u"Лад барре (Shift+влево, Shift+вправо)",
            u"Fret of the barre (Shift+left, Shift+right)"},
    ToolTip{u"Command1", u"Разложить отмеченные ноты по струнам (F8)",
            u"Place the marked notes on the strings (F8)"},
    ToolTip{u"Command2", u"Перенести ноты струн на клавиатуру (F9)",
            u"Mark the strings' notes on the keyboard (F9)"},
    ToolTip{u"GoldButton1", u"Сыграть отмеченные клавиши (F5)", u"Play the marked keys (F5)"},
    ToolTip{u"GoldButton2", u"Сыграть струны (F6)", u"Play the strings (F6)"},
    ToolTip{u"cmdStrum", u"Сыграть все струны разом (Ctrl+Enter)",
            u"Play all strings at once (Ctrl+Enter)"},
    ToolTip{u"GoldButton3", u"Остановить проигрывание (F7)", u"Stop playing (F7)"},
    ToolTip{u"lstWhat", u"Темп", u"Tempo"},
    ToolTip{u"lstTemp", u"Повторение", u"Repetition"},
    ToolTip{u"cmdNewDiag", u"Диаграммы аккордов", u"Chord diagrams"},
    ToolTip{u"cmdSettings", u"Настройки (F10)", u"Settings (F10)"},
    ToolTip{u"cmdHelp", u"Помощь (F1)", u"Help (F1)"},
};

QStringList Numbered(const QString& word) {
    QStringList texts;
    for (int fret = 1; fret <= barreFrets; ++fret)
        texts += QString::number(fret) + u' ' + word;
    return texts;
}

QString In(Tongue tongue, const char16_t* russian, const char16_t* english) {
    return QString::fromUtf16(tongue == Tongue::Russian ? russian : english);
}

} // namespace

void frmMain::ShowBuiltInTexts() {
    setWindowTitle(QStringLiteral("Тонвик"));
    Frame1->setTitle(QStringLiteral("Аккорд/лад:"));
    Frame2->setTitle(QStringLiteral("Подбор комбинации:"));
    Frame5->setTitle(QStringLiteral("Дополнительно:"));
    Label5->setText(QStringLiteral("Лад:"));
    Label2->setText(QStringLiteral("Нажаты клавиши:"));
    Label7->setText(QStringLiteral("Недостающие звуки:"));
    cmdFindNew->SetCaption(QStringLiteral("Изменить"));
    cmdMakeBarre->SetCaption(QStringLiteral("Барре"));
    GoldButton3->SetCaption(QStringLiteral("Остановить"));
}

void frmMain::FillBuiltInLists() {
    lstBarre->SetTexts({QStringLiteral("1 струна"), QStringLiteral("2 струны"),
                        QStringLiteral("3 струны"), QStringLiteral("4 струны"),
                        QStringLiteral("5 струн"), QStringLiteral("6 струн")});
    lstBarre->SelectRow(stringCount - 1);
    lstLadBarre->SetTexts(Numbered(QStringLiteral("лад")));
    lstLadBarre->SelectRow(0);
    lstWhat->SetTexts({QStringLiteral("медленно"), QStringLiteral("быстро")});
    lstTemp->SetTexts({QStringLiteral("1 раз"), QStringLiteral("цикл")});
}

void frmMain::ApplyLanguage(const LanguageTexts& texts) {
    const auto text = [&](int key) { return texts.Text(mainSection, key); };
    Frame1->setTitle(text(1));
    Frame2->setTitle(text(2));
    Frame5->setTitle(text(3));
    Label5->setText(text(4));
    cmdFindNew->SetCaption(text(5));
    GoldButton3->SetCaption(text(7));
    QStringList counts;
    for (int key = 8; key <= 13; ++key)
        counts += text(key);
    lstBarre->SetTexts(counts);
    lstBarre->SelectRow(stringCount - 1);
    lstLadBarre->SetTexts(Numbered(text(14)));
    lstLadBarre->SelectRow(0);
    lstWhat->SetTexts({text(16), text(15)}); // Slow has the higher key.
    lstTemp->SetTexts({text(17), text(18)});
    cmdMakeBarre->SetCaption(text(6));
    m_state.UiText.NoSuchChordType = text(19);
    Label7->setText(text(23));
    m_state.UiText.StructureExists = text(20);
    m_state.UiText.AltNamesLabel = text(21);
    m_state.UiText.Attention = text(22);
    Label2->setText(text(20)); // The key serves twice.
}

void frmMain::ApplyTongue() {
    const Tongue tongue = m_state.InterfaceTongue();
    for (const ToolTip& tip : toolTips) {
        auto* control = findChild<QWidget*>(QString::fromUtf16(tip.control));
        const QString text = In(tongue, tip.russian, tip.english);
        control->setToolTip(text);
        control->setAccessibleName(text);
    }
    // Theirs would cover what one points at: lblHint says it.
    panel->picStrings->setToolTip(QString());
    panel->picKeyboard->setToolTip(QString());
    for (GoldButton* captioned : {cmdFindNew, cmdMakeBarre, GoldButton3}) {
        captioned->setAccessibleDescription(captioned->accessibleName());
        captioned->setAccessibleName(captioned->Caption());
    }
    panel->picStrings->setAccessibleDescription(
        In(tongue, u"PgUp и PgDn: струна или барре; + и -: лад; пробел: следующая нота аккорда",
           u"Page Up and Page Down: string or barre; + and -: fret; Space: next chord note"));
    panel->picKeyboard->setAccessibleDescription(
        In(tongue, u"+ и -: клавиша; PgUp и PgDn: октава; пробел: отметить",
           u"+ and -: key; Page Up and Page Down: octave; Space: mark"));
    for (int fret = 1; fret <= InstrumentPanel::fretLabels; ++fret)
        panel->Label3[static_cast<std::size_t>(fret - 1)]->setToolTip(
            In(tongue, u"Барре на ладу %1", u"Barre at fret %1").arg(fret));
    for (HotLabel* handle : panel->Label6) {
        handle->setToolTip(In(tongue,
                              u"Следующая нота аккорда на этой струне; правая кнопка: заглушить "
                              u"её или вернуть звук",
                              u"Next chord note on this string; right click: mute or unmute it"));
        handle->setAccessibleName(handle->toolTip());
    }
    Frame3->setAccessibleName(In(tongue, u"Барре", u"Barre"));
    Frame4->setAccessibleName(In(tongue, u"Звук", u"Sound"));
    txtFind->SetPrompt(In(tongue, u"Введите тип аккорда", u"Enter a chord type"));
}
