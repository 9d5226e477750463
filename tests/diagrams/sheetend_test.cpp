// What is asked before a text, or rows that were collected, are lost.
#include "sheet.h"

class SheetEndTest : public QObject, private Sheet {
    Q_OBJECT

private Q_SLOTS:
    void init() { Reset(); }

    void UnsavedTextIsAskedFor_data() {
        QTest::addColumn<int>("role");
        QTest::addColumn<bool>("may");
        QTest::newRow("discard") << static_cast<int>(QMessageBox::DestructiveRole) << true;
        QTest::newRow("cancel") << static_cast<int>(QMessageBox::RejectRole) << false;
    }
    void UnsavedTextIsAskedFor() {
        QFETCH(const int, role);
        QFETCH(const bool, may);
        Type(m_sheet->txtMain, QStringLiteral("la la"));
        BoxSeen box;
        AnswerBox(box, static_cast<QMessageBox::ButtonRole>(role));
        QCOMPARE(m_sheet->MayEnd(), may);
        QVERIFY(box.seen);
        QCOMPARE(Text(), QStringLiteral("la la"));
    }

    void UntouchedSheetNeverAsks() {
        QVERIFY(m_sheet->MayEnd());
        Type(m_sheet->txtMain, QStringLiteral("x"));
        AnswerFile(QStringLiteral("s.txt"));
        Click(m_sheet->cmdSave);
        QVERIFY(m_sheet->MayEnd()); // Saved.
    }

    void OpeningOverUnsavedTextAsks() {
        Type(m_sheet->txtMain, QStringLiteral("x"));
        BoxSeen box;
        AnswerBox(box, QMessageBox::RejectRole);
        Click(m_sheet->GoldButton1);
        QVERIFY(box.seen);
        QCOMPARE(box.name, QStringLiteral("UnsavedSheet"));
        QCOMPARE(Text(), QStringLiteral("x"));
    }

    void AnEmptyNewSheetNeverAsks() {
        Type(m_sheet->txtMain, QStringLiteral("x"));
        QTest::keyClick(m_sheet->txtMain, Qt::Key_Backspace);
        QVERIFY(m_sheet->MayEnd());
    }

    void ASavedSheetThatWasEmptiedAsks() {
        Type(m_sheet->txtMain, QStringLiteral("x"));
        AnswerFile(QStringLiteral("s.txt"));
        Click(m_sheet->cmdSave);
        QTest::keyClick(m_sheet->txtMain, Qt::Key_Backspace);
        BoxSeen box;
        AnswerBox(box, QMessageBox::DestructiveRole);
        QVERIFY(m_sheet->MayEnd());
        QVERIFY(box.seen);
    }

    void RowsThatWereNeverWrittenAsk_data() {
        QTest::addColumn<int>("role");
        QTest::addColumn<bool>("may");
        QTest::newRow("discard") << static_cast<int>(QMessageBox::DestructiveRole) << true;
        QTest::newRow("cancel") << static_cast<int>(QMessageBox::RejectRole) << false;
    }
    void RowsThatWereNeverWrittenAsk() {
        QFETCH(const int, role);
        QFETCH(const bool, may);
        Click(m_sheet->cmdAdd);
        BoxSeen box;
        AnswerBox(box, static_cast<QMessageBox::ButtonRole>(role));
        QCOMPARE(m_sheet->MayEnd(), may);
        QCOMPARE(box.name, QStringLiteral("UnsavedSheet"));
        QVERIFY(box.text.contains(QStringLiteral("не вписаны")));
        QCOMPARE(m_sheet->lstMain->RowCount(), 1);
    }

    void RowsThatWereWrittenDoNotAsk() {
        Click(m_sheet->cmdAdd);
        Click(m_sheet->cmdMake);
        AnswerFile(QStringLiteral("s.txt"));
        Click(m_sheet->cmdSave);
        QVERIFY(m_sheet->MayEnd());
        Click(m_sheet->cmdAdd);
        m_sheet->lstMain_Click(1);
        AnswerFile(QStringLiteral("t.txt"));
        Click(m_sheet->cmdSave);
        QVERIFY(m_sheet->MayEnd());
    }

    void RowsThatWereRemovedDoNotAsk() {
        Click(m_sheet->cmdAdd);
        m_sheet->lstMain->SelectRow(0);
        Click(m_sheet->cmdDel);
        QVERIFY(m_sheet->MayEnd());
    }

    void SavingWritesTheRowsBehindTheText() {
        m_sheet->txtMain->setPlainText(QStringLiteral("song"));
        Click(m_sheet->cmdAdd);
        m_board.chordName = QStringLiteral("C");
        Click(m_sheet->cmdAdd);
        m_sheet->lstMain_Click(0); // At the beginning, where the cursor is.
        SaveWhenAsked(QStringLiteral("s.txt"));
        QVERIFY(m_sheet->MayEnd());
        QCOMPARE(Bytes(QStringLiteral("s.txt")), QByteArray("Am - 011000song\r\nC - 011000 \r\n"));
        QVERIFY(m_sheet->MayEnd()); // Nothing is left to ask about.
    }

    void SavingThatIsCancelledKeepsProgramTextAndRows() {
        Type(m_sheet->txtMain, QStringLiteral("la la"));
        Click(m_sheet->cmdAdd);
        SaveWhenAsked({});
        QVERIFY(!m_sheet->MayEnd());
        QCOMPARE(Text(), QStringLiteral("la la"));
        QCOMPARE(m_sheet->lstMain->RowCount(), 1);
    }

    void OpeningAFileLeavesTheRows() {
        Write(QStringLiteral("s.txt"), "opened");
        Click(m_sheet->cmdAdd);
        AnswerFile(QStringLiteral("s.txt"));
        Click(m_sheet->GoldButton1); // Nothing is asked.
        QCOMPARE(Text(), QStringLiteral("opened"));
        QCOMPARE(m_sheet->lstMain->RowCount(), 1);
    }

private:
    // Answers the question with Save, and the file dialog with this name.
    void SaveWhenAsked(const QString& name) {
        WhenModal<QMessageBox>([this, name](QMessageBox* box) {
            AnswerFile(name);
            box->button(QMessageBox::Save)->click();
        });
    }
};

int main(int argc, char** argv) {
    return RunSheetTest<SheetEndTest>(argc, argv);
}
#include "sheetend_test.moc"
