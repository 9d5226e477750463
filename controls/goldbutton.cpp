#include "controls/goldbutton.h"

#include "controls/colours.h"
#include "controls/focusring.h"
#include "controls/goldbuttonpainting.h"
#include "core/runtimeerror.h"

#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

static_assert(GoldButton::skinStep == skinPartSize);

namespace {

int ButtonNumber(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton:
        return 1;
    case Qt::RightButton:
        return 2;
    case Qt::MiddleButton:
        return 4;
    default:
        return 0;
    }
}

int ButtonMask(Qt::MouseButtons buttons) {
    int mask = 0;
    for (const auto button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
        if (buttons.testFlag(button))
            mask |= ButtonNumber(button);
    return mask;
}

int ShiftMask(Qt::KeyboardModifiers modifiers) {
    return (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) |
           (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) |
           (modifiers.testFlag(Qt::AltModifier) ? 4 : 0);
}

} // namespace

GoldButton::GoldButton(const QString& name, QWidget* parent) : QAbstractButton(parent) {
    RegisterOleColor();
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    connect(this, &QAbstractButton::clicked, this, &GoldButton::Click);
}

QString GoldButton::Caption() const {
    return m_captionSet || !text().isEmpty() ? text() : objectName();
}

void GoldButton::SetCaption(const QString& caption) {
    m_captionSet = true;
    setText(caption);
    updateGeometry();
}

void GoldButton::SetAlignment(int alignment) {
    CheckIndex(alignment, 0, 2,
               {QStringLiteral("выравнивание кнопки %1").arg(objectName()),
                QStringLiteral("the alignment of the button %1").arg(objectName())});
    Change(m_alignment, alignment);
}

void GoldButton::SetStyle(ButtonStyle style) {
    CheckIndex(style, bsNormal, bsSkin,
               {QStringLiteral("вид кнопки %1").arg(objectName()),
                QStringLiteral("the style of the button %1").arg(objectName())});
    Change(m_style, style);
}

GoldButton::State GoldButton::CurrentState() const {
    if (!isEnabled())
        return State::Disabled;
    if (isDown())
        return State::Down;
    return m_hovering && !m_pressed ? State::Hover : State::Normal;
}

const QIcon& GoldButton::PictureOf(State state) const {
    const QIcon& own = state == State::Hover      ? m_pictureHover
                       : state == State::Down     ? m_pictureDown
                       : state == State::Disabled ? m_pictureDisabled
                                                  : m_picture;
    return own.isNull() ? m_picture : own;
}

QSize GoldButton::PictureSize() const {
    if (m_picture.isNull())
        return {};
    const int side = fontMetrics().height() * 3 / 2;
    return {side, side};
}

QSize GoldButton::sizeHint() const {
    return GoldButtonSize(Caption(), PictureSize(), fontMetrics());
}

void GoldButton::paintEvent(QPaintEvent*) {
    const State state = CurrentState();
    GoldButtonLook look;
    look.rect = rect();
    look.palette = palette();
    look.part = static_cast<int>(state);
    look.edge = state == State::Down ? m_onDown : state == State::Hover ? m_onHover : m_onUp;
    if (isChecked()) {
        look.edge = m_onDown;
        look.palette.setColor(QPalette::Button, Colours::checked.Now());
    }
    const bool pointed = state == State::Hover || state == State::Down;
    if (pointed && PictureOf(state).isNull())
        look.palette.setColor(QPalette::Button, Colours::pointedFace.Now());
    look.caption = Caption();
    look.alignment = m_alignment;
    look.skinned = m_style == bsSkin;
    look.skin = m_skinPicture;
    look.picture = PictureOf(state);
    look.pictureSize = PictureSize();
    look.faded = state == State::Disabled && m_pictureDisabled.isNull();
    look.focused = FocusRing::IsShown(this);
    look.captionColour = m_foreColor.In(look.palette);
    if (state == State::Hover)
        look.captionColour = m_hoverColor.In(look.palette);
    else if (state == State::Down)
        look.captionColour = m_downColor.In(look.palette);
    else if (state == State::Disabled && look.skinned)
        look.captionColour = m_skinDisabledText.In(look.palette);
    else if (state == State::Disabled)
        look.captionColour = look.palette.color(QPalette::Disabled, QPalette::ButtonText);
    if (state == State::Disabled && look.skinned)
        look.captionHighlight = m_skinHighlight.In(look.palette);
    if (m_useMaskColor)
        look.mask = {m_maskColor.In(look.palette), m_pictureBackColor.In(look.palette)};
    QPainter painter(this);
    PaintGoldButton(painter, look);
}

void GoldButton::StartHovering() {
    if (m_hovering || !isEnabled())
        return;
    m_hovering = true;
    update();
    Q_EMIT MouseEnter();
}

void GoldButton::StopHovering() {
    if (!m_hovering)
        return;
    m_hovering = false;
    update();
    Q_EMIT MouseExit();
}

void GoldButton::LosePress() {
    m_lost = m_pressed;
    m_pressed = false;
    setDown(false);
}

void GoldButton::mousePressEvent(QMouseEvent* event) {
    Q_EMIT MouseDown(ButtonNumber(event->button()), ShiftMask(event->modifiers()),
                     event->position().x(), event->position().y());
    if (event->button() == Qt::LeftButton) {
        m_pressed = true;
        m_lost = false;
    }
    QAbstractButton::mousePressEvent(event);
    event->accept();
}

void GoldButton::mouseMoveEvent(QMouseEvent* event) {
    const QPointF place = event->position();
    if (!event->buttons().testFlag(Qt::LeftButton)) {
        const bool outside =
            place.x() < 0 || place.x() > width() || place.y() < 0 || place.y() > height();
        if (outside)
            StopHovering();
        else
            StartHovering();
    }
    if (m_lost)
        event->ignore(); // The toolkit would take the press up again.
    else
        QAbstractButton::mouseMoveEvent(event);
    Q_EMIT MouseMove(ButtonMask(event->buttons()), ShiftMask(event->modifiers()), place.x(),
                     place.y());
}

void GoldButton::mouseReleaseEvent(QMouseEvent* event) {
    const QPointF place = event->position();
    if (event->button() == Qt::LeftButton) {
        m_pressed = m_lost = false;
        if (!hitButton(place.toPoint()))
            StopHovering();
    }
    QAbstractButton::mouseReleaseEvent(event);
    event->accept();
    Q_EMIT MouseUp(ButtonNumber(event->button()), ShiftMask(event->modifiers()), place.x(),
                   place.y());
}

void GoldButton::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    StopHovering();
}

void GoldButton::focusOutEvent(QFocusEvent* event) {
    m_hovering = false;
    LosePress();
    QAbstractButton::focusOutEvent(event);
    update();
}

void GoldButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        QAbstractButton::keyPressEvent(event);
    else if (!event->isAutoRepeat()) // Held down, it is one press.
        click();
}

void GoldButton::changeEvent(QEvent* event) {
    if (event->type() == QEvent::EnabledChange && !isEnabled()) {
        StopHovering();
        LosePress();
    }
    QAbstractButton::changeEvent(event);
}

void GoldButton::hideEvent(QHideEvent* event) {
    StopHovering();
    QAbstractButton::hideEvent(event);
}

void GoldButton::dragEnterEvent(QDragEnterEvent* event) {
    dragMoveEvent(event);
}

void GoldButton::dragMoveEvent(QDragMoveEvent* event) {
    event->acceptProposedAction();
    Q_EMIT OLEDragOver(event->mimeData(), ShiftMask(event->modifiers()), event->position().x(),
                       event->position().y());
}

void GoldButton::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    Q_EMIT OLEDragDrop(event->mimeData(), ShiftMask(event->modifiers()), event->position().x(),
                       event->position().y());
}
