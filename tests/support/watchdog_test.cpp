// What nobody answers is closed. This program is expected to fail, with the texts of both.
#include "watchdog.h"

class WatchdogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Watchdog::patience = std::chrono::milliseconds(1); }

    void AMessageBox() {
        QMessageBox box(QMessageBox::NoIcon, QStringLiteral("the title"),
                        QStringLiteral("the text"), QMessageBox::Yes | QMessageBox::No);
        box.exec();
    }

    void AFileDialog() {
        QFileDialog dialog;
        dialog.setOption(QFileDialog::DontUseNativeDialog);
        dialog.exec();
    }
};

QTEST_MAIN(WatchdogTest)
#include "watchdog_test.moc"
