// A picture laid out in twips that fills its widget at one scale, whatever its size.
#pragma once

#include <QWidget>

class TwipPicture : public QWidget {
    Q_OBJECT

public:
    // size: the picture's whole area in twips.
    TwipPicture(const QString& name, QSizeF size, QWidget* parent = nullptr);

    // Pixels, not rounded, to one twip.
    double Scale() const;

    QPointF ToTwips(QPointF pixels) const;
    QRectF ToPixels(const QRectF& twips) const;

Q_SIGNALS:
    // Places are in twips. The second press of a double click is a press like any other.
    void MouseDown(Qt::MouseButton button, QPointF place);
    void MouseMove(QPointF place);
    void MouseUp();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QSizeF m_size;
};
