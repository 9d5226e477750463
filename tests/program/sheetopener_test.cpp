// From the neck to the sheet without opening it.
#include "program/sheetopener.h"

#include "controls/application.h"
#include "diagrams/frmdiags.h"
#include "support/mainwindow.h"

#include <QClipboard>
#include <QMimeData>

class SheetOpenerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_main = std::make_unique<MainWindow>();
        m_sheet = nullptr;
        m_opener = std::make_unique<SheetOpener>(
            m_main->state, m_main->workbench, m_main->window,
            [this](QWidget& sheet) { m_sheet = qobject_cast<frmDiags*>(&sheet); });
        QObject::connect(&m_main->window, &frmMain::AddToSheetAsked, this,
                         [this] { m_opener->AddNeck(); });
        QObject::connect(&m_main->window, &frmMain::CopyAsked, this,
                         [this](const Diagram& diagram) { m_opener->Copy(diagram); });
    }
    void cleanup() {
        m_opener.reset();
        m_main.reset();
    }

    void CtrlDAddsTheNeck() {
        QTest::keyClick(m_main->board, Qt::Key_D, Qt::ControlModifier);
        QVERIFY(m_sheet != nullptr);
        QCOMPARE(m_sheet->lstMain->RowText(0), QStringLiteral("C - 010230"));
        QVERIFY(!m_sheet->isVisible());
        QVERIFY(m_main->Text(QStringLiteral("lblHint")).endsWith(QStringLiteral("C - 010230")));
    }

    void TheButtonDoesTheSame() {
        QTest::mouseClick(m_main->window.cmdAddDiag, Qt::LeftButton);
        QCOMPARE(m_sheet->lstMain->RowCount(), 1);
    }

    void WhatHasNoChordsNameBearsTheSounds_data() {
        QTest::addColumn<QString>("shown"); // What stands above the neck.
        QTest::newRow("a scale's name") << QStringLiteral("C Harmonic Minor");
        QTest::newRow("no chord found") << QStringLiteral("---");
    }
    void WhatHasNoChordsNameBearsTheSounds() {
        QFETCH(const QString, shown);
        if (shown == u"---") {
            m_main->workbench.ClearKeyMarks();
            m_main->workbench.ToggleKey(0);
            m_main->workbench.ToggleKey(1);
            m_main->workbench.FindChord();
        } else {
            m_main->workbench.ChooseScale(0, QStringLiteral("Harmonic Minor"));
        }
        QCOMPARE(m_main->workbench.ChordName(), shown);
        m_main->window.ShowState();
        m_opener->AddNeck();
        const QString sounds = m_main->Text(QStringLiteral("lblSounds"));
        QVERIFY(!sounds.isEmpty());
        QVERIFY2(m_sheet->lstMain->RowText(0).startsWith(sounds.section(u' ', 0, 0) + u" - "),
                 qPrintable(m_sheet->lstMain->RowText(0)));
    }

    void CollectedRowsKnowTheirMutes() {
        m_main->workbench.ToggleMute(RowOfString(6, m_main->state.ThinStringAtBottom));
        m_opener->AddNeck();
        m_sheet->cmdMake_Click();
        QTRY_COMPARE(m_sheet->picPage->Pages().at(0).diagrams.size(), 1U);
        const Shape& shape = m_sheet->picPage->Pages()[0].diagrams[0].diagram.shape;
        QCOMPARE(FretsText(shape), QStringLiteral("x32010"));
        QCOMPARE(FingersText(shape), QStringLiteral("032010"));
    }

    void ChordsOfSongsAreShownByTheirFirstVoicing() {
        m_opener->Show();
        m_sheet->txtMain->setPlainText(QStringLiteral("[Am]x [C]y"));
        QTRY_COMPARE(m_sheet->picPage->Pages().at(0).diagrams.size(), 2U);
        QCOMPARE(FretsText(m_sheet->picPage->Pages()[0].diagrams[0].diagram.shape),
                 QStringLiteral("x02210"));
        m_sheet->txtMain->document()->setModified(false);
    }

    void TheNeckIsCopied() {
        RunAction(QStringLiteral("Копировать диаграмму"));
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("032010"));
        QVERIFY(QApplication::clipboard()->mimeData()->hasImage());
        QVERIFY(m_main->Text(QStringLiteral("lblHint")).endsWith(QStringLiteral("032010")));
    }

    void AVoicingIsCopied() {
        Q_EMIT m_main->window.lstVoicings->CopyAsked(0);
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("x32010"));
        QVERIFY(QApplication::clipboard()->mimeData()->hasImage());
    }

private:
    // What the neck's picture offers in its menu and to a screen reader.
    void RunAction(const QString& name) {
        for (const auto& action : m_main->board->Parts().actions)
            if (action.name == name)
                return action.run();
        QFAIL(qPrintable(name));
    }

    std::unique_ptr<MainWindow> m_main;
    std::unique_ptr<SheetOpener> m_opener;
    frmDiags* m_sheet = nullptr;
};

int main(int argc, char** argv) {
    Application application(argc, argv);
    SheetOpenerTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "sheetopener_test.moc"
