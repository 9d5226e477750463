#include "controls/upscrollbar.h"

#include "controls/colours.h"

#include <QPainter>

UpScrollBar::UpScrollBar(const QString& name, int least, int most, QWidget* parent)
    : QScrollBar(Qt::Vertical, parent) {
    setObjectName(name);
    setRange(least, most);
    setPageStep(1);
    setInvertedAppearance(true);
    setInvertedControls(false);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QScrollBar::actionTriggered, this, &UpScrollBar::TurnStep);
}

void UpScrollBar::mousePressEvent(QMouseEvent* event) {
    m_pressed = true;
    QScrollBar::mousePressEvent(event);
}

void UpScrollBar::mouseReleaseEvent(QMouseEvent* event) {
    QScrollBar::mouseReleaseEvent(event);
    m_pressed = false;
}

// The toolkit's scroll bar looks the same with the focus.
void UpScrollBar::paintEvent(QPaintEvent* event) {
    QScrollBar::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setPen(QPen(Colours::focus, 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

// The toolkit turns keys and wheel round, but never the arrows.
void UpScrollBar::TurnStep(int action) {
    if (!m_pressed)
        return;
    if (action == SliderSingleStepAdd)
        setSliderPosition(value() - singleStep());
    else if (action == SliderSingleStepSub)
        setSliderPosition(value() + singleStep());
    else if (action == SliderPageStepAdd)
        setSliderPosition(value() - pageStep());
    else if (action == SliderPageStepSub)
        setSliderPosition(value() + pageStep());
}
