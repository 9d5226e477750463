#include "diagrams/sheetdocument.h"

#include "diagrams/sheetlines.h"

#include <QHash>
#include <QSet>

namespace {

struct Definition {
    Shape shape;
    TextSpan source;
};

// Whether the letters of a line are likely to stand under those of another.
bool HasColumns(QStringView line) {
    return line.contains(u'\t') || line.contains(u"  ") || line.contains(u"---");
}

class Reader {
public:
    explicit Reader(const SheetQuestions& questions) : m_questions(questions) {}

    SheetDocument Read(const QString& text) {
        const std::vector<SheetLine> lines = SheetLines(text);
        for (const SheetLine& line : lines)
            LookAhead(line);
        for (const SheetLine& line : lines)
            ReadLine(line);
        EndSong();
        return std::move(m_document);
    }

private:
    // A song's head shows what is defined anywhere in the text.
    void LookAhead(const SheetLine& line) {
        m_chordPro = m_chordPro || line.directive ||
                     (line.codes.empty() && !line.verbatim && !ReadLyrics(line.text).empty());
        if (line.directive)
            if (const auto definition = DefinitionOf(*line.directive))
                m_defined.insert(definition->name,
                                 {Fingered(definition->shape), {line.start, line.text.size()}});
        for (const SheetCode& code : line.codes)
            if (!m_coded.contains(code.name))
                m_coded.insert(code.name, {ShapeInLine(code, line.text, m_questions), {}});
    }

    void ReadLine(const SheetLine& line) {
        if (line.verbatim)
            Add(TextLine{TextStyle::Columns, line.text.toString(), InChorus()});
        else if (line.directive)
            Obey(*line.directive, line.text, line.start);
        else if (!line.codes.empty())
            AddCodes(line);
        else if (!line.remark)
            AddText(line.text, line.start);
    }

    void Obey(const Directive& directive, QStringView line, qsizetype start) {
        const QString& name = directive.name;
        if (name == u"title")
            AddHeading(TextStyle::Title, directive.value);
        else if (name == u"subtitle")
            AddHeading(TextStyle::Subtitle, directive.value);
        else if (name.startsWith(u"comment"))
            Add(TextLine{TextStyle::Comment, directive.value, InChorus()});
        else if (name == u"define" || name == u"chord")
            ShowDefinition(directive, line, start);
        else if (name.startsWith(u"start_of_"))
            BeginSection(name.sliced(9), directive.value);
        else if (name.startsWith(u"end_of_"))
            m_section.clear();
        else if (name == u"chorus")
            Add(TextLine{TextStyle::Label,
                         directive.value.isEmpty() ? m_questions.chorus : directive.value, true});
        else if (name == u"new_page")
            Add(PageBreak{});
        else if (name == u"new_song")
            BeginSong();
    }

    void ShowDefinition(const Directive& directive, QStringView line, qsizetype start) {
        if (const auto definition = DefinitionOf(directive))
            ShowAtHead(definition->name, {start, line.size()});
        else if (directive.name == u"chord" && !directive.value.contains(u' '))
            ShowAtHead(directive.value, {start, line.size()});
        else
            AddText(line, start);
    }

    void BeginSection(const QString& section, const QString& label) {
        m_section = section;
        if (!label.isEmpty())
            Add(TextLine{TextStyle::Label, label, InChorus()});
    }

    void AddCodes(const SheetLine& line) {
        DiagramRow row;
        for (const SheetCode& code : line.codes)
            row.diagrams.push_back({code.name,
                                    ShapeInLine(code, line.text, m_questions),
                                    {line.start + code.place.start, code.place.length}});
        Add(row);
        const QStringView rest = line.BehindCodes();
        if (!rest.isEmpty())
            AddText(rest, line.start + (rest.data() - line.text.data()));
    }

    void AddText(QStringView line, qsizetype start) {
        LyricLine lyrics{ReadLyrics(line), InChorus()};
        if (lyrics.parts.empty()) {
            const bool columns = !m_chordPro || HasColumns(line);
            Add(TextLine{columns ? TextStyle::Columns : TextStyle::Lyrics, line.toString(),
                         InChorus()});
            return;
        }
        for (LyricPart& part : lyrics.parts) {
            part.chordPlace.start += start;
            if (part.chord.startsWith(u'*')) // A remark in a chord's place.
                part.chord.remove(0, 1);
            else if (!part.chord.isEmpty())
                ShowAtHead(part.chord, part.chordPlace);
        }
        Add(lyrics);
    }

    // The titles that a song begins with stand above its chords.
    void AddHeading(TextStyle style, const QString& text) {
        const bool first = m_document.size() == m_head;
        Add(TextLine{style, text, false});
        if (first)
            m_head = m_document.size();
    }

    void ShowAtHead(const QString& name, TextSpan source) {
        if (m_shown.contains(name))
            return;
        m_shown.insert(name);
        if (const auto defined = m_defined.constFind(name); defined != m_defined.constEnd())
            m_chords.diagrams.push_back({name, defined->shape, defined->source});
        else if (const auto coded = m_coded.constFind(name); coded != m_coded.constEnd())
            m_chords.diagrams.push_back({name, coded->shape, source});
        else if (const auto shape =
                     m_questions.shapeOfName ? m_questions.shapeOfName(name) : std::nullopt)
            m_chords.diagrams.push_back({name, *shape, source});
    }

    void EndSong() {
        if (!m_chords.diagrams.empty())
            m_document.insert(m_document.begin() + static_cast<std::ptrdiff_t>(m_head), m_chords);
        m_chords.diagrams.clear();
        m_shown.clear();
        m_section.clear();
    }

    void BeginSong() {
        EndSong();
        Add(PageBreak{});
        m_head = m_document.size();
    }

    static std::optional<ChordDefinition> DefinitionOf(const Directive& directive) {
        const bool defines = directive.name == u"define" || directive.name == u"chord";
        return defines ? ReadDefinition(directive.value) : std::nullopt;
    }

    Shape Fingered(const Shape& shape) const {
        return m_questions.fingered ? m_questions.fingered(shape) : shape;
    }

    bool InChorus() const { return m_section == u"chorus"; }
    void Add(const SheetBlock& block) { m_document.push_back(block); }

    const SheetQuestions& m_questions;
    QHash<QString, Definition> m_defined; // By directives...
    QHash<QString, Definition> m_coded;   // ...and by codes.
    bool m_chordPro = false;              // Whether there is any ChordPro in the text.

    SheetDocument m_document;
    std::size_t m_head = 0; // Where the song's chords go.
    DiagramRow m_chords;
    QSet<QString> m_shown;
    QString m_section;
};

} // namespace

Shape ShapeInLine(const SheetCode& code, QStringView line, const SheetQuestions& questions) {
    if (questions.collected)
        if (const auto shape =
                questions.collected(line.sliced(code.place.start, code.place.length).toString()))
            return *shape;
    const Shape shape = ShapeOfCode(code, questions.thinStringAtBottom);
    return questions.fingered ? questions.fingered(shape) : shape;
}

SheetDocument ReadSheetText(const QString& text, const SheetQuestions& questions) {
    return Reader(questions).Read(text);
}
