// The sheet's text: lines drawn into it, the clipboard, the keyboard's way in and out.
#include "sheet.h"

#include <QClipboard>
#include <QMimeData>
#include <QTextBlock>
#include <QTextLayout>

class SheetTextTest : public QObject, private Sheet {
    Q_OBJECT

private Q_SLOTS:
    void init() { Reset(); }

    void Dashes_data() {
        QTest::addColumn<QString>("length");
        QTest::addColumn<int>("dashes");
        QTest::newRow("five") << QStringLiteral("5") << 5;
        QTest::newRow("empty") << QString() << 0;
        QTest::newRow("negative") << QStringLiteral("-5") << 0;
        QTest::newRow("no number") << QStringLiteral("abc") << 0;
        QTest::newRow("half to even") << QStringLiteral("2.5") << 2;
    }
    void Dashes() {
        QFETCH(const QString, length);
        QFETCH(const int, dashes);
        m_sheet->Text1->setText(length);
        Click(m_sheet->GoldButton2);
        QCOMPARE(Text(), QString(QString(dashes, u'-') + u'\n').repeated(6));
        QCOMPARE(m_sheet->focusWidget(), m_sheet->txtMain);
    }

    void DashesBeyondReason() {
        for (const auto& length : {QStringLiteral("1e9"), QStringLiteral("100000000")}) {
            m_sheet->Text1->setText(length);
            BoxSeen box;
            AnswerBox(box);
            Click(m_sheet->GoldButton2);
            QVERIFY(box.seen);
            QCOMPARE(Text(), QString());
        }
    }

    void CutCopyPaste() {
        QPlainTextEdit* text = m_sheet->txtMain;
        text->setPlainText(QStringLiteral("one\ntwo"));
        text->selectAll();
        Click(m_sheet->cmdCopy);
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("one\ntwo"));
        QCOMPARE(Text(), QStringLiteral("one\ntwo"));
        QVERIFY(text->hasFocus());
        text->selectAll();
        Click(m_sheet->cmdCut);
        QCOMPARE(Text(), QString());
        Click(m_sheet->cmdPast);
        Click(m_sheet->cmdPast);
        QCOMPARE(Text(), QStringLiteral("one\ntwoone\ntwo"));
        text->selectAll();
        Click(m_sheet->cmdPast);
        QCOMPARE(Text(), QStringLiteral("one\ntwo"));
    }

    void PastingAPicture() {
        QApplication::clipboard()->setImage(QImage(4, 4, QImage::Format_RGB32));
        m_sheet->txtMain->setPlainText(QStringLiteral("kept"));
        m_sheet->txtMain->selectAll();
        Click(m_sheet->cmdPast);
        QCOMPARE(Text(), QStringLiteral("kept"));
    }

    void PastingNothing() {
        QApplication::clipboard()->setMimeData(nullptr);
        m_sheet->txtMain->setPlainText(QStringLiteral("kept"));
        m_sheet->txtMain->selectAll();
        Click(m_sheet->cmdPast);
        QCOMPARE(Text(), QStringLiteral("kept"));
    }

    void Undoing() {
        m_sheet->Text1->setText(QStringLiteral("3"));
        Click(m_sheet->GoldButton2);
        const QString lines = Text();
        QTest::keyClick(m_sheet->txtMain, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(Text(), QString()); // One step.
        QTest::keyClick(m_sheet->txtMain, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(Text(), lines);
    }

    void CopiedLinesAreDividedPlainly_data() {
        QTest::addColumn<bool>("cut");
        QTest::newRow("copy") << false;
        QTest::newRow("cut") << true;
    }
    void CopiedLinesAreDividedPlainly() {
        QFETCH(const bool, cut);
        Type(m_sheet->txtMain, QStringLiteral("one"));
        QTest::keyClick(m_sheet->txtMain, Qt::Key_Return, Qt::ShiftModifier);
        m_sheet->txtMain->insertPlainText(QStringLiteral("two\nth\u00A0ree"));
        m_sheet->txtMain->selectAll();
        Click(cut ? m_sheet->cmdCut : m_sheet->cmdCopy);
        const QString lines = QStringLiteral("one\ntwo\nth\u00A0ree");
        QCOMPARE(QApplication::clipboard()->text(), lines);
        QCOMPARE(m_sheet->txtMain->Text(), cut ? QString() : lines);
        QVERIFY(m_sheet->txtMain->hasFocus());
    }

    void TheKeysCopyTheSame() {
        m_sheet->txtMain->setPlainText(QStringLiteral("a\u00A0b\u2028c"));
        m_sheet->txtMain->selectAll();
        QTest::keyClick(m_sheet->txtMain, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("a\u00A0b\nc"));
    }

    void PastingReturnsToTheText() {
        QApplication::clipboard()->setText(QStringLiteral("x"));
        m_sheet->cmdPast->setFocus();
        QTest::keyClick(m_sheet->cmdPast, Qt::Key_Space);
        QCOMPARE(Text(), QStringLiteral("x"));
        QVERIFY(m_sheet->txtMain->hasFocus());
    }

    void LongLinesAreNotWrapped() {
        m_sheet->txtMain->setPlainText(QString(200, u'-') + u' ' + QString(200, u'-'));
        m_sheet->txtMain->grab();
        QCOMPARE(m_sheet->txtMain->document()->firstBlock().layout()->lineCount(), 1);
    }

    void TabIsACharacter() {
        m_sheet->txtMain->setFocus();
        QTest::keyClick(m_sheet->txtMain, Qt::Key_Tab);
        QCOMPARE(Text(), QStringLiteral("\t"));
        QVERIFY(m_sheet->txtMain->hasFocus());
    }

    void ControlAndTabLeaveTheText() {
        // Between two others, so that staying there is not passing the end.
        QWidget::setTabOrder(m_sheet->cmdAdd, m_sheet->txtMain);
        QWidget::setTabOrder(m_sheet->txtMain, m_sheet->cmdDel);
        m_sheet->txtMain->setFocus();
        QTest::keyClick(m_sheet->txtMain, Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(m_sheet->focusWidget(), m_sheet->cmdDel);
        m_sheet->txtMain->setFocus();
        QTest::keyClick(m_sheet->txtMain, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(m_sheet->focusWidget(), m_sheet->cmdAdd);
        QCOMPARE(Text(), QString());
    }

    void TheLengthOfALineIsNamedAsItWasTyped() {
        m_sheet->Text1->setText(QStringLiteral("1e9"));
        BoxSeen box;
        AnswerBox(box);
        Click(m_sheet->GoldButton2);
        QCOMPARE(box.text,
                 QStringLiteral("Линия из 1e9 знаков слишком длинна: можно не больше 100000."));
    }
};

int main(int argc, char** argv) {
    return RunSheetTest<SheetTextTest>(argc, argv);
}
#include "sheettext_test.moc"
