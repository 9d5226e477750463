// A message box or file dialog that no test answers would stop everything until the test is
// killed: this closes it, and the test fails with what it says. Included where tests open
// windows; it starts with the application object.
#pragma once

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <chrono>

class Watchdog : public QObject {
public:
    // How long a test may take to answer.
    static inline std::chrono::milliseconds patience{10'000};

    static void Start() {
        if (qobject_cast<QApplication*>(qApp) != nullptr && !qApp->findChild<Watchdog*>(name))
            qApp->installEventFilter(new Watchdog);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool asks = qobject_cast<QMessageBox*>(watched) != nullptr ||
                          qobject_cast<QFileDialog*>(watched) != nullptr;
        if (asks && event->type() == QEvent::Show)
            QTimer::singleShot(patience, watched,
                               [dialog = static_cast<QDialog*>(watched)] { Close(dialog); });
        return false;
    }

private:
    static inline const QString name = QStringLiteral("watchdog");

    Watchdog() : QObject(qApp) { setObjectName(name); }

    static void Close(QDialog* dialog) {
        if (!dialog->isVisible())
            return;
        const auto* box = qobject_cast<QMessageBox*>(dialog);
        const QString said = dialog->windowTitle() + QStringLiteral(": ") +
                             (box != nullptr ? box->text() : QStringLiteral("a file is asked for"));
        QTest::qFail(qPrintable(QStringLiteral("Nobody answers: ") + said), __FILE__, __LINE__);
        dialog->done(QDialog::Rejected);
    }
};

inline void StartWatchdog() {
    Watchdog::Start();
}
Q_COREAPP_STARTUP_FUNCTION(StartWatchdog)
