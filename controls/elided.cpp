#include "controls/elided.h"

#include <QtMath>

#include <algorithm>

namespace {

constexpr QChar ellipsis(0x2026);

// The beginning of the text, on one line. A letter is wider than half a pixel, but for marks
// over and under others.
QString Head(const QString& text, int width) {
    QString head = text.left(2 * std::max(width, 0) + 16);
    for (QChar& letter : head)
        if (letter < u' ' || letter == QChar::LineSeparator || letter == QChar::ParagraphSeparator)
            letter = u' ';
    return head;
}

double Width(const QString& text, const QFontMetrics& metrics, int flags) {
    return QFontMetricsF(metrics).size(flags | Qt::TextSingleLine, text).width();
}

} // namespace

QString Elided(const QString& text, const QFontMetrics& metrics, int width, int flags) {
    QString head = Head(text, width);
    if (head.size() < text.size())
        head += ellipsis;
    // The toolkit rounds the widths that it gives its controls.
    else if (Width(head, metrics, flags) < width + 1)
        return head;
    return metrics.elidedText(head, Qt::ElideRight, width, flags);
}

int TextWidth(const QString& text, const QFontMetrics& metrics, int most, int flags) {
    return std::min(qCeil(Width(Head(text, most), metrics, flags)), most);
}
