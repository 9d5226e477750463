// A label that tells of presses and of the pointer over it.
#pragma once

#include "controls/textlabel.h"

class HotLabel : public TextLabel {
    Q_OBJECT

public:
    explicit HotLabel(const QString& name, QWidget* parent = nullptr);

Q_SIGNALS:
    // The second press of a double click is a press like any other.
    void MouseDown(Qt::MouseButton button);
    void MouseMove();
    void MouseLeave();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
};
