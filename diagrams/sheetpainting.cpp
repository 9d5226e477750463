#include "diagrams/sheetpainting.h"

#include "controls/fixedfont.h"
#include "pictures/diagrampainting.h"

#include <QFontMetricsF>
#include <QHash>
#include <QPainter>

namespace {

constexpr qsizetype mostRemembered = 20'000;

using StyledText = std::pair<int, QString>;

} // namespace

QFont FontOf(TextStyle style) {
    QFont font = style == TextStyle::Columns ? FixedFont() : QFont();
    font.setPixelSize(LetterSize(style));
    font.setBold(style == TextStyle::Title || style == TextStyle::Label ||
                 style == TextStyle::Chord);
    font.setItalic(style == TextStyle::Comment);
    // The same letters at every scale, so that a line is as long on screen as on paper.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

double FontWidths::operator()(TextStyle style, const QString& text) const {
    static QHash<StyledText, double> widths;
    const StyledText key(static_cast<int>(style), text);
    const auto known = widths.constFind(key);
    if (known != widths.constEnd())
        return *known;
    if (widths.size() >= mostRemembered)
        widths.clear();
    const double width = QFontMetricsF(FontOf(style)).horizontalAdvance(text);
    widths.insert(key, width);
    return width;
}

void PaintPage(QPainter& painter, const SheetPage& page) {
    painter.save();
    for (const PlacedDiagram& diagram : page.diagrams)
        PaintDiagram(painter, diagram.place, diagram.diagram, PaperDiagramColours());
    for (const QRectF& bar : page.chorusBars)
        painter.fillRect(bar, Qt::black);
    painter.setPen(Qt::black);
    for (const PlacedText& text : page.texts) {
        painter.setFont(FontOf(text.style));
        // The room to the right is for what a device rounds up.
        painter.drawText(text.place.adjusted(0, 0, LetterSize(text.style), 0),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text.text);
    }
    painter.restore();
}
