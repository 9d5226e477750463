// A picture laid out in twips that fills its widget at one scale, whatever its size. Its parts
// can be reached by the keyboard and by a screen reader.
#pragma once

#include "controls/heldbutton.h"
#include "controls/picturepart.h"

#include <QPainterPath>
#include <QWidget>

class TwipPicture : public QWidget {
    Q_OBJECT

public:
    // size: the picture's whole area in twips. pageUp: by how many parts Page Up moves.
    TwipPicture(const QString& name, QSizeF size, int pageUp, QWidget* parent = nullptr);

    // Pixels, not rounded, to one twip.
    double Scale() const;

    QPointF ToTwips(QPointF pixels) const;
    QRectF ToPixels(const QRectF& twips) const;

    // parts: asked whenever someone looks. Their number and their places in the order stay.
    void SetParts(std::function<PictureParts()> parts) { m_parts = std::move(parts); }
    PictureParts Parts() const { return m_parts ? m_parts() : PictureParts(); }

    // Tells whoever listens that parts have changed: what they are called, their state, or which
    // of them has the focus.
    void TellParts();

    // The part that the keyboard works on: + and - change its value or go to the next, Page Up
    // and Page Down, Home and End go further, Space does what a click does, the menu key offers
    // all that can be done, Delete does what a right click does.
    int FocusPart() const { return m_focusPart; }
    void MoveFocusTo(int part); // A part that is not there changes nothing.

Q_SIGNALS:
    // Places are in twips. The second press of a double click is a press like any other, and a
    // press whose release another window gets ends all the same.
    void MouseDown(Qt::MouseButton button, QPointF place);
    void MouseMove(QPointF place);
    void MouseUp();
    void MouseLeave();

    // The keyboard came, went, or works on another part.
    void FocusMoved();

    void PartsTold();

protected:
    // What a picture kept for painting must hold to reach the last row of pixels.
    QSize PixelSize() const;

    // The focus part's place, in twips.
    QRectF FocusPlace() const;

    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

    // The ring inside the part's visible area, in twips; nothing where the focus is not shown.
    void PaintFocus(QPainter& painter, const QPainterPath& part) const;

private:
    bool RunKey(int key);
    void Step(const PicturePart& part, int step);
    void GoToEnd(const PictureParts& parts, bool last);
    void ShowMenu(const PictureParts& parts);

    QSizeF m_size;
    int m_pageUp;
    std::function<PictureParts()> m_parts;
    int m_focusPart = 0;
    HeldButton m_held{this, [this] { Q_EMIT MouseUp(); }};
};
