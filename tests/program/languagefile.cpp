#include "languagefile.h"

#include "core/codepage.h"
#include "core/language.h"

#include <algorithm>
#include <array>

namespace {

constexpr auto keys = std::to_array<LanguageKey>({
    {u"Main", 1, u"Аккорд/лад:"},
    {u"Main", 2, u"Подбор комбинации:"},
    {u"Main", 3, u"Дополнительно:"},
    {u"Main", 4, u"Лад:"},
    {u"Main", 5, u"Изменить"},
    {u"Main", 6, u"Барре"},
    {u"Main", 7, u"Остановить"},
    {u"Main", 8, u"1 струна"},
    {u"Main", 9, u"2 струны"},
    {u"Main", 10, u"3 струны"},
    {u"Main", 11, u"4 струны"},
    {u"Main", 12, u"5 струн"},
    {u"Main", 13, u"6 струн"},
    {u"Main", 14, u"лад"},
    {u"Main", 15, u"быстро"},
    {u"Main", 16, u"медленно"},
    {u"Main", 17, u"1 раз"},
    {u"Main", 18, u"цикл"},
    {u"Main", 19, u"Такого типа аккорда нет в базе данных программы."},
    {u"Main", 20, u"Нажаты клавиши:"},
    {u"Main", 21, u"Альтернативные обозначения:"},
    {u"Main", 22, u"Внимание!"},
    {u"Main", 23, u"Недостающие звуки:"},
    {u"Settings", 1, u"Настройка:"},
    {u"Settings", 2, u"Струны:"},
    {u"Settings", 3, u"Стандартная (тонкая вверху)"},
    {u"Settings", 4, u"Стандартная (тонкая внизу)"},
    {u"Settings", 5, u"Пользовательская (тонкая вверху):"},
    {u"Settings", 6, u"Пользовательская (тонкая внизу):"},
    {u"Settings", 7, u"Запоминать настройки"},
    {u"Settings", 8, u"Тонкая струна:"},
    {u"Settings", 9, u"Вторая струна:"},
    {u"Settings", 10, u"Третья струна:"},
    {u"Settings", 11, u"Четвертая струна:"},
    {u"Settings", 12, u"Пятая струна:"},
    {u"Settings", 13, u"Шестая струна:"},
    {u"Settings", 15, u"Отмена"},
    {u"Help", 1, u"О программе"},
});
static_assert(keys.size() == 23 + 14 + 1);

constexpr qsizetype longestText = 255;

// A quarter more than the Russian text, and never less than four characters more.
qsizetype Room(qsizetype russian) {
    return std::max(russian + 4, (russian * 5 + 3) / 4);
}

QString Name(const QString& section, const QString& key) {
    return u'[' + section + u"] " + key;
}

} // namespace

std::span<const LanguageKey> LanguageKeys() {
    return keys;
}

QStringList LanguageFaults(const QByteArray& bytes) {
    QStringList faults;
    QStringList missing{Name(QStringLiteral("Init"), QStringLiteral("Lang"))};
    QList<qsizetype> room{longestText};
    for (const LanguageKey& key : keys) {
        missing += Name(QString::fromUtf16(key.section), QString::number(key.number));
        room += Room(QString::fromUtf16(key.russian).size());
    }
    const QStringList known = missing;

    const QString text = FromAnsi(bytes);
    if (ToAnsi(text) != bytes || text.contains(QChar::ReplacementCharacter))
        faults += QStringLiteral("A byte stands for no character.");
    QStringList lines = text.split(QStringLiteral("\r\n"));
    if (!lines.takeLast().isEmpty())
        faults += QStringLiteral("The last line has no end.");
    QStringList sections;
    for (const QString& line : lines) {
        if (std::any_of(line.begin(), line.end(), [](QChar c) { return c.unicode() < 0x20; }))
            faults += QStringLiteral("A control character: ") + line;
        if (line.isEmpty() || line.startsWith(u';'))
            continue;
        if (line.startsWith(u'[') && line.endsWith(u']')) {
            const QString section = line.mid(1, line.size() - 2);
            if (sections.contains(section, Qt::CaseInsensitive))
                faults += QStringLiteral("A double section: ") + section;
            sections += section;
            continue;
        }
        const QString key = Name(sections.value(sections.size() - 1), line.section(u'=', 0, 0));
        const QString value = line.section(u'=', 1);
        const qsizetype number = known.indexOf(key);
        if (number < 0 || !line.contains(u'=')) {
            faults += QStringLiteral("An unknown line: ") + line;
            continue;
        }
        if (!missing.removeOne(key))
            faults += QStringLiteral("A double key: ") + key;
        if (value.isEmpty() || value != value.trimmed() || value == missingLanguageText)
            faults += QStringLiteral("No proper text: ") + key;
        if (value.size() > room[number])
            faults += QStringLiteral("A text of %1 characters has room for %2: %3")
                          .arg(value.size())
                          .arg(room[number])
                          .arg(key);
    }
    for (const QString& section : sections)
        if (std::none_of(known.begin(), known.end(),
                         [&](const QString& key) { return key.startsWith(u'[' + section + u']'); }))
            faults += QStringLiteral("An unknown section: ") + section;
    for (const QString& key : missing)
        faults += QStringLiteral("A missing key: ") + key;
    return faults;
}
