// What the sheet's text says, block by block: codes, ChordPro, and text that is neither.
#pragma once

#include "diagrams/chordpro.h"

#include <functional>
#include <variant>

struct SheetDiagram {
    QString name;
    Shape shape;
    TextSpan source; // What in the text it stands for: a code, a definition, a chord in brackets.

    bool operator==(const SheetDiagram&) const = default;
};

// A line with codes, or the chords of a song at its head.
struct DiagramRow {
    std::vector<SheetDiagram> diagrams;

    bool operator==(const DiagramRow&) const = default;
};

enum class TextStyle {
    Title,
    Subtitle,
    Label, // Of a section.
    Comment,
    Lyrics,
    Chord,   // Above its syllable.
    Columns, // Text whose letters stand under each other.
    PageNumber,
};

struct TextLine {
    TextStyle style = TextStyle::Columns;
    QString text;
    bool chorus = false; // In a chorus, which is marked at its side.

    bool operator==(const TextLine&) const = default;
};

struct LyricLine {
    std::vector<LyricPart> parts; // Their places are in the whole text.
    bool chorus = false;

    bool operator==(const LyricLine&) const = default;
};

struct PageBreak {
    bool operator==(const PageBreak&) const = default;
};

using SheetBlock = std::variant<DiagramRow, TextLine, LyricLine, PageBreak>;
using SheetDocument = std::vector<SheetBlock>;

// What is asked while a text is read; a question left out has no answer.
struct SheetQuestions {
    // The shape of a chord that the text itself does not define.
    std::function<std::optional<Shape>(const QString& name)> shapeOfName;

    // The shape that was on the neck when this very code was collected.
    std::function<std::optional<Shape>(const QString& code)> collected;

    // Finger numbers for a shape that comes without.
    std::function<Shape(const Shape& shape)> fingered;

    bool thinStringAtBottom = true;
    QString chorus; // What stands where the chorus is only asked for, not written out.
};

// The shape of a code in its line: the one it was collected from, otherwise what it says.
Shape ShapeInLine(const SheetCode& code, QStringView line, const SheetQuestions& questions);

// text: lines ended by LF. A line in braces that is no known directive is left out, as ChordPro
// has it, and so is one that begins with "#"; a definition that makes no sense stays text.
SheetDocument ReadSheetText(const QString& text, const SheetQuestions& questions);
