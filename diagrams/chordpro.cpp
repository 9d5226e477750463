#include "diagrams/chordpro.h"

#include "pictures/diagramlayout.h"

#include <QList>

#include <algorithm>

namespace {

constexpr int highestFret = 36; // Of a definition; no code reaches further.

struct ShortForm {
    QStringView shortName;
    QStringView name;
};

constexpr std::array<ShortForm, 19> shortForms{{
    {u"t", u"title"},
    {u"st", u"subtitle"},
    {u"c", u"comment"},
    {u"ci", u"comment_italic"},
    {u"cb", u"comment_box"},
    {u"highlight", u"comment"},
    {u"soc", u"start_of_chorus"},
    {u"eoc", u"end_of_chorus"},
    {u"sov", u"start_of_verse"},
    {u"eov", u"end_of_verse"},
    {u"sob", u"start_of_bridge"},
    {u"eob", u"end_of_bridge"},
    {u"sot", u"start_of_tab"},
    {u"eot", u"end_of_tab"},
    {u"sog", u"start_of_grid"},
    {u"eog", u"end_of_grid"},
    {u"ns", u"new_song"},
    {u"np", u"new_page"},
    {u"npp", u"new_page"},
}};

QString LongForm(const QString& name) {
    for (const ShortForm& form : shortForms)
        if (name == form.shortName)
            return form.name.toString();
    return name;
}

QList<QStringView> Words(QStringView text) {
    QList<QStringView> words;
    for (const QStringView word : text.split(u' ', Qt::SkipEmptyParts))
        words += word.split(u'\t', Qt::SkipEmptyParts);
    return words;
}

std::optional<int> NumberIn(QStringView word, int lowest, int highest) {
    bool valid = false;
    const int number = word.toInt(&valid);
    return valid && number >= lowest && number <= highest ? std::optional(number) : std::nullopt;
}

// The fret that a word of the list "frets" stands for.
std::optional<int> FretOf(QStringView word, int baseFret) {
    if (word.compare(u"x", Qt::CaseInsensitive) == 0 || word == u"N" || word == u"-1")
        return Shape::muted;
    const auto fret = NumberIn(word, 0, highestFret - baseFret + 1);
    return fret && *fret > 0 ? std::optional(*fret + baseFret - 1) : fret;
}

// 0 for anything that is no finger: it is only missing then.
int FingerOf(QStringView word) {
    return NumberIn(word, 0, 4).value_or(0);
}

// A finger on several strings of one fret.
void FindBarres(Shape& shape) {
    for (int finger = 1; finger <= 4; ++finger) {
        std::optional<ShapeBarre> barre;
        for (int string = 1; string <= stringCount; ++string) {
            if (shape.Finger(string) != finger)
                continue;
            if (!barre)
                barre = ShapeBarre{shape.Fret(string), string, string, finger};
            else if (barre->fret == shape.Fret(string))
                barre->thickest = string;
        }
        if (barre && barre->thickest > barre->thinnest)
            shape.barres.push_back(*barre);
    }
}

// Whatever would end the name, or the directive.
QString WritableName(const QString& name) {
    QString written;
    for (const QChar c : name)
        if (c != u'{' && c != u'}')
            written += c.isSpace() ? QChar(u'_') : c;
    return written;
}

} // namespace

std::optional<Directive> ReadDirective(QStringView line) {
    const QStringView whole = line.trimmed();
    if (whole.size() < 2 || !whole.startsWith(u'{') || !whole.endsWith(u'}'))
        return std::nullopt;
    const QStringView inside = whole.sliced(1, whole.size() - 2).trimmed();
    const auto* const nameEnd = std::find_if(inside.begin(), inside.end(),
                                             [](QChar c) { return c == u':' || c.isSpace(); });
    const QStringView name = inside.first(nameEnd - inside.begin());
    if (name.isEmpty() || inside.contains(u'{') || inside.contains(u'}'))
        return std::nullopt;
    QStringView value = inside.sliced(name.size()).trimmed();
    if (value.startsWith(u':'))
        value = value.sliced(1).trimmed();
    return Directive{LongForm(name.toString().toLower()), value.toString()};
}

std::optional<ChordDefinition> ReadDefinition(QStringView value) {
    const QList<QStringView> words = Words(value);
    if (words.isEmpty())
        return std::nullopt;
    ChordDefinition definition{words[0].toString(), {}};
    int baseFret = 1;
    qsizetype at = 1;
    if (words.value(at) == u"base-fret") {
        const auto number = NumberIn(words.value(at + 1), 1, highestFret);
        if (!number)
            return std::nullopt;
        baseFret = *number;
        at += 2;
    }
    if (words.value(at) != u"frets" || words.size() < at + 1 + stringCount)
        return std::nullopt;
    ++at;
    Shape& shape = definition.shape;
    for (std::size_t string = stringCount; string-- > 0; ++at) {
        const auto fret = FretOf(words[at], baseFret);
        if (!fret)
            return std::nullopt;
        shape.frets[string] = static_cast<std::int8_t>(*fret);
    }
    if (at == words.size())
        return definition;
    if (words[at] != u"fingers" || words.size() != at + 1 + stringCount)
        return std::nullopt;
    ++at;
    for (std::size_t string = stringCount; string-- > 0; ++at)
        if (shape.frets[string] > 0)
            shape.fingers[string] = static_cast<std::int8_t>(FingerOf(words[at]));
    FindBarres(shape);
    return definition;
}

QString WriteDefinition(const ChordDefinition& definition) {
    const Shape& shape = definition.shape;
    const int baseFret = DiagramLayout({{}, shape}).FirstFret();
    QString name = WritableName(definition.name);
    if (name.isEmpty())
        name = FretsText(shape);
    QString line = QStringLiteral("{define: ") + name + QStringLiteral(" base-fret ") +
                   QString::number(baseFret) + QStringLiteral(" frets");
    for (int string = stringCount; string >= 1; --string) {
        const int fret = shape.Fret(string);
        if (fret == Shape::muted)
            line += QStringLiteral(" x");
        else
            line += u' ' + QString::number(fret == 0 ? 0 : fret - baseFret + 1);
    }
    line += QStringLiteral(" fingers");
    for (int string = stringCount; string >= 1; --string)
        line += u' ' + QString::number(shape.Finger(string));
    return line + u'}';
}

std::vector<LyricPart> ReadLyrics(QStringView line) {
    std::vector<LyricPart> parts;
    qsizetype textStart = 0;
    qsizetype open = line.indexOf(u'[');
    while (open >= 0) {
        const qsizetype close = line.indexOf(u']', open);
        if (close < 0)
            break;
        const QStringView chord = line.sliced(open + 1, close - open - 1).trimmed();
        if (!chord.isEmpty() && !chord.contains(u'[')) {
            const QString before = line.sliced(textStart, open - textStart).toString();
            if (parts.empty() && !before.isEmpty())
                parts.push_back({{}, {}, before});
            else if (!parts.empty())
                parts.back().text = before;
            parts.push_back({chord.toString(), {open, close + 1 - open}, {}});
            textStart = close + 1;
            open = close;
        }
        open = line.indexOf(u'[', open + 1);
    }
    if (!parts.empty())
        parts.back().text = line.sliced(textStart).toString();
    return parts;
}
