#include "controls/upscrollbar.h"

#include "controls/colours.h"
#include "controls/faces.h"
#include "controls/focusring.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionSlider>

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

// Two arrows on a face: it is used as a spin bar, and too low for a slider that says anything.
void UpScrollBar::paintEvent(QPaintEvent*) {
    QStyleOptionSlider option;
    initStyleOption(&option);
    QPainter painter(this);
    PaintFace(painter, QRectF(rect()), Colours::buttonFace,
              isEnabled() ? Colours::edge.Now() : Colours::line.Now());
    for (const bool up : {true, false}) {
        const auto part = up ? QStyle::SC_ScrollBarSubLine : QStyle::SC_ScrollBarAddLine;
        const QRectF arrow(style()->subControlRect(QStyle::CC_ScrollBar, &option, part, this));
        const bool pressed =
            option.activeSubControls == part && option.state.testFlag(QStyle::State_Sunken);
        if (pressed)
            PaintFace(painter, arrow, Colours::checked, Colours::edge.Now());
        PaintArrow(painter, arrow, up, isEnabled());
    }
    if (FocusRing::IsShown(this))
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
