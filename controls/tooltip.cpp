#include "controls/tooltip.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QScreen>
#include <QTextLayout>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr qsizetype mostLetters = 6000; // More than a screen shows takes time and is not read.
constexpr double share = 0.6;           // Of the screen, in both directions.
constexpr int widest = 640;

void AddLines(QStringList& lines, const QString& paragraph, const QFont& font, QSize room) {
    const qsizetype most = room.height() / QFontMetrics(font).lineSpacing();
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTextLayout layout(paragraph, font);
    layout.setTextOption(option);
    layout.beginLayout();
    for (;;) {
        QTextLine line = layout.createLine();
        if (line.isValid())
            line.setLineWidth(room.width());
        if (line.isValid() || paragraph.isEmpty())
            lines +=
                line.isValid() ? paragraph.mid(line.textStart(), line.textLength()) : QString();
        if (!line.isValid() || lines.size() > most)
            break;
    }
    layout.endLayout();
}

} // namespace

QString ToolTipMarkup(const QString& text, const QFont& font, QSize room) {
    QString head = text.left(mostLetters);
    head.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    const qsizetype most = std::max(1, room.height() / QFontMetrics(font).lineSpacing());
    QStringList lines;
    for (const QString& paragraph : head.split(u'\n'))
        if (lines.size() <= most)
            AddLines(lines, paragraph, font, room);
    const bool cut = lines.size() > most || text.size() > mostLetters;
    while (lines.size() > most)
        lines.removeLast();
    if (cut)
        lines.last() += QChar(0x2026);
    return QStringLiteral("<p style='white-space:pre'>") + lines.join(u'\n').toHtmlEscaped() +
           QStringLiteral("</p>");
}

void ShowToolTip(QPoint place, const QString& text, QWidget* widget) {
    if (text.isEmpty()) {
        QToolTip::hideText();
        return;
    }
    const QScreen* under = QGuiApplication::screenAt(place);
    const QScreen* screen = under != nullptr ? under : QGuiApplication::primaryScreen();
    QSize room = screen->availableGeometry().size() * share;
    room.setWidth(std::min(room.width(), widest));
    QToolTip::showText(place, ToolTipMarkup(text, QToolTip::font(), room), widget);
}
