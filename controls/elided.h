// Texts of any length on one line: measured and cut without looking at more of them than a
// screen can show.
#pragma once

#include <QFontMetrics>
#include <QString>

// The text on one line; where that is wider than width, in pixels, cut at its end with an
// ellipsis. flags: Qt::TextShowMnemonic where an ampersand marks a letter.
QString Elided(const QString& text, const QFontMetrics& metrics, int width, int flags = 0);

// How wide the text is on one line, in pixels, but at most `most`.
int TextWidth(const QString& text, const QFontMetrics& metrics, int most, int flags = 0);
