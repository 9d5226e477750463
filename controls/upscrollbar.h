// A vertical scroll bar whose upper end is its largest value: the upper arrow, the wheel
// turned up and the key Up raise it.
#pragma once

#include "controls/heldbutton.h"

#include <QScrollBar>

class UpScrollBar : public QScrollBar {
public:
    UpScrollBar(const QString& name, int least, int most, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void TurnStep(int action);
    void LetGo();

    // While it is, the steps that come in are the arrows' and the groove's.
    HeldButton m_held{this, [this] { LetGo(); }};
};
