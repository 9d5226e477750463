#include "music/shape.h"

#include "music/fingering.h"

#include <QStringView>

#include <algorithm>

QString FretsText(const Shape& shape) {
    QString text;
    for (int string = stringCount; string >= 1; --string) {
        const int fret = shape.Fret(string);
        if (fret == Shape::muted)
            text += u'x';
        else if (fret < 10)
            text += QString::number(fret);
        else
            text += u'(' + QString::number(fret) + u')';
    }
    return text;
}

QString FingersText(const Shape& shape) {
    QString text;
    for (int string = stringCount; string >= 1; --string)
        text += QString::number(shape.Finger(string));
    return text;
}

std::optional<Shape> ReadShape(QStringView frets) {
    const auto digit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    Shape shape;
    qsizetype place = 0;
    for (int string = stringCount; string >= 1; --string) {
        if (place >= frets.size())
            return std::nullopt;
        int fret = Shape::muted;
        const QChar first = frets[place++];
        if (digit(first)) {
            fret = first.unicode() - u'0';
        } else if (first == u'(') {
            const qsizetype end = frets.indexOf(u')', place);
            if (end != place + 2 || !digit(frets[place]) || !digit(frets[place + 1]))
                return std::nullopt;
            fret = frets.sliced(place, 2).toInt();
            place = end + 1;
        } else if (first != u'x') {
            return std::nullopt;
        }
        shape.frets[static_cast<std::size_t>(string - 1)] = static_cast<std::int8_t>(fret);
    }
    return place == frets.size() ? std::optional(shape) : std::nullopt;
}

ShapeBarre BarreOnStrings(const Barre& barre, bool thinStringAtBottom) {
    const auto [thinnest, thickest] = std::minmax(
        {StringOfRow(0, thinStringAtBottom), StringOfRow(barre.lastRow, thinStringAtBottom)});
    return {.fret = barre.fret, .thinnest = thinnest, .thickest = thickest};
}
