#include "controls/upscrollbar.h"

#include "controls/focusring.h"

#include <QMouseEvent>
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
    m_held.Press();
    QScrollBar::mousePressEvent(event);
}

void UpScrollBar::mouseReleaseEvent(QMouseEvent* event) {
    QScrollBar::mouseReleaseEvent(event);
    m_held.Release();
}

void UpScrollBar::mouseMoveEvent(QMouseEvent* event) {
    m_held.Move(*event);
    QScrollBar::mouseMoveEvent(event);
}

void UpScrollBar::LetGo() {
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(), mapToGlobal(QPointF()),
                        Qt::LeftButton, Qt::NoButton, {});
    QScrollBar::mouseReleaseEvent(&release);
}

// The toolkit's scroll bar looks the same with the focus.
void UpScrollBar::paintEvent(QPaintEvent* event) {
    QScrollBar::paintEvent(event);
    if (!FocusRing::IsShown(this))
        return;
    QPainter painter(this);
    FocusRing::Paint(painter, QRectF(rect()));
}

// The toolkit turns keys and wheel round, but never the arrows.
void UpScrollBar::TurnStep(int action) {
    if (!m_held.IsHeld())
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
