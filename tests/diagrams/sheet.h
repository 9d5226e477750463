// The diagram sheet in a folder of the test's own, over a fretboard that the test sets.
#pragma once

#include "controls/application.h"
#include "core/codepage.h"
#include "diagrams/frmdiags.h"
#include "support/dialogs.h"
#include "support/testfolder.h"

#include <QFileDialog>
#include <QTest>

struct Sheet {
    void Reset() {
        m_sheet.reset();
        m_folder = std::make_unique<TestFolder>();
        m_state = AppState();
        m_afterFile = {};
        m_board = {QStringLiteral("Am"), std::nullopt, {}};
        m_board.marks[1] = 1;
        m_board.marks[2] = 1;
        m_sheet = std::make_unique<frmDiags>(m_state, [this] { return m_board; });
        m_sheet->show();
        QVERIFY(QTest::qWaitForWindowActive(m_sheet.get()));
    }

    static void Click(QWidget* button) { QTest::mouseClick(button, Qt::LeftButton); }

    static void Type(QWidget* control, const QString& text) { QTest::keyClicks(control, text); }

    QString Text() const { return m_sheet->txtMain->toPlainText(); }

    void Write(const QString& name, const QByteArray& bytes) const {
        QVERIFY(m_folder->Write(name, bytes));
    }

    QByteArray Bytes(const QString& name) const {
        return m_folder->Names().contains(name) ? m_folder->Bytes(name) : QByteArray("(missing)");
    }

    // Answers the next file dialog with a name of the test's folder; empty cancels it.
    void AnswerFile(const QString& name) {
        WhenModal<QFileDialog>([this, name](QFileDialog* dialog) {
            m_dialogTitle = dialog->windowTitle();
            m_dialogFilters = dialog->nameFilters();
            m_dialogFolder = dialog->directory().path();
            m_dialogMode = dialog->fileMode();
            m_dialogName = dialog->findChild<QLineEdit*>()->text();
            if (name.isEmpty())
                return dialog->reject();
            dialog->findChild<QLineEdit*>()->setText(m_folder->Path(name));
            if (m_afterFile)
                m_afterFile();
            static_cast<QDialog*>(dialog)->accept();
        });
    }

    std::unique_ptr<TestFolder> m_folder;
    AppState m_state;
    BoardFingering m_board;
    std::unique_ptr<frmDiags> m_sheet;
    std::function<void()> m_afterFile; // Prepares the answer to what follows a file dialog.
    QString m_dialogTitle;
    QString m_dialogFolder;
    QString m_dialogName;
    QFileDialog::FileMode m_dialogMode = QFileDialog::AnyFile;
    QStringList m_dialogFilters;
};

// Runs a test of the sheet with the toolkit's own file dialogs.
template <typename Test>
int RunSheetTest(int argc, char** argv) {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    Application application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}
