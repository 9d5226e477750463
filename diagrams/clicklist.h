// A list whose rows are only selected by the arrow keys, and clicked by mouse or Enter.
#pragma once

#include "controls/listbox.h"

class ClickList : public ListBox {
    Q_OBJECT

public:
    using ListBox::ListBox;

Q_SIGNALS:
    void Clicked(int row);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    int m_pressedRow = -1;
};
