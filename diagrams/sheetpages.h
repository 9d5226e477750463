// The sheet laid out on pages: where everything stands, in twips of the paper.
#pragma once

#include "diagrams/sheetdocument.h"
#include "pictures/diagramlayout.h"

struct PlacedDiagram {
    QRectF place;
    Diagram diagram;
    TextSpan source;

    bool operator==(const PlacedDiagram&) const = default;
};

struct PlacedText {
    QRectF place; // A line as high as its style has it, as wide as the text.
    TextStyle style = TextStyle::Columns;
    QString text;

    bool operator==(const PlacedText&) const = default;
};

struct SheetPage {
    std::vector<PlacedDiagram> diagrams;
    std::vector<PlacedText> texts;
    std::vector<QRectF> chorusBars;

    bool operator==(const SheetPage&) const = default;
};

struct PageLook {
    QSizeF size; // Of the whole paper.
    bool leftHanded = false;

    // How wide a text is in a style, in twips.
    std::function<double(TextStyle style, const QString& text)> width;
};

constexpr double pageMargin = 1000;

// The size of a style's letters, and how high its lines are.
int LetterSize(TextStyle style);
double LineHeight(TextStyle style);

// At least one page. What is too wide for its line goes on in the next, what is too high for
// its page on the next page; every page has its number at its foot.
std::vector<SheetPage> LayOutSheet(const SheetDocument& document, const PageLook& look);
