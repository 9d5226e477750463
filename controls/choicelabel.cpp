#include "controls/choicelabel.h"

#include "controls/colours.h"
#include "controls/elided.h"
#include "controls/focusring.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {

const QString separator = QStringLiteral(" · ");
constexpr int ringRoom = 3; // On each side of a text, for the focus ring.

} // namespace

ChoiceLabel::ChoiceLabel(const QString& name, QWidget* parent) : TextLabel(name, parent) {
    setContentsMargins(ringRoom, ringRoom, ringRoom, ringRoom);
}

void ChoiceLabel::Show(const std::vector<Choice>& choices) {
    if (choices == m_choices)
        return;
    const QString focused = static_cast<std::size_t>(m_focused) < m_choices.size()
                                ? m_choices[static_cast<std::size_t>(m_focused)].text
                                : QString();
    m_choices = choices;
    m_hovered.reset();
    unsetCursor();
    const auto same = std::find_if(choices.begin(), choices.end(),
                                   [&](const Choice& choice) { return choice.text == focused; });
    SetFocused(same == choices.end() ? NextFrom(-1, 1).value_or(0)
                                     : static_cast<int>(same - choices.begin()));
    QStringList texts;
    for (const Choice& choice : choices)
        texts += choice.text;
    if (const QString line = texts.join(separator); line != text())
        setText(line);
    setFocusPolicy(NextFrom(-1, 1) ? Qt::StrongFocus : Qt::NoFocus);
    update();
}

QSize ChoiceLabel::sizeHint() const {
    return QSize(1, fontMetrics().height()).grownBy(contentsMargins());
}

QRect ChoiceLabel::RectOf(std::size_t choice) const {
    const QFontMetrics metrics = fontMetrics();
    QRect rect = contentsRect();
    for (std::size_t i = 0; i < choice && i < m_choices.size(); ++i)
        rect.setLeft(std::min(rect.right() + 1,
                              rect.left() +
                                  TextWidth(m_choices[i].text + separator, metrics, rect.width())));
    rect.setWidth(TextWidth(m_choices.at(choice).text, metrics, rect.width()));
    return rect;
}

std::optional<int> ChoiceLabel::ChoiceAt(QPoint place) const {
    for (std::size_t choice = 0; choice < m_choices.size(); ++choice)
        if (m_choices[choice].canBeChosen && RectOf(choice).contains(place))
            return static_cast<int>(choice);
    return std::nullopt;
}

std::optional<int> ChoiceLabel::NextFrom(int choice, int step) const {
    for (int next = choice + step; next >= 0 && next < static_cast<int>(m_choices.size());
         next += step)
        if (m_choices[static_cast<std::size_t>(next)].canBeChosen)
            return next;
    return std::nullopt;
}

void ChoiceLabel::SetHovered(std::optional<int> choice) {
    if (choice == m_hovered)
        return;
    m_hovered = choice;
    if (choice)
        setCursor(Qt::PointingHandCursor);
    else
        unsetCursor();
    update();
}

void ChoiceLabel::SetFocused(int choice) {
    m_focused = choice;
    const auto index = static_cast<std::size_t>(choice);
    const bool canBeChosen = index < m_choices.size() && m_choices[index].canBeChosen;
    setAccessibleDescription(canBeChosen ? m_choices[index].text : QString());
    update();
}

void ChoiceLabel::mousePressEvent(QMouseEvent* event) {
    const auto choice = ChoiceAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && choice)
        Q_EMIT Chosen(*choice);
}

void ChoiceLabel::mouseMoveEvent(QMouseEvent* event) {
    SetHovered(ChoiceAt(event->position().toPoint()));
    TextLabel::mouseMoveEvent(event);
}

void ChoiceLabel::leaveEvent(QEvent* event) {
    SetHovered(std::nullopt);
    TextLabel::leaveEvent(event);
}

void ChoiceLabel::keyPressEvent(QKeyEvent* event) {
    const bool pressed = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                         event->key() == Qt::Key_Space;
    const auto focused = static_cast<std::size_t>(m_focused);
    event->setAccepted(pressed);
    if (pressed && !event->isAutoRepeat() && focused < m_choices.size() &&
        m_choices[focused].canBeChosen)
        Q_EMIT Chosen(m_focused);
}

void ChoiceLabel::focusInEvent(QFocusEvent* event) {
    const int count = static_cast<int>(m_choices.size());
    if (event->reason() == Qt::TabFocusReason)
        SetFocused(NextFrom(-1, 1).value_or(0));
    else if (event->reason() == Qt::BacktabFocusReason)
        SetFocused(NextFrom(count, -1).value_or(0));
    TextLabel::focusInEvent(event);
}

bool ChoiceLabel::focusNextPrevChild(bool next) {
    const auto choice = NextFrom(m_focused, next ? 1 : -1);
    if (!choice || !hasFocus())
        return TextLabel::focusNextPrevChild(next);
    SetFocused(*choice);
    return true;
}

void ChoiceLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (std::size_t choice = 0; choice < m_choices.size(); ++choice)
        PaintChoice(painter, choice);
}

void ChoiceLabel::PaintChoice(QPainter& painter, std::size_t choice) const {
    const auto paint = [&](QRect place, const QString& text, QPalette::ColorRole role) {
        painter.setPen(palette().color(role));
        painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         Elided(text, fontMetrics(), place.width()));
    };
    const auto& [text, canBeChosen] = m_choices[choice];
    const QRect rect = RectOf(choice);
    if (rect.isEmpty())
        return;
    QFont underlined = font();
    underlined.setUnderline(m_hovered == static_cast<int>(choice));
    painter.setFont(underlined);
    paint(rect, text, canBeChosen ? QPalette::Link : QPalette::WindowText);
    painter.setFont(font());
    if (choice + 1 < m_choices.size())
        paint({rect.topRight() + QPoint(1, 0), contentsRect().bottomRight()}, separator,
              QPalette::WindowText);
    if (FocusRing::IsShown(this) && canBeChosen && m_focused == static_cast<int>(choice))
        FocusRing::Paint(painter, QRectF(rect.adjusted(-ringRoom, -ringRoom, ringRoom, ringRoom)));
}
