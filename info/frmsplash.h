// The splash: shown while the catalogues load, with a bar that advances in five steps.
#pragma once

#include <QWidget>

class QLabel;

class frmSplash : public QWidget {
public:
    static constexpr int steps = 5;

    // author, address: left out where they are empty.
    explicit frmSplash(const QString& author = {}, const QString& address = {});

    // Widens the bar by a fifth of its frame's width.
    void ProgressStep();

    // The widths of the bar and its frame, in pixels that are not rounded.
    float BarWidth() const { return m_barWidth; }
    float FrameWidth() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    float m_barWidth = 0;
};
