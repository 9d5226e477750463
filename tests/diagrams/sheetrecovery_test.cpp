// What follows the sheet in case of a crash, and its file when another program changes it.
#include "sheet.h"

class SheetRecoveryTest : public QObject, private Sheet {
    Q_OBJECT

private Q_SLOTS:
    void init() { Reset(); }

    void TheFileFollowsTheText() {
        m_sheet->KeepRecovery(State(), 0);
        QCOMPARE(Files(), 0);
        Type(m_sheet->txtMain, QStringLiteral("x"));
        QTRY_COMPARE(Files(), 1);
        AnswerFile(QStringLiteral("s.txt"));
        Click(m_sheet->cmdSave);
        QCOMPARE(Files(), 0); // Saved.
    }

    void ItWaitsForItsTime() {
        constexpr int hour = 3'600'000;
        m_sheet->KeepRecovery(State(), hour);
        Type(m_sheet->txtMain, QStringLiteral("x"));
        QCoreApplication::processEvents();
        QCOMPARE(Files(), 0);
    }

    void UnwrittenRowsAreKept() {
        m_sheet->KeepRecovery(State(), 0);
        Click(m_sheet->cmdAdd);
        QTRY_COMPARE(Files(), 1);
        m_sheet->lstMain->SelectRow(0);
        Click(m_sheet->cmdDel);
        QTRY_COMPARE(Files(), 0);
    }

    void ACleanEndLeavesNone() {
        m_sheet->KeepRecovery(State(), 0);
        Type(m_sheet->txtMain, QStringLiteral("x"));
        QTRY_COMPARE(Files(), 1);
        m_sheet.reset();
        QCOMPARE(Files(), 0);
    }

    void WhatWasLeftIsOffered_data() {
        QTest::addColumn<int>("role");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("rows");
        QTest::newRow("yes") << static_cast<int>(QMessageBox::YesRole) << QStringLiteral("song ♭")
                             << 1;
        QTest::newRow("no") << static_cast<int>(QMessageBox::NoRole) << QString() << 0;
    }
    void WhatWasLeftIsOffered() {
        QFETCH(const int, role);
        Leave();
        m_sheet->KeepRecovery(State(), 0);
        BoxSeen box;
        AnswerBox(box, static_cast<QMessageBox::ButtonRole>(role));
        m_sheet->OfferLeft();
        QCOMPARE(box.name, QStringLiteral("RecoveredSheet"));
        QTEST(Text(), "text");
        QTEST(m_sheet->lstMain->RowCount(), "rows");
        QVERIFY(!m_folder->Names().contains(QStringLiteral("state/sheet-left.json")));
        box = {};
        m_sheet->OfferLeft();
        QVERIFY(!box.seen); // Once.
    }

    void WhatWasBroughtBackIsNotSaved() {
        Leave();
        m_sheet->KeepRecovery(State(), 0);
        BoxSeen box;
        AnswerBox(box, QMessageBox::YesRole);
        m_sheet->OfferLeft();
        QCOMPARE(Files(), 1); // Its own by now.
        AnswerBox(box, QMessageBox::RejectRole);
        QVERIFY(!m_sheet->MayEnd());
    }

    void AFileThatAnotherProgramChangedIsAskedFor_data() {
        QTest::addColumn<int>("role");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("replace it")
            << static_cast<int>(QMessageBox::YesRole) << QByteArray("old text\r\n");
        QTest::newRow("leave it") << static_cast<int>(QMessageBox::NoRole) << QByteArray("theirs");
    }
    void AFileThatAnotherProgramChangedIsAskedFor() {
        QFETCH(const int, role);
        Write(QStringLiteral("s.txt"), "old text");
        AnswerFile(QStringLiteral("s.txt"));
        Click(m_sheet->GoldButton1);
        Write(QStringLiteral("s.txt"), "theirs");
        BoxSeen box;
        AnswerFile(QStringLiteral("s.txt"));
        m_afterFile = [&box, role] {
            // First the file dialog's own question.
            WhenModal<QMessageBox>([&box, role](QMessageBox* first) {
                AnswerBox(box, static_cast<QMessageBox::ButtonRole>(role));
                first->button(QMessageBox::Yes)->click();
            });
        };
        Click(m_sheet->cmdSave);
        QCOMPARE(box.name, QStringLiteral("ChangedFile"));
        QTEST(Bytes(QStringLiteral("s.txt")), "bytes");
    }

private:
    QString State() const { return m_folder->Path(QStringLiteral("state")); }
    int Files() const {
        return static_cast<int>(
            QDir(State()).entryList({QStringLiteral("*.json")}, QDir::Files).size());
    }
    void Leave() {
        QVERIFY(m_folder->MakeFolder(QStringLiteral("state")));
        Write(QStringLiteral("state/sheet-left.json"),
              QStringLiteral("{\"text\": \"song ♭\", \"rows\": [{\"text\": \"Am - 011000\", "
                             "\"written\": false}]}")
                  .toUtf8());
    }
};

int main(int argc, char** argv) {
    return RunSheetTest<SheetRecoveryTest>(argc, argv);
}
#include "sheetrecovery_test.moc"
