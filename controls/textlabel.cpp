#include "controls/textlabel.h"

#include "controls/elided.h"
#include "controls/tooltip.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>

namespace {

// How far a text widens its window where there is room, and where there is none.
constexpr int preferredLetters = 60;
constexpr int leastLetters = 26;

} // namespace

TextLabel::TextLabel(const QString& name, QWidget* parent) : QLabel(parent) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setMouseTracking(true);
}

bool TextLabel::IsCut() const {
    return Elided(text(), fontMetrics(), TextRect().width()).size() < text().size();
}

QSize TextLabel::sizeHint() const {
    return SizeOf(preferredLetters);
}

QSize TextLabel::minimumSizeHint() const {
    return SizeOf(leastLetters);
}

QSize TextLabel::SizeOf(int letters) const {
    const QFontMetrics metrics = fontMetrics();
    const int width = TextWidth(text(), metrics, letters * metrics.averageCharWidth());
    const QMargins around = contentsMargins() + margin();
    return QSize(width, metrics.height()).grownBy(around);
}

QRect TextLabel::TextRect() const {
    return contentsRect().marginsRemoved(QMargins() + margin());
}

bool TextLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    const QString& tip = toolTip().isEmpty() && IsCut() ? text() : toolTip();
    ShowToolTip(static_cast<QHelpEvent*>(event)->globalPos(), tip, this);
    return true;
}

void TextLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawFrame(&painter);
    if (text().isEmpty()) // No font is loaded for nothing.
        return;
    const QRect rect = TextRect();
    style()->drawItemText(&painter, rect,
                          static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment())),
                          palette(), isEnabled(),
                          Elided(text().trimmed(), fontMetrics(), rect.width()), foregroundRole());
}
