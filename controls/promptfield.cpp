#include "controls/promptfield.h"

#include <QMouseEvent>

PromptField::PromptField(const QString& name, QWidget* parent) : QLineEdit(parent) {
    setObjectName(name);
}

void PromptField::SetPrompt(const QString& prompt) {
    m_prompt = prompt;
    setText(prompt);
}

void PromptField::AskAgain() {
    setFocus(Qt::ActiveWindowFocusReason); // The ring shows or not, as before.
    selectAll();
}

void PromptField::mousePressEvent(QMouseEvent* event) {
    m_selecting = event->button() == Qt::LeftButton && text() == m_prompt;
    if (m_selecting)
        selectAll();
    else
        QLineEdit::mousePressEvent(event);
}

void PromptField::mouseMoveEvent(QMouseEvent* event) {
    if (!m_selecting) // The hand may tremble.
        QLineEdit::mouseMoveEvent(event);
}

void PromptField::mouseReleaseEvent(QMouseEvent* event) {
    if (!m_selecting)
        QLineEdit::mouseReleaseEvent(event);
    m_selecting = false;
}

void PromptField::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && text() == m_prompt)
        selectAll();
    else
        QLineEdit::mouseDoubleClickEvent(event);
}
