// The program's own push button: it changes caption colour, edge and picture while it is
// hovered, pressed or disabled, and can draw itself from a skin picture.
#pragma once

#include "controls/edge.h"
#include "controls/olecolor.h"

#include <QAbstractButton>
#include <QIcon>
#include <QPixmap>

class QMimeData;

class GoldButton : public QAbstractButton {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)
    Q_PROPERTY(int Alignment READ Alignment WRITE SetAlignment)
    Q_PROPERTY(OleColor HoverColor READ HoverColor WRITE SetHoverColor)
    Q_PROPERTY(OleColor ForeColor READ ForeColor WRITE SetForeColor)
    Q_PROPERTY(OleColor DownColor READ DownColor WRITE SetDownColor)
    Q_PROPERTY(OleColor SkinDisabledText READ SkinDisabledText WRITE SetSkinDisabledText)
    Q_PROPERTY(OleColor SkinHighlight READ SkinHighlight WRITE SetSkinHighlight)
    Q_PROPERTY(OleColor PictureBackColor READ PictureBackColor WRITE SetPictureBackColor)
    Q_PROPERTY(int OnUp READ OnUp WRITE SetOnUp)
    Q_PROPERTY(int OnDown READ OnDown WRITE SetOnDown)
    Q_PROPERTY(int OnHover READ OnHover WRITE SetOnHover)
    Q_PROPERTY(ButtonStyle Style READ Style WRITE SetStyle)
    Q_PROPERTY(OleColor MaskColor READ MaskColor WRITE SetMaskColor)
    Q_PROPERTY(bool UseMaskColor READ UseMaskColor WRITE SetUseMaskColor)
    Q_PROPERTY(QPixmap SkinPicture READ SkinPicture WRITE SetSkinPicture)
    Q_PROPERTY(QIcon Picture READ Picture WRITE SetPicture)
    Q_PROPERTY(QIcon PictureHover READ PictureHover WRITE SetPictureHover)
    Q_PROPERTY(QIcon PictureDown READ PictureDown WRITE SetPictureDown)
    Q_PROPERTY(QIcon PictureDisabled READ PictureDisabled WRITE SetPictureDisabled)
    Q_PROPERTY(QFont Font READ font WRITE setFont)

public:
    enum ButtonStyle : int { bsNormal = 0, bsSkin = 1 };
    Q_ENUM(ButtonStyle)

    // The order of the parts in a skin picture, each skinStep pixels wide and high, from the
    // left: a border 2 pixels thick around a middle that is not drawn.
    enum class State { Normal, Hover, Down, Disabled };
    static constexpr int skinStep = 23;

    explicit GoldButton(const QString& name = {}, QWidget* parent = nullptr);

    // The object's name until a caption is set.
    QString Caption() const;
    void SetCaption(const QString& caption);

    // 0 left, 1 right, 2 centre; a run-time error for anything else.
    int Alignment() const { return m_alignment; }
    void SetAlignment(int alignment);

    // bsNormal or bsSkin; a run-time error for anything else.
    ButtonStyle Style() const { return m_style; }
    void SetStyle(ButtonStyle style);

    // Caption colours by state; in a skinned button that is disabled the text has a highlight.
    OleColor HoverColor() const { return m_hoverColor; }
    void SetHoverColor(OleColor value) { Change(m_hoverColor, value); }
    OleColor ForeColor() const { return m_foreColor; }
    void SetForeColor(OleColor value) { Change(m_foreColor, value); }
    OleColor DownColor() const { return m_downColor; }
    void SetDownColor(OleColor value) { Change(m_downColor, value); }
    OleColor SkinDisabledText() const { return m_skinDisabledText; }
    void SetSkinDisabledText(OleColor value) { Change(m_skinDisabledText, value); }
    OleColor SkinHighlight() const { return m_skinHighlight; }
    void SetSkinHighlight(OleColor value) { Change(m_skinHighlight, value); }

    // Edges by state: flags of the two rings.
    int OnUp() const { return m_onUp; }
    void SetOnUp(int value) { Change(m_onUp, value); }
    int OnDown() const { return m_onDown; }
    void SetOnDown(int value) { Change(m_onDown, value); }
    int OnHover() const { return m_onHover; }
    void SetOnHover(int value) { Change(m_onHover, value); }

    // With a mask, every pixel of a picture in MaskColor is shown in PictureBackColor.
    OleColor MaskColor() const { return m_maskColor; }
    void SetMaskColor(OleColor value) { Change(m_maskColor, value); }
    bool UseMaskColor() const { return m_useMaskColor; }
    void SetUseMaskColor(bool value) { Change(m_useMaskColor, value); }
    OleColor PictureBackColor() const { return m_pictureBackColor; }
    void SetPictureBackColor(OleColor value) { Change(m_pictureBackColor, value); }

    // Pictures by state; where one is missing, Picture stands in, faded on a disabled button.
    // An icon made by painting stays sharp at every scale.
    const QIcon& Picture() const { return m_picture; }
    void SetPicture(const QIcon& value) { Change(m_picture, value); }
    const QIcon& PictureHover() const { return m_pictureHover; }
    void SetPictureHover(const QIcon& value) { Change(m_pictureHover, value); }
    const QIcon& PictureDown() const { return m_pictureDown; }
    void SetPictureDown(const QIcon& value) { Change(m_pictureDown, value); }
    const QIcon& PictureDisabled() const { return m_pictureDisabled; }
    void SetPictureDisabled(const QIcon& value) { Change(m_pictureDisabled, value); }
    const QPixmap& SkinPicture() const { return m_skinPicture; }
    void SetSkinPicture(const QPixmap& value) { Change(m_skinPicture, value); }

    State CurrentState() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    // Once for each press that ends inside, by mouse, keyboard or a screen reader.
    void Click();
    void MouseEnter();
    void MouseExit();
    // Button: 1 left, 2 right, 4 middle. Shift: 1 Shift, 2 Ctrl, 4 Alt. X and Y in pixels.
    void MouseDown(int Button, int Shift, double X, double Y);
    void MouseMove(int Button, int Shift, double X, double Y);
    void MouseUp(int Button, int Shift, double X, double Y);
    // Drag and drop over the button, passed on.
    void OLECompleteDrag(int Effect);
    void OLEDragDrop(const QMimeData* Data, int Shift, double X, double Y);
    void OLEDragOver(const QMimeData* Data, int Shift, double X, double Y);
    void OLEGiveFeedback(int Effect);
    void OLESetData(const QMimeData* Data);
    void OLEStartDrag();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    template <typename Value>
    void Change(Value& member, const Value& value) {
        member = value;
        updateGeometry();
        update();
    }

    void StartHovering();
    void StopHovering();
    void LosePress();
    const QIcon& PictureOf(State state) const;
    QSize PictureSize() const;

    bool m_hovering = false;
    bool m_pressed = false; // With the left button, which is still down.
    bool m_lost = false;    // That press ended with the focus.
    bool m_captionSet = false;
    int m_alignment = 2;
    OleColor m_hoverColor = OleColor::Rgb(0, 0, 255);
    OleColor m_foreColor = OleColor::System(18);
    OleColor m_downColor = OleColor::Rgb(0, 0, 255);
    OleColor m_skinDisabledText = OleColor::System(16);
    OleColor m_skinHighlight = OleColor::System(20);
    OleColor m_pictureBackColor = OleColor::System(15);
    int m_onUp = Edge::raisedInner;
    int m_onDown = Edge::sunken;
    int m_onHover = Edge::raised;
    ButtonStyle m_style = bsNormal;
    OleColor m_maskColor = OleColor::System(15);
    bool m_useMaskColor = false;
    QPixmap m_skinPicture;
    QIcon m_picture;
    QIcon m_pictureHover;
    QIcon m_pictureDown;
    QIcon m_pictureDisabled;
};
