// A vertical scroll bar whose upper end is its largest value: the upper arrow, the wheel
// turned up and the key Up raise it.
#pragma once

#include <QScrollBar>

class UpScrollBar : public QScrollBar {
public:
    UpScrollBar(const QString& name, int least, int most, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void TurnStep(int action);

    bool m_pressed = false; // The steps that come in are the arrows' and the groove's.
};
