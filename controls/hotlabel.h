// A label that tells of presses and of the pointer over it.
#pragma once

#include <QLabel>

class HotLabel : public QLabel {
    Q_OBJECT

public:
    explicit HotLabel(const QString& name, QWidget* parent = nullptr);

Q_SIGNALS:
    // The second press of a double click is a press like any other.
    void MouseDown(Qt::MouseButton button);
    void MouseMove();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
};
