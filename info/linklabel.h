// A label that is pressed like a link, by mouse or keyboard.
#pragma once

#include <QLabel>

class LinkLabel : public QLabel {
    Q_OBJECT

public:
    explicit LinkLabel(const QString& name, QWidget* parent = nullptr);

Q_SIGNALS:
    // The left button pressed and released inside, or Enter or the space bar.
    void Click();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
