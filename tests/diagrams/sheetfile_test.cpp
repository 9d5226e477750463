// The sheet's text as a file: the dialogs, what is read, written and said.
#include "sheet.h"

#include "core/runtimeerror.h"
#include "diagrams/filedialogs.h"
#include "diagrams/sheetfile.h"

class SheetFileTest : public QObject, private Sheet {
    Q_OBJECT

private Q_SLOTS:
    void init() { Reset(); }

    void Filters() {
        const QStringList parts = FilterToNulls(QStringLiteral("a|*.a|b|*.b")).split(QChar(0));
        QCOMPARE(parts.join(u' '), QStringLiteral("a *.a b *.b"));
        QCOMPARE(FilterToNulls(QString()), QString());
    }

    void OpeningAFile_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("CR LF") << QByteArray("a\r\nb\r\n") << QStringLiteral("a\nb");
        QTest::newRow("no final line end") << QByteArray("a\r\nb") << QStringLiteral("a\nb");
        QTest::newRow("LF") << QByteArray("a\nb\n") << QStringLiteral("a\nb");
        QTest::newRow("CR") << QByteArray("a\rb\r") << QStringLiteral("a\nb");
        QTest::newRow("empty") << QByteArray() << QString();
        QTest::newRow("an empty line at the end")
            << QByteArray("a\r\n\r\n") << QStringLiteral("a\n");
        QTest::newRow("Cyrillic") << ToAnsi(u"Аккорд Б5") << QStringLiteral("Аккорд Б5");
        QTest::newRow("NUL") << QByteArray("a\0b", 3) << QStringLiteral("a b");
        QTest::newRow("50,000 bytes") << QByteArray(50000, 'x') << QString(50000, u'x');
    }
    void OpeningAFile() {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, text);
        Write(QStringLiteral("s.txt"), bytes);
        AnswerFile(QStringLiteral("s.txt"));
        Click(m_sheet->GoldButton1);
        QCOMPARE(Text(), text);
        QCOMPARE(m_dialogTitle, QStringLiteral("Открыть..."));
        QCOMPARE(m_dialogFilters, QStringList(QStringLiteral("Все файлы (*)")));
        QCOMPARE(m_sheet->focusWidget(), m_sheet->txtMain);
    }

    void OpeningTooLargeAFile() {
        Write(QStringLiteral("s.txt"), QByteArray(50001, 'x'));
        m_sheet->txtMain->setPlainText(QStringLiteral("kept"));
        BoxSeen box;
        AnswerFile(QStringLiteral("s.txt"));
        m_afterFile = [&box] { AnswerBox(box); };
        Click(m_sheet->GoldButton1);
        QVERIFY(box.seen);
        QCOMPARE(box.text, QStringLiteral("Файл слишком большой!"));
        QCOMPARE(box.title, QStringLiteral("Предупреждение"));
        QCOMPARE(box.icon, QMessageBox::Information);
        QCOMPARE(box.buttons, QMessageBox::Ok);
        QCOMPARE(Text(), QStringLiteral("kept"));
    }

    void OpeningWhatIsNotThere() {
        const QString none = m_folder->Path(QStringLiteral("none.txt"));
        QVERIFY_THROWS_EXCEPTION(RunTimeError, SheetSize(none));
        QVERIFY_THROWS_EXCEPTION(RunTimeError, ReadSheet(none));
        QVERIFY_THROWS_EXCEPTION(RunTimeError, SheetSize(m_folder->Path()));
    }

    void OpeningCancelled() {
        m_sheet->txtMain->setPlainText(QStringLiteral("kept"));
        AnswerFile(QString());
        Click(m_sheet->GoldButton1);
        QCOMPARE(Text(), QStringLiteral("kept"));
        AnswerFile(QString());
        Click(m_sheet->cmdSave);
        QCOMPARE(Text(), QStringLiteral("kept"));
    }

    void SavingAFile_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("an empty sheet is a line end") << QString() << QByteArray("\r\n");
        QTest::newRow("lines") << QStringLiteral("a\nb") << QByteArray("a\r\nb\r\n");
        QTest::newRow("Cyrillic") << QStringLiteral("Б") << QByteArray("\xC1\r\n");
        QTest::newRow("a no-break space") << QStringLiteral("a\u00A0b")
                                          << QByteArray("a\xA0"
                                                        "b\r\n");
    }
    void SavingAFile() {
        QFETCH(const QString, text);
        QFETCH(const QByteArray, bytes);
        m_sheet->txtMain->setPlainText(text);
        AnswerFile(QStringLiteral("s.txt"));
        Click(m_sheet->cmdSave);
        QCOMPARE(Bytes(QStringLiteral("s.txt")), bytes);
        QCOMPARE(m_dialogTitle, QStringLiteral("Сохранить..."));
        QCOMPARE(m_dialogFilters, QStringList(QStringLiteral("Текстовый файл (*.txt)")));
        QCOMPARE(m_sheet->focusWidget(), m_sheet->txtMain);
    }

    void SavingAddsTheExtension() {
        AnswerFile(QStringLiteral("song"));
        Click(m_sheet->cmdSave);
        QCOMPARE(Bytes(QStringLiteral("song.txt")), QByteArray("\r\n"));
    }

    void SavingUnknownCharacters() {
        Write(QStringLiteral("s.txt"), "old");
        const QString path = m_folder->Path(QStringLiteral("s.txt"));
        try {
            WriteSheet(path, QStringLiteral("a ♭ b ♯"));
            QFAIL("written");
        } catch (const RunTimeError& error) {
            QVERIFY(error.What().english.contains(QStringLiteral("♭♯")));
        }
        QCOMPARE(Bytes(QStringLiteral("s.txt")), QByteArray("old"));
    }

    void SavingWhereNothingCanBeWritten() {
        QVERIFY_THROWS_EXCEPTION(
            RunTimeError,
            WriteSheet(m_folder->Path(QStringLiteral("no/s.txt")), QStringLiteral("a")));
        QVERIFY_THROWS_EXCEPTION(RunTimeError, WriteSheet(m_folder->Path(), QStringLiteral("a")));
    }

    void Shortcuts() {
        AnswerFile(QStringLiteral("s.txt"));
        QTest::keyClick(m_sheet->txtMain, Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(Bytes(QStringLiteral("s.txt")), QByteArray("\r\n"));
        Write(QStringLiteral("s.txt"), "opened");
        AnswerFile(QStringLiteral("s.txt"));
        m_sheet->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_sheet.get()));
        QTest::keyClick(m_sheet->txtMain, Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(Text(), QStringLiteral("opened"));
    }

    void NothingIsOverwrittenUnasked_data() {
        QTest::addColumn<QString>("typed");
        QTest::newRow("as it stands") << QStringLiteral("out.txt");
        QTest::newRow("with a blank behind") << QStringLiteral("out.txt ");
        QTest::newRow("without an extension") << QStringLiteral("out");
        QTest::newRow("without one, with blanks") << QStringLiteral("out  \t");
    }
    void NothingIsOverwrittenUnasked() {
        QFETCH(const QString, typed);
        Write(QStringLiteral("out.txt"), "old");
        Type(m_sheet->txtMain, QStringLiteral("x"));
        for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
            QString question;
            AnswerFile(typed);
            m_afterFile = [&] {
                WhenModal<QMessageBox>([&](QMessageBox* box) {
                    question = box->text();
                    if (answer == QMessageBox::No) // The file dialog stays open.
                        WhenModal<QFileDialog>([](QFileDialog* dialog) { dialog->reject(); });
                    box->button(answer)->click();
                });
            };
            Click(m_sheet->cmdSave);
            QVERIFY2(question.startsWith(QStringLiteral("out.txt ")), qPrintable(question));
            QCOMPARE(m_folder->Names(), QStringList(QStringLiteral("out.txt")));
            QCOMPARE(Bytes(QStringLiteral("out.txt")),
                     answer == QMessageBox::No ? QByteArray("old") : QByteArray("x\r\n"));
        }
    }

    void BlanksBehindANameAreNotPartOfIt() {
        AnswerFile(QStringLiteral("song "));
        Click(m_sheet->cmdSave);
        QCOMPARE(m_folder->Names(), QStringList(QStringLiteral("song.txt")));
    }

    void OnlyAFileThatIsThereIsOpened() {
        AnswerFile(QString());
        Click(m_sheet->GoldButton1);
        QCOMPARE(m_dialogMode, QFileDialog::ExistingFile);
    }

    void TheDialogsBeginInTheLastFolder() {
        QVERIFY(m_folder->MakeFolder(QStringLiteral("songs")));
        AnswerFile(QStringLiteral("songs/a.txt"));
        Click(m_sheet->cmdSave);
        const QString songs = m_folder->Path(QStringLiteral("songs"));
        for (GoldButton* button : {m_sheet->GoldButton1, m_sheet->cmdSave}) {
            AnswerFile(QString());
            Click(button);
            QCOMPARE(m_dialogFolder, songs);
            QCOMPARE(m_dialogName, QString());
        }
    }

    void ALineSaysThatItWasSaved() {
        QCOMPARE(m_sheet->lblSaved->text(), QString());
        AnswerFile(QStringLiteral("a.txt"));
        Click(m_sheet->cmdSave);
        QCOMPARE(m_sheet->lblSaved->text(), QStringLiteral("Файл «a.txt» сохранён."));
        QVERIFY(m_sheet->lblSaved->isVisible());
        QVERIFY(m_sheet->lblSaved->height() >= m_sheet->lblSaved->sizeHint().height());
        Type(m_sheet->txtMain, QStringLiteral("x"));
        QCOMPARE(m_sheet->lblSaved->text(), QString());
    }

    void WhatIsNoFileIsNotWrittenOver() {
        QVERIFY_THROWS_EXCEPTION(RunTimeError,
                                 WriteSheet(QStringLiteral("/dev/null"), QStringLiteral("a")));
        QVERIFY(!QFileInfo(QStringLiteral("/dev/null")).isFile());
    }
};

int main(int argc, char** argv) {
    return RunSheetTest<SheetFileTest>(argc, argv);
}
#include "sheetfile_test.moc"
