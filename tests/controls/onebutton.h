// One skinned button in a window, for the tests of its behaviour and of its painting.
#pragma once

#include "controls/goldbutton.h"

#include <QMouseEvent>
#include <QTest>

#include <memory>

class OneButton {
protected:
    void Reset() {
        m_button.reset();
        m_window = std::make_unique<QWidget>();
        m_button = std::make_unique<GoldButton>(QStringLiteral("cmdTest"), m_window.get());
        m_button->setGeometry(20, 20, 120, 40);
        m_window->resize(200, 100);
        QFont hard = m_window->font(); // Letters without grey edges can be counted.
        hard.setStyleStrategy(QFont::NoAntialias);
        hard.setBold(true);
        m_window->setFont(hard);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_button->clearFocus();
    }

    void Enter() { QTest::mouseMove(m_button.get(), {5, 5}); }

    void SendMove(QPointF place, Qt::MouseButtons buttons = {}) {
        QMouseEvent move(QEvent::MouseMove, place, m_button->mapToGlobal(place), Qt::NoButton,
                         buttons, {});
        QCoreApplication::sendEvent(m_button.get(), &move);
    }

    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<GoldButton> m_button;
};
