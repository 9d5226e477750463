#include "pictures/shapewords.h"

#include <QStringList>

#include <algorithm>

namespace {

QString In(Tongue tongue, QStringView russian, QStringView english) {
    return (tongue == Tongue::Russian ? russian : english).toString();
}

constexpr std::array<QStringView, 20> russianFrets{
    u"первый",       u"второй",      u"третий",        u"четвёртый",     u"пятый",
    u"шестой",       u"седьмой",     u"восьмой",       u"девятый",       u"десятый",
    u"одиннадцатый", u"двенадцатый", u"тринадцатый",   u"четырнадцатый", u"пятнадцатый",
    u"шестнадцатый", u"семнадцатый", u"восемнадцатый", u"девятнадцатый", u"двадцатый"};
constexpr std::array<QStringView, 20> englishFrets{
    u"first",     u"second",      u"third",      u"fourth",     u"fifth",
    u"sixth",     u"seventh",     u"eighth",     u"ninth",      u"tenth",
    u"eleventh",  u"twelfth",     u"thirteenth", u"fourteenth", u"fifteenth",
    u"sixteenth", u"seventeenth", u"eighteenth", u"nineteenth", u"twentieth"};

QString Fret(int fret, Tongue tongue) {
    const auto index = static_cast<std::size_t>(fret - 1);
    if (index >= russianFrets.size())
        return In(tongue, u"лад %1", u"fret %1").arg(fret);
    return In(tongue, u"%1 лад", u"%1 fret")
        .arg(In(tongue, russianFrets[index], englishFrets[index]));
}

QString Finger(int finger, Tongue tongue) {
    switch (finger) {
    case 1:
        return In(tongue, u"указательный палец", u"index finger");
    case 2:
        return In(tongue, u"средний палец", u"middle finger");
    case 3:
        return In(tongue, u"безымянный палец", u"ring finger");
    default:
        return In(tongue, u"мизинец", u"little finger");
    }
}

// The English plural, or one of the three Russian ones.
QString Counted(int count, const std::array<QStringView, 3>& russian,
                const std::array<QStringView, 2>& english, Tongue tongue) {
    const int tens = count / 10 % 10;
    const int ones = count % 10;
    std::size_t form = 2;
    if (tens != 1 && ones == 1)
        form = 0;
    else if (tens != 1 && ones >= 2 && ones <= 4)
        form = 1;
    return QString::number(count) + u' ' + In(tongue, russian[form], english[count == 1 ? 0 : 1]);
}

QString HowMany(int shown, int all, Tongue tongue) {
    if (shown < all)
        return In(tongue, u"Показано: %1 из %2", u"Shown: %1 of %2").arg(shown).arg(all);
    return In(tongue, u"Аппликатур: %1", u"Ways to play it: %1").arg(all);
}

QString WhatGaveWay(GaveWay gaveWay, Tongue tongue) {
    switch (gaveWay) {
    case GaveWay::OnNothing:
        return {};
    case GaveWay::OnOneNote:
        return In(tongue, u"ещё одна нота пропущена", u"one more note left out");
    case GaveWay::OnTwoNotes:
        return In(tongue, u"пропущено до двух нот сверх обычного",
                  u"up to two more notes left out");
    case GaveWay::OnTheSpan:
        return In(tongue, u"растяжка на пять ладов", u"a reach of five frets");
    default:
        return In(tongue, u"звучат и две струны", u"two strings may be enough");
    }
}

QString WhyNone(const ChordOnStrings& chord, Tongue tongue) {
    if (chord.notes.Empty())
        return In(tongue, u"Аккорд не выбран, и ни одна клавиша не отмечена.",
                  u"No chord is chosen, and no key is marked.");
    if (std::none_of(chord.tuning.begin(), chord.tuning.end(),
                     [](const auto& string) { return string.has_value(); }))
        return In(tongue, u"Ни одна струна не настроена на ноту.",
                  u"No string is tuned to a note.");
    if (chord.notes.Count() > stringCount)
        return In(tongue, u"Нот больше, чем возьмут шесть струн: %1.",
                  u"More notes than six strings can play: %1.")
            .arg(chord.notes.Count());
    return In(tongue, u"В этом строе рука такого не возьмёт.",
              u"No hand can hold this in this tuning.");
}

} // namespace

QString ShapeInWords(const QString& name, const Shape& shape, Tongue tongue) {
    QStringList parts;
    for (int string = stringCount; string >= 1; --string) {
        QString part = In(tongue, u"струна %1 ", u"string %1 ").arg(string);
        if (!shape.Sounds(string))
            part += In(tongue, u"не звучит", u"muted");
        else if (shape.Fret(string) == 0)
            part += In(tongue, u"открыта", u"open");
        else
            part += Fret(shape.Fret(string), tongue);
        parts.append(part);
        if (shape.Finger(string) > 0)
            parts.append(Finger(shape.Finger(string), tongue));
    }
    const QString title = name.isEmpty() ? FretsText(shape) : name + u", " + FretsText(shape);
    return title + u": " + parts.join(u", ");
}

QString MovementInWords(const HandMovement& movement, Tongue tongue) {
    const auto counted = [tongue](int count, const std::array<QStringView, 3>& russian,
                                  const std::array<QStringView, 2>& english) {
        return Counted(count, russian, english, tongue);
    };
    return In(tongue, u"Рука: %1 и %2, поднять или поставить %3.",
              u"The hand: %1 and %2 moved, %3 lifted or set.")
        .arg(counted(movement.frets, {u"лад", u"лада", u"ладов"}, {u"fret", u"frets"}),
             counted(movement.strings, {u"струна", u"струны", u"струн"}, {u"string", u"strings"}),
             counted(movement.lifted, {u"палец", u"пальца", u"пальцев"}, {u"finger", u"fingers"}));
}

QString VoicingsInWords(int shown, const Voicings& voicings, const ChordOnStrings& chord,
                        Tongue tongue) {
    const auto all = static_cast<int>(voicings.shapes.size());
    if (all == 0)
        return WhyNone(chord, tongue);
    if (shown == 0)
        return In(tongue, u"Ни одна из %1 не проходит отбор.", u"None of %1 fits the filters.")
            .arg(all);
    const QString count = HowMany(shown, all, tongue);
    const QString gaveWay = WhatGaveWay(voicings.gaveWay, tongue);
    return gaveWay.isEmpty() ? count : count + u": " + gaveWay;
}
