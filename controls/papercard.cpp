#include "controls/papercard.h"

#include "controls/colours.h"
#include "controls/lengths.h"

#include <QPainter>

PaperCard::PaperCard(QWidget* parent) : QWidget(parent) {
    setMouseTracking(true);
    QPalette onPaper;
    onPaper.setColor(QPalette::WindowText, Colours::normalText);
    setPalette(onPaper);
}

void PaperCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Colours::line);
    painter.setBrush(Colours::paper);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Lengths::corner,
                            Lengths::corner);
}
