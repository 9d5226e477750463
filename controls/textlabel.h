// A label for a text that may come from a file: shown as it stands, never as mark-up, on one
// line. Where it is too long its painting is cut, and its end is read in a tool tip; `text`
// and `toolTip` stay whole. A window grows with the text only so far.
#pragma once

#include <QLabel>

class TextLabel : public QLabel {
    Q_OBJECT

public:
    explicit TextLabel(const QString& name, QWidget* parent = nullptr);

    // Whether less than the whole text is painted.
    bool IsCut() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QSize SizeOf(int letters) const;
    QRect TextRect() const;
};
