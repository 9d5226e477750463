// Answering a modal window from a test: the answer is given as soon as the event loop of the
// window runs.
#pragma once

#include "watchdog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include <functional>
#include <type_traits>

// Calls answer with the next modal window of the kind that opens.
template <typename Window = QWidget>
void WhenModal(const std::type_identity_t<std::function<void(Window*)>>& answer) {
    QTimer::singleShot(0, qApp, [answer] {
        if (auto* modal = qobject_cast<Window*>(QApplication::activeModalWidget()))
            answer(modal);
        else
            WhenModal<Window>(answer);
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
    WhenModal<QMessageBox>([&seen, role](QMessageBox* box) {
        seen = {true,        box->objectName(),     box->text(), box->windowTitle(),
                box->icon(), box->standardButtons()};
        for (auto* button : box->buttons())
            if (box->buttonRole(button) == role)
                return button->click();
        box->buttons().first()->click();
    });
}
