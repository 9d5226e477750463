// A mouse button held down in a widget that may never hear of its release: a modal window that
// opens meanwhile gets it.
#pragma once

#include <QObject>
#include <QPointer>

#include <functional>

class QMouseEvent;
class QWidget;

class HeldButton : public QObject {
public:
    // lost: runs once when the release will not come any more.
    HeldButton(QWidget* widget, std::function<void()> lost);

    bool IsHeld() const { return !m_window.isNull(); }

    // To be told of the widget's presses, releases and moves.
    void Press();
    void Release();
    void Move(const QMouseEvent& event);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Lose();

    QWidget* m_widget;
    std::function<void()> m_lost;
    QPointer<QWidget> m_window; // Whose events tell of the loss.
};
