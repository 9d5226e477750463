#include "controls/twippicture.h"

#include "controls/application.h"
#include "controls/focusring.h"
#include "controls/handle.h"

#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QtMath>

#include <algorithm>

TwipPicture::TwipPicture(const QString& name, QSizeF size, int pageUp, QWidget* parent)
    : QWidget(parent), m_size(size), m_pageUp(pageUp) {
    setObjectName(name);
    setMouseTracking(true);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

double TwipPicture::Scale() const {
    return width() / m_size.width();
}

QPointF TwipPicture::ToTwips(QPointF pixels) const {
    return pixels / Scale();
}

QRectF TwipPicture::ToPixels(const QRectF& twips) const {
    return {twips.topLeft() * Scale(), twips.size() * Scale()};
}

void TwipPicture::TellParts() {
    if (m_parts)
        Q_EMIT PartsTold();
}

void TwipPicture::MoveFocusTo(int part) {
    if (part < 0 || part >= static_cast<int>(Parts().parts.size()))
        return;
    m_focusPart = part;
    update();
    TellParts();
    Q_EMIT FocusMoved();
}

void TwipPicture::mousePressEvent(QMouseEvent* event) {
    m_held.Press();
    if (event->button() != Qt::RightButton) // That one clears and works on no part.
        setFocus(Qt::MouseFocusReason);
    Q_EMIT MouseDown(event->button(), ToTwips(event->position()));
}

void TwipPicture::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
}

void TwipPicture::mouseMoveEvent(QMouseEvent* event) {
    m_held.Move(*event);
    Q_EMIT MouseMove(ToTwips(event->position()));
}

void TwipPicture::mouseReleaseEvent(QMouseEvent*) {
    m_held.Release();
    Q_EMIT MouseUp();
}

void TwipPicture::leaveEvent(QEvent*) {
    Q_EMIT MouseLeave();
}

void TwipPicture::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    // After the toolkit has told that the picture has the focus.
    QMetaObject::invokeMethod(this, &TwipPicture::TellParts, Qt::QueuedConnection);
    Q_EMIT FocusMoved();
}

void TwipPicture::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    TellParts();
    Q_EMIT FocusMoved();
}

void TwipPicture::keyPressEvent(QKeyEvent* event) {
    bool handled = true;
    Application::Guard([&] { handled = RunKey(event->key()); });
    if (!handled)
        QWidget::keyPressEvent(event);
}

bool TwipPicture::RunKey(int key) {
    const PictureParts parts = Parts();
    if (parts.parts.empty())
        return false;
    const PicturePart& part = parts.parts[static_cast<std::size_t>(m_focusPart)];
    switch (key) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: // The same key without Shift.
        Step(part, 1);
        return true;
    case Qt::Key_Minus:
        Step(part, -1);
        return true;
    case Qt::Key_PageUp:
        MoveFocusTo(m_focusPart + m_pageUp);
        return true;
    case Qt::Key_PageDown:
        MoveFocusTo(m_focusPart - m_pageUp);
        return true;
    case Qt::Key_Home:
    case Qt::Key_End:
        GoToEnd(parts, key == Qt::Key_End);
        return true;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        part.actions.front().run();
        return true;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        parts.actions.front().run();
        return true;
    case Qt::Key_Menu:
        ShowMenu(parts);
        return true;
    default:
        return false;
    }
}

void TwipPicture::Step(const PicturePart& part, int step) {
    if (!part.range)
        MoveFocusTo(m_focusPart + step);
    else if (const int value =
                 std::clamp(part.range->value + step, part.range->lowest, part.range->highest);
             value != part.range->value)
        part.range->set(value);
}

void TwipPicture::GoToEnd(const PictureParts& parts, bool last) {
    const auto& range = parts.parts[static_cast<std::size_t>(m_focusPart)].range;
    if (range)
        range->set(last ? range->highest : range->lowest);
    else
        MoveFocusTo(last ? static_cast<int>(parts.parts.size()) - 1 : 0);
}

void TwipPicture::ShowMenu(const PictureParts& parts) {
    const PicturePart& part = parts.parts[static_cast<std::size_t>(m_focusPart)];
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(QStringLiteral("PartMenu"));
    const auto add = [menu](const std::vector<PartAction>& actions) {
        for (const PartAction& action : actions)
            Handle(menu->addAction(action.name), &QAction::triggered, menu, action.run);
    };
    menu->addSection(part.name);
    add(part.actions);
    menu->addSeparator();
    add(parts.actions);
    // Not waited for: a playback that runs goes on.
    menu->popup(mapToGlobal(ToPixels(part.place).toRect().center()));
}

QSize TwipPicture::PixelSize() const {
    const QSizeF pixels = QSizeF(size()) * devicePixelRatioF();
    return {qCeil(pixels.width()), qCeil(pixels.height())};
}

QRectF TwipPicture::FocusPlace() const {
    const auto parts = Parts().parts;
    const auto index = static_cast<std::size_t>(m_focusPart);
    return index < parts.size() ? parts[index].place : QRectF();
}

void TwipPicture::PaintFocus(QPainter& painter, const QPainterPath& part) const {
    if (FocusRing::IsShown(this))
        FocusRing::Paint(painter, QTransform::fromScale(Scale(), Scale()).map(part));
}
