// The sheet printed through the toolkit's preview and dialog, to a file.
#include "../faults/hostilesystem.h"
#include "sheet.h"

#include <QAction>
#include <QComboBox>
#include <QProcess>

class PrintingTest : public QObject, private Sheet {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        Reset();
        m_state.AppPath = QStringLiteral(TONVIK_PRINT_FOLDER);
        m_sheet->txtMain->setPlainText(QStringLiteral("Am - 012200 \nПривет\n{np}\ntwo"));
        QCoreApplication::processEvents();
        m_printed = m_folder->Path(QStringLiteral("printed.pdf"));
    }

    void ThroughTheDialogToAFile() {
        PrintToFile();
        Click(m_sheet->cmdPrint);
        QProcess reader;
        reader.start(QStringLiteral("pdftotext"), {m_printed, QStringLiteral("-")});
        QVERIFY(reader.waitForFinished());
        const QString pages = QString::fromUtf8(reader.readAllStandardOutput());
        QCOMPARE(pages.count(u'\f'), 2);
        QVERIFY2(pages.contains(QStringLiteral("Привет")), qPrintable(pages));
    }

    void TheKeyOpensThePreview() {
        bool opened = false;
        WhenModal<QDialog>([&opened](QDialog* preview) {
            opened = preview->objectName() == u"PrintPreview";
            preview->reject();
        });
        QTest::keyClick(m_sheet->txtMain, Qt::Key_P, Qt::ControlModifier);
        QVERIFY(opened);
        QVERIFY(m_folder->Names().isEmpty());
    }

    void ADiskThatFillsUpIsReported() {
        BoxSeen report;
        {
            const LittleRoom little(1000);
            if (!little.Holds())
                QSKIP("The size of a file cannot be limited here.");
            PrintToFile([&report] { AnswerBox(report); });
            Click(m_sheet->cmdPrint);
        }
        QCOMPARE(report.name, QStringLiteral("RunTimeError"));
        QVERIFY2(report.text.contains(QStringLiteral("напечатать")), qPrintable(report.text));
    }

private:
    // Answers the preview, which opens next, by printing, and the dialog of the printers by the
    // file; then is run before that dialog closes.
    void PrintToFile(const std::function<void()>& then = {}) {
        WhenModal<QDialog>([this, then](QDialog* preview) {
            QAction* print = nullptr;
            for (auto* action : preview->findChildren<QAction*>())
                if (action->iconText() == u"Print")
                    print = action;
            QVERIFY(print != nullptr);
            QTimer::singleShot(0, preview, [this, preview, then] { Accept(preview, then); });
            print->trigger();
        });
    }

    void Accept(QDialog* preview, const std::function<void()>& then) {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || dialog == preview) {
            QTimer::singleShot(0, preview, [this, preview, then] { Accept(preview, then); });
            return;
        }
        auto* printers = dialog->findChild<QComboBox*>(QStringLiteral("printers"));
        auto* file = dialog->findChild<QLineEdit*>(QStringLiteral("filename"));
        QVERIFY(printers != nullptr && file != nullptr);
        printers->setCurrentIndex(printers->count() - 1); // The file, behind all printers.
        file->setText(m_printed);
        if (then)
            then();
        dialog->accept();
    }

    QString m_printed;
};

int main(int argc, char** argv) {
    return RunSheetTest<PrintingTest>(argc, argv);
}
#include "printing_test.moc"
