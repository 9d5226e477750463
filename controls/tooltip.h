// Tool tips for texts of any length.
#pragma once

#include <QFont>
#include <QPoint>
#include <QSize>
#include <QString>

class QWidget;

// Shows the text as it stands, whatever it looks like, beside a place on the screen; broken into
// lines and cut with an ellipsis where it would leave the screen. An empty text hides the tip.
void ShowToolTip(QPoint place, const QString& text, QWidget* widget);

// What the toolkit is given to show: no larger than room, in pixels.
QString ToolTipMarkup(const QString& text, const QFont& font, QSize room);
