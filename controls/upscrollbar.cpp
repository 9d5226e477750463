#include "controls/upscrollbar.h"

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

// The toolkit turns keys and wheel round, but never the arrows.
void UpScrollBar::TurnStep(int action) {
    if (!m_pressed)
        return;
    if (action == SliderSingleStepAdd)
        setSliderPosition(value() - singleStep());
    else if (action == SliderSingleStepSub)
        setSliderPosition(value() + singleStep());
}
