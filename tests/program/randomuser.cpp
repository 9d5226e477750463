#include "randomuser.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QTest>
#include <QTimer>

namespace {

constexpr std::array keys{
    Qt::Key_F1,     Qt::Key_F2,        Qt::Key_F3,   Qt::Key_F4,    Qt::Key_F5,    Qt::Key_F6,
    Qt::Key_F7,     Qt::Key_F8,        Qt::Key_F9,   Qt::Key_F10,   Qt::Key_Down,  Qt::Key_Up,
    Qt::Key_Left,   Qt::Key_Right,     Qt::Key_Home, Qt::Key_End,   Qt::Key_Space, Qt::Key_Return,
    Qt::Key_Tab,    Qt::Key_Backtab,   Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Menu,  Qt::Key_Delete,
    Qt::Key_PageUp, Qt::Key_PageDown,  Qt::Key_A,    Qt::Key_M,     Qt::Key_7,     Qt::Key_1,
    Qt::Key_3,      Qt::Key_Backspace, Qt::Key_F11,  Qt::Key_F12,   Qt::Key_Z,     Qt::Key_D,
    Qt::Key_F};

constexpr std::array<Qt::KeyboardModifiers::Int, 8> modifiers{0,
                                                              0,
                                                              0,
                                                              0,
                                                              Qt::ShiftModifier,
                                                              Qt::ControlModifier,
                                                              Qt::AltModifier,
                                                              Qt::ShiftModifier |
                                                                  Qt::ControlModifier};

void SendMouse(QWidget& widget, QEvent::Type type, QPointF place, Qt::MouseButton button,
               Qt::MouseButtons buttons) {
    QMouseEvent event(type, place, widget.mapToGlobal(place), button, buttons, {});
    QCoreApplication::sendEvent(&widget, &event);
}

} // namespace

RandomUser::RandomUser(QWidget& mainWindow, quint32 seed, QString folder)
    : m_mainWindow(mainWindow), m_random(seed), m_folder(std::move(folder)) {
    qApp->installEventFilter(this);
}

int RandomUser::Pick(int count) {
    return static_cast<int>(m_random() % static_cast<quint32>(count));
}

void RandomUser::Act() {
    m_notes = 0;
    QWidget* window = &m_mainWindow;
    if (Chance(6))
        for (QWidget* other : QApplication::topLevelWidgets())
            if (other->isVisible() && (other->windowType() & Qt::Window) != 0 && Chance(2))
                window = other;
    ActIn(*window);
    if (window != &m_mainWindow && Chance(5))
        window->close();
    EndPopups();
    KeepTheSheetShort();
    QCoreApplication::processEvents();
}

void RandomUser::ActDuringNote() {
    constexpr int longestLoop = 30;
    if (++m_notes % longestLoop == 0)
        QTest::keyClick(&m_mainWindow, Qt::Key_F7);
    else if (m_notes < longestLoop && m_dialogs == 0 && Chance(4))
        ActIn(m_mainWindow);
}

void RandomUser::ActIn(QWidget& window) {
    if (Chance(200))
        window.resize(window.size() + QSize(Pick(200) - 100, Pick(120) - 60));
    else if (Chance(3))
        UseKeyboard(window);
    else if (const auto controls = window.findChildren<QWidget*>(); !controls.isEmpty())
        UseMouse(*controls[Pick(static_cast<int>(controls.size()))]);
}

void RandomUser::UseMouse(QWidget& control) {
    if (!control.isVisible() || control.rect().isEmpty())
        return;
    const auto place = [&] {
        return QPointF(Pick(control.width() * 4) / 4.0, Pick(control.height() * 4) / 4.0);
    };
    const QPointer<QWidget> still(&control); // It may close its window.
    const Qt::MouseButton button = Chance(5) ? Qt::RightButton : Qt::LeftButton;
    QPointF at = place();
    SendMouse(control, QEvent::MouseMove, at, Qt::NoButton, Qt::NoButton);
    if (still)
        SendMouse(control, QEvent::MouseButtonPress, at, button, button);
    while (still && Chance(3)) // A drag.
        SendMouse(control, QEvent::MouseMove, at = place(), Qt::NoButton, button);
    if (still)
        SendMouse(control, QEvent::MouseButtonRelease, at, button, Qt::NoButton);
    if (still && Chance(8))
        SendMouse(control, QEvent::MouseButtonDblClick, at, button, button);
}

void RandomUser::UseKeyboard(QWidget& window) {
    QWidget* focus = window.focusWidget();
    const Qt::Key key = keys[m_random() % keys.size()];
    m_metUndo = m_metUndo || key == Qt::Key_Z;
    QTest::keyClick(focus != nullptr ? focus : &window, key,
                    Qt::KeyboardModifiers::fromInt(modifiers[m_random() % modifiers.size()]));
}

// A sheet that grows for thousands of actions would only slow the test.
void RandomUser::KeepTheSheetShort() {
    constexpr int longest = 5000;
    for (QWidget* window : QApplication::topLevelWidgets())
        for (auto* text : window->findChildren<QPlainTextEdit*>())
            if (!text->isReadOnly() && text->document()->characterCount() > longest)
                text->setPlainText(QString());
}

void RandomUser::EndPopups() {
    while (QWidget* popup = QApplication::activePopupWidget()) {
        const auto* list = popup->findChild<QAbstractItemView*>();
        if (list != nullptr && Chance(2))
            UseMouse(*list->viewport());
        if (QApplication::activePopupWidget() == popup)
            popup->close();
    }
}

bool RandomUser::eventFilter(QObject* watched, QEvent* event) {
    auto* window = event->type() == QEvent::Show ? qobject_cast<QWidget*>(watched) : nullptr;
    if (window != nullptr && window->isWindow() &&
        (window->isModal() || qobject_cast<QMenu*>(window) != nullptr))
        QTimer::singleShot(0, window, [this, window] { Answer(*window); });
    return false;
}

void RandomUser::Answer(QWidget& dialog) {
    constexpr int deepest = 3;
    const QScopedValueRollback inside(m_dialogs, m_dialogs + 1);
    ++m_dialogsMet;
    m_metSettings = m_metSettings || dialog.objectName() == QStringLiteral("frmSettings");
    m_metError = m_metError || dialog.objectName() == QStringLiteral("RunTimeError");
    const QPointer<QWidget> still(&dialog);
    if (auto* menu = qobject_cast<QMenu*>(&dialog)) {
        menu->setActiveAction(menu->actions()[Pick(static_cast<int>(menu->actions().size()))]);
        QTest::keyClick(menu, Qt::Key_Return);
    } else {
        // With a file dialog any file could be deleted.
        const bool free = qobject_cast<QMessageBox*>(&dialog) == nullptr &&
                          qobject_cast<QFileDialog*>(&dialog) == nullptr;
        while (free && still && still->isVisible() && m_dialogs <= deepest && !Chance(4))
            ActIn(dialog);
        EndPopups();
    }
    if (still && still->isVisible())
        End(dialog);
    if (still && still->isVisible())
        dialog.close();
}

void RandomUser::End(QWidget& dialog) {
    if (auto* box = qobject_cast<QMessageBox*>(&dialog)) {
        const auto buttons = box->buttons();
        const bool report = box->objectName() == QStringLiteral("RunTimeError");
        QAbstractButton* button =
            report ? box->escapeButton() : buttons[Pick(static_cast<int>(buttons.size()))];
        button->click();
    } else if (auto* files = qobject_cast<QFileDialog*>(&dialog)) {
        files->setDirectory(m_folder);
        files->findChild<QLineEdit*>()->setText(QStringLiteral("sheet.txt"));
        if (Chance(2))
            QTest::keyClick(files->findChild<QLineEdit*>(), Qt::Key_Return);
        else
            files->reject();
    } else if (auto* settings = dialog.findChild<QAbstractButton*>(QStringLiteral("cmdOK"));
               settings != nullptr && Chance(2)) {
        settings->click();
    }
}
