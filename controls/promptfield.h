// A text field whose first text asks for another: clicked or found useless, it is selected
// whole, so that typing replaces it.
#pragma once

#include <QLineEdit>

class PromptField : public QLineEdit {
public:
    explicit PromptField(const QString& name, QWidget* parent = nullptr);

    // Replaces the text.
    void SetPrompt(const QString& prompt);

    // Takes the focus, with the whole text selected.
    void AskAgain();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    QString m_prompt;
    bool m_selecting = false; // By the press that has just been.
};
