// Answering a modal window from a test: the answer is given as soon as the event loop of the
// window runs.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include <functional>

// Calls answer with the next modal window that opens.
inline void WhenModal(const std::function<void(QWidget*)>& answer) {
    QTimer::singleShot(0, qApp, [answer] {
        if (QWidget* modal = QApplication::activeModalWidget())
            answer(modal);
        else
            WhenModal(answer);
    });
}

// What a message box said before it was answered.
struct BoxSeen {
    bool seen = false;
    QString name;
    QString text;
    QString title;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons;
};

// Answers the next message box by a button's role or, failing that, by its first button.
inline void AnswerBox(BoxSeen& seen, QMessageBox::ButtonRole role = QMessageBox::AcceptRole) {
    WhenModal([&seen, role](QWidget* modal) {
        auto* box = qobject_cast<QMessageBox*>(modal);
        if (box == nullptr)
            qFatal("the modal window is no message box");
        seen = {true,        box->objectName(),     box->text(), box->windowTitle(),
                box->icon(), box->standardButtons()};
        for (auto* button : box->buttons())
            if (box->buttonRole(button) == role)
                return button->click();
        box->buttons().first()->click();
    });
}
