#include "diagrams/sheetpages.h"

#include "diagrams/linebreaking.h"

#include <array>

namespace {

struct StyleSize {
    int letters;
    double line;
};

// By style, in twips; as wide as paper is, 80 columns fit a line.
constexpr std::array<StyleSize, 8> styleSizes{{
    {400, 540}, // Title.
    {280, 400}, // Subtitle.
    {230, 400}, // Label.
    {220, 320}, // Comment.
    {230, 310}, // Lyrics.
    {210, 270}, // Chord.
    {190, 240}, // Columns.
    {180, 240}, // Page number.
}};
static_assert(styleSizes.size() == static_cast<std::size_t>(TextStyle::PageNumber) + 1);

constexpr double diagramGap = 95; // Seven diagrams stand side by side on A4.
constexpr double rowGap = 160;
constexpr double barDistance = 160;
constexpr double barWidth = 24;

const StyleSize& SizeOf(TextStyle style) {
    return styleSizes[static_cast<std::size_t>(style)];
}

// What no letter stands for would spoil a file that the page is written into.
QString Printable(QString text) {
    for (QChar& c : text)
        if (c.category() == QChar::Other_Control || c.unicode() >= 0xFFFE)
            c = u' ';
    return text;
}

class Layouter {
public:
    explicit Layouter(const PageLook& look)
        : m_look(look),
          m_width(std::max(1.0, look.size.width() - 2 * pageMargin)),
          m_bottom(look.size.height() - pageMargin) {}

    std::vector<SheetPage> LayOut(const SheetDocument& document) {
        for (const SheetBlock& block : document)
            std::visit([this](const auto& content) { Place(content); }, block);
        NumberPages();
        return std::move(m_pages);
    }

private:
    void Place(const DiagramRow& row) {
        const QSizeF size = DiagramLayout::Size(true);
        double x = 0;
        bool begun = false;
        if (m_belowHeading)
            m_y += rowGap;
        m_belowHeading = false;
        for (const SheetDiagram& source : row.diagrams) {
            if (begun && x + size.width() > m_width) {
                m_y += size.height() + rowGap;
                begun = false;
            }
            if (!begun) {
                x = 0;
                MakeRoom(size.height());
                begun = true;
            }
            const Diagram diagram{Printable(source.name), source.shape, m_look.leftHanded};
            // A nameless diagram stands on the same line as the others.
            const QSizeF own = DiagramLayout(diagram).Size();
            m_pages.back().diagrams.push_back(
                {{{pageMargin + x, m_y + size.height() - own.height()}, own},
                 diagram,
                 source.source});
            x += size.width() + diagramGap;
        }
        m_y += size.height() + rowGap;
    }

    void Place(const TextLine& line) {
        const double height = LineHeight(line.style);
        // A heading is not left alone at the foot of a page.
        const double kept = line.style == TextStyle::Label
                                ? LineHeight(TextStyle::Chord) + LineHeight(TextStyle::Lyrics)
                                : 0;
        for (const QString& piece : BreakText(line.text, line.style, m_width, m_look.width)) {
            MakeRoom(height, kept);
            if (!piece.trimmed().isEmpty())
                AddText(0, 0, line.style, piece);
            EndLine(height, line.chorus);
        }
        m_belowHeading = line.style == TextStyle::Title || line.style == TextStyle::Subtitle;
    }

    void Place(const LyricLine& lyrics) {
        m_belowHeading = false;
        const double chords = LineHeight(TextStyle::Chord);
        const double height = chords + LineHeight(TextStyle::Lyrics);
        for (const auto& line : BreakLyrics(lyrics.parts, m_width, m_look.width)) {
            MakeRoom(height);
            for (const LinePiece& piece : line)
                AddText(piece.x, piece.style == TextStyle::Chord ? 0 : chords, piece.style,
                        piece.text);
            EndLine(height, lyrics.chorus);
        }
    }

    void Place(const PageBreak&) {
        if (m_y > pageMargin)
            NextPage();
    }

    void MakeRoom(double height, double kept = 0) {
        if (m_y > pageMargin && m_y + height + kept > m_bottom)
            NextPage();
    }

    void NextPage() {
        m_belowHeading = false;
        m_pages.emplace_back();
        m_y = pageMargin;
    }

    void AddText(double x, double y, TextStyle style, const QString& written) {
        const QString text = Printable(written);
        m_pages.back().texts.push_back(
            {{pageMargin + x, m_y + y, m_look.width(style, text), LineHeight(style)}, style, text});
    }

    void EndLine(double height, bool chorus) {
        if (chorus)
            m_pages.back().chorusBars.emplace_back(pageMargin - barDistance, m_y, barWidth, height);
        m_y += height;
    }

    void NumberPages() {
        const TextStyle style = TextStyle::PageNumber;
        for (std::size_t i = 0; i < m_pages.size(); ++i) {
            const QString number = QString::number(i + 1);
            const double width = m_look.width(style, number);
            m_pages[i].texts.push_back(
                {{(m_look.size.width() - width) / 2,
                  m_look.size.height() - pageMargin / 2 - LineHeight(style) / 2, width,
                  LineHeight(style)},
                 style,
                 number});
        }
    }

    const PageLook& m_look;
    double m_width;
    double m_bottom;
    std::vector<SheetPage> m_pages = std::vector<SheetPage>(1);
    double m_y = pageMargin;
    bool m_belowHeading = false;
};

} // namespace

int LetterSize(TextStyle style) {
    return SizeOf(style).letters;
}

double LineHeight(TextStyle style) {
    return SizeOf(style).line;
}

std::vector<SheetPage> LayOutSheet(const SheetDocument& document, const PageLook& look) {
    return Layouter(look).LayOut(document);
}
