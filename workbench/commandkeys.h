// The command keys, ahead of whichever control has the focus, and in the windows that an open list
// or menu is.
#pragma once

#include <QObject>

#include <functional>

class QKeyEvent;
class QWidget;
struct KeyCommand;

class CommandKeys : public QObject {
public:
    // What the window has to say of a key, with modifiers as KeyCommand has them.
    struct Answers {
        std::function<const KeyCommand*(int key, int shift)> command; // Null for none.
        std::function<bool(int key, int shift)> press; // Whether the key has been dealt with.
    };

    // Sees every event of the program before its window does, while it lives.
    CommandKeys(const QWidget& window, Answers answers);

    // They work in that window as well, but for the plain arrows.
    void TakeKeysOf(const QWidget* beside) { m_beside = beside; }

    // The command of a key; empty for a key that has none.
    std::function<void()> CommandOf(const QKeyEvent& press) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const KeyCommand* Command(const QKeyEvent& press) const;

    // inPopup: pressed in an open list or menu.
    bool Press(const QKeyEvent& press, bool inPopup) const;

    const QWidget& m_window;
    Answers m_answers;
    const QWidget* m_beside = nullptr;
};
