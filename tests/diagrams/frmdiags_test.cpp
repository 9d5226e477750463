// The diagram sheet through its real window, its files compared byte by byte.
#include "controls/application.h"
#include "core/codepage.h"
#include "core/runtimeerror.h"
#include "diagrams/filedialogs.h"
#include "diagrams/frmdiags.h"
#include "diagrams/sheetfile.h"
#include "support/dialogs.h"

#include <QClipboard>
#include <QFileDialog>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>

class FrmDiagsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void Codes_data();
    void Codes();
    void Titles();
    void Adding();
    void RemovingARow();
    void RemovingNothing();
    void ClearingAsks_data();
    void ClearingAsks();
    void AddingKeepsTheSelection();
    void OnlyAClickOnOneRowInserts();
    void WritingTheList();
    void ClickingARow();
    void Dashes_data();
    void Dashes();
    void DashesBeyondReason();
    void CutCopyPaste();
    void PastingAPicture();
    void PastingNothing();
    void Undoing();
    void Filters();
    void OpeningAFile_data();
    void OpeningAFile();
    void OpeningTooLargeAFile();
    void OpeningWhatIsNotThere();
    void OpeningCancelled();
    void SavingAFile_data();
    void SavingAFile();
    void SavingAddsTheExtension();
    void SavingUnknownCharacters();
    void SavingWhereNothingCanBeWritten();
    void UnsavedTextIsAskedFor_data();
    void UnsavedTextIsAskedFor();
    void UntouchedSheetNeverAsks();
    void OpeningOverUnsavedTextAsks();
    void ClosingKeepsEverything();
    void Resizing();
    void Shortcuts();

private:
    void Click(QWidget* button) { QTest::mouseClick(button, Qt::LeftButton); }
    QString Text() const { return m_sheet->txtMain->toPlainText(); }
    void Write(const QString& name, const QByteArray& bytes) const;
    QByteArray Bytes(const QString& name) const;
    // Answers the next file dialog with a name of the test's folder; empty cancels it.
    void AnswerFile(const QString& name);

    std::unique_ptr<QTemporaryDir> m_folder;
    AppState m_state;
    BoardFingering m_board;
    std::unique_ptr<frmDiags> m_sheet;
    std::function<void()> m_afterFile; // Prepares the answer to what follows a file dialog.
    QString m_dialogTitle;
    QStringList m_dialogFilters;
};

void FrmDiagsTest::init() {
    m_folder = std::make_unique<QTemporaryDir>();
    m_state = AppState();
    m_afterFile = {};
    m_board = {QStringLiteral("Am"), std::nullopt, {}};
    m_board.marks[1] = 1;
    m_board.marks[2] = 1;
    m_sheet = std::make_unique<frmDiags>(m_state, [this] { return m_board; });
    m_sheet->show();
    QVERIFY(QTest::qWaitForWindowActive(m_sheet.get()));
}

void FrmDiagsTest::Write(const QString& name, const QByteArray& bytes) const {
    QFile file(m_folder->filePath(name));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write the test's file");
    file.write(bytes);
}

QByteArray FrmDiagsTest::Bytes(const QString& name) const {
    QFile file(m_folder->filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

void FrmDiagsTest::AnswerFile(const QString& name) {
    WhenModal<QFileDialog>([this, name](QFileDialog* dialog) {
        m_dialogTitle = dialog->windowTitle();
        m_dialogFilters = dialog->nameFilters();
        if (name.isEmpty())
            return dialog->reject();
        dialog->setDirectory(m_folder->path());
        dialog->findChild<QLineEdit*>()->setText(m_folder->filePath(name));
        if (m_afterFile)
            m_afterFile();
        static_cast<QDialog*>(dialog)->accept();
    });
}

void FrmDiagsTest::Codes_data() {
    QTest::addColumn<int>("barre");
    QTest::addColumn<QList<int>>("marks");
    QTest::addColumn<QString>("code");
    const int none = -1;
    QTest::newRow("nothing on the board")
        << 0 << QList{none, none, none, none, none, none} << QStringLiteral("Am - 000000");
    QTest::newRow("without a barre")
        << 0 << QList{none, 1, 1, none, none, none} << QStringLiteral("Am - 011000");
    QTest::newRow("over a barre") << 5 << QList{none, none, none, 7, 7, none}
                                  << QStringLiteral("Am - Б5/000220");
    QTest::newRow("below the barre")
        << 5 << QList{4, none, none, none, none, none} << QStringLiteral("Am - Б5/-100000");
    QTest::newRow("two digits") << 0 << QList{12, none, none, none, none, 16}
                                << QStringLiteral("Am - 12000016");
    QTest::newRow("a mark off the board")
        << 0 << QList{0, none, none, none, none, none} << QStringLiteral("Am - 000000");
    QTest::newRow("a mark off the board with a barre")
        << 2 << QList{0, none, none, none, none, none} << QStringLiteral("Am - Б2/-200000");
}

void FrmDiagsTest::Codes() {
    QFETCH(const int, barre);
    QFETCH(const QList<int>, marks);
    QFETCH(const QString, code);
    BoardFingering board{QStringLiteral("Am"), barre > 0 ? std::optional(barre) : std::nullopt, {}};
    for (int row = 0; row < 6; ++row)
        if (marks[row] >= 0)
            board.marks[static_cast<std::size_t>(row)] = marks[row];
    QCOMPARE(FingeringCode(board), code);
}

void FrmDiagsTest::Titles() {
    QCOMPARE(m_sheet->windowTitle(), QStringLiteral("Диаграмма аккордов"));
    m_state.LanguageFile = QStringLiteral("/x.lng");
    QCOMPARE(frmDiags(m_state, [] { return BoardFingering{}; }).windowTitle(),
             QStringLiteral("Tonvik Diags"));
}

void FrmDiagsTest::Adding() {
    Click(m_sheet->cmdAdd);
    m_board.chordName = QStringLiteral("---");
    Click(m_sheet->cmdAdd);
    QCOMPARE(m_sheet->lstMain->RowCount(), 2);
    QCOMPARE(m_sheet->lstMain->RowText(0), QStringLiteral("Am - 011000"));
    QCOMPARE(m_sheet->lstMain->RowText(1), QStringLiteral("--- - 011000"));
    QCOMPARE(Text(), QString());
}

void FrmDiagsTest::RemovingARow() {
    Click(m_sheet->cmdAdd);
    m_board.chordName = QStringLiteral("B");
    Click(m_sheet->cmdAdd);
    m_sheet->lstMain->SelectRow(0);
    Click(m_sheet->cmdDel);
    QCOMPARE(m_sheet->lstMain->RowCount(), 1);
    QCOMPARE(m_sheet->lstMain->RowText(0), QStringLiteral("B - 011000"));
    QCOMPARE(m_sheet->lstMain->Row(), -1);
}

void FrmDiagsTest::RemovingNothing() {
    Click(m_sheet->cmdAdd);
    BoxSeen box;
    AnswerBox(box);
    Click(m_sheet->cmdDel);
    QVERIFY(box.seen);
    QCOMPARE(box.name, QStringLiteral("RunTimeError"));
    QCOMPARE(m_sheet->lstMain->RowCount(), 1);
}

void FrmDiagsTest::ClearingAsks_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("rows");
    QTest::newRow("Escape is No") << static_cast<int>(Qt::Key_Escape) << 1;
    QTest::newRow("Enter on the first button is Yes") << static_cast<int>(Qt::Key_Return) << 0;
}

void FrmDiagsTest::ClearingAsks() {
    QFETCH(const int, key);
    QFETCH(const int, rows);
    Click(m_sheet->cmdAdd);
    m_sheet->txtMain->setPlainText(QStringLiteral("text"));
    WhenModal<QMessageBox>([key](QMessageBox* box) {
        QCOMPARE(box->text(), QStringLiteral("Очистить весь список?"));
        QCOMPARE(box->windowTitle(), QStringLiteral("Подтвердите..."));
        QCOMPARE(box->icon(), QMessageBox::NoIcon);
        QCOMPARE(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
        QTest::keyClick(box, static_cast<Qt::Key>(key));
    });
    Click(m_sheet->cmdClear);
    QCOMPARE(m_sheet->lstMain->RowCount(), rows);
    QCOMPARE(Text(), QStringLiteral("text"));
}

void FrmDiagsTest::AddingKeepsTheSelection() {
    Click(m_sheet->cmdAdd);
    Click(m_sheet->cmdAdd);
    m_sheet->lstMain->SelectRow(0);
    Click(m_sheet->cmdAdd);
    QCOMPARE(m_sheet->lstMain->Row(), 0);
    Click(m_sheet->cmdDel);
    QCOMPARE(m_sheet->lstMain->RowCount(), 2);
}

void FrmDiagsTest::OnlyAClickOnOneRowInserts() {
    Click(m_sheet->cmdAdd);
    Click(m_sheet->cmdAdd);
    const ClickList* list = m_sheet->lstMain;
    const auto centre = [list](int row) {
        return list->visualRect(list->model()->index(row, 0)).center();
    };
    QTest::mousePress(list->viewport(), Qt::LeftButton, {}, centre(0));
    QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, centre(1));
    QTest::mousePress(list->viewport(), Qt::LeftButton, {}, {5, list->viewport()->height() - 5});
    QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, centre(1));
    QCOMPARE(Text(), QString());
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, centre(0));
    const QString once = Text();
    QVERIFY(!once.isEmpty());
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, centre(0)); // The second press...
    QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, centre(0));
    QCOMPARE(Text(), once); // ...of one double click.
}

void FrmDiagsTest::WritingTheList() {
    m_sheet->txtMain->setPlainText(QStringLiteral("a\nb"));
    m_sheet->txtMain->selectAll();
    Click(m_sheet->cmdMake);
    QCOMPARE(Text(), QStringLiteral("a\nb")); // An empty list inserts nothing.
    Click(m_sheet->cmdAdd);
    Click(m_sheet->cmdAdd);
    m_sheet->txtMain->setFocus();
    m_sheet->txtMain->selectAll();
    Click(m_sheet->cmdMake);
    QCOMPARE(Text(), QStringLiteral("Am - 011000 Am - 011000 "));
    QCOMPARE(m_sheet->focusWidget(), m_sheet->txtMain);
}

void FrmDiagsTest::ClickingARow() {
    Click(m_sheet->cmdAdd);
    m_board.chordName = QStringLiteral("B");
    Click(m_sheet->cmdAdd);
    ClickList* list = m_sheet->lstMain;
    const auto place = [list](int row) {
        return list->visualRect(list->model()->index(row, 0)).center();
    };
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place(1));
    QCOMPARE(Text(), QStringLiteral("B - 011000"));
    QCOMPARE(m_sheet->focusWidget(), m_sheet->txtMain);
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Up); // Only selects.
    QCOMPARE(list->Row(), 0);
    QCOMPARE(Text(), QStringLiteral("B - 011000"));
    QTest::keyClick(list, Qt::Key_Return);
    QCOMPARE(Text(), QStringLiteral("B - 011000Am - 011000"));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place(0));
    QCOMPARE(Text(), QStringLiteral("B - 011000Am - 011000Am - 011000"));
}

void FrmDiagsTest::Dashes_data() {
    QTest::addColumn<QString>("length");
    QTest::addColumn<int>("dashes");
    QTest::newRow("five") << QStringLiteral("5") << 5;
    QTest::newRow("empty") << QString() << 0;
    QTest::newRow("negative") << QStringLiteral("-5") << 0;
    QTest::newRow("no number") << QStringLiteral("abc") << 0;
    QTest::newRow("half to even") << QStringLiteral("2.5") << 2;
}

void FrmDiagsTest::Dashes() {
    QFETCH(const QString, length);
    QFETCH(const int, dashes);
    m_sheet->Text1->setText(length);
    Click(m_sheet->GoldButton2);
    QCOMPARE(Text(), QString(QString(dashes, u'-') + u'\n').repeated(6));
    QCOMPARE(m_sheet->focusWidget(), m_sheet->txtMain);
}

void FrmDiagsTest::DashesBeyondReason() {
    for (const auto& length : {QStringLiteral("1e9"), QStringLiteral("100000000")}) {
        m_sheet->Text1->setText(length);
        BoxSeen box;
        AnswerBox(box);
        Click(m_sheet->GoldButton2);
        QVERIFY(box.seen);
        QCOMPARE(Text(), QString());
    }
}

void FrmDiagsTest::CutCopyPaste() {
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

void FrmDiagsTest::PastingAPicture() {
    QApplication::clipboard()->setImage(QImage(4, 4, QImage::Format_RGB32));
    m_sheet->txtMain->setPlainText(QStringLiteral("kept"));
    m_sheet->txtMain->selectAll();
    Click(m_sheet->cmdPast);
    QCOMPARE(Text(), QStringLiteral("kept"));
}

void FrmDiagsTest::PastingNothing() {
    QApplication::clipboard()->setMimeData(nullptr);
    m_sheet->txtMain->setPlainText(QStringLiteral("kept"));
    m_sheet->txtMain->selectAll();
    Click(m_sheet->cmdPast);
    QCOMPARE(Text(), QStringLiteral("kept"));
}

void FrmDiagsTest::Undoing() {
    m_sheet->Text1->setText(QStringLiteral("3"));
    Click(m_sheet->GoldButton2);
    const QString lines = Text();
    QTest::keyClick(m_sheet->txtMain, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(Text(), QString()); // One step.
    QTest::keyClick(m_sheet->txtMain, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(Text(), lines);
}

void FrmDiagsTest::Filters() {
    const QStringList parts = FilterToNulls(QStringLiteral("a|*.a|b|*.b")).split(QChar(0));
    QCOMPARE(parts.join(u' '), QStringLiteral("a *.a b *.b"));
    QCOMPARE(FilterToNulls(QString()), QString());
}

void FrmDiagsTest::OpeningAFile_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("CR LF") << QByteArray("a\r\nb\r\n") << QStringLiteral("a\nb");
    QTest::newRow("no final line end") << QByteArray("a\r\nb") << QStringLiteral("a\nb");
    QTest::newRow("LF") << QByteArray("a\nb\n") << QStringLiteral("a\nb");
    QTest::newRow("CR") << QByteArray("a\rb\r") << QStringLiteral("a\nb");
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("an empty line at the end") << QByteArray("a\r\n\r\n") << QStringLiteral("a\n");
    QTest::newRow("Cyrillic") << ToAnsi(u"Аккорд Б5") << QStringLiteral("Аккорд Б5");
    QTest::newRow("NUL") << QByteArray("a\0b", 3) << QStringLiteral("a b");
    QTest::newRow("50,000 bytes") << QByteArray(50000, 'x') << QString(50000, u'x');
}

void FrmDiagsTest::OpeningAFile() {
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

void FrmDiagsTest::OpeningTooLargeAFile() {
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

void FrmDiagsTest::OpeningWhatIsNotThere() {
    const QString none = m_folder->filePath(QStringLiteral("none.txt"));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, SheetSize(none));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, ReadSheet(none));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, SheetSize(m_folder->path()));
}

void FrmDiagsTest::OpeningCancelled() {
    m_sheet->txtMain->setPlainText(QStringLiteral("kept"));
    AnswerFile(QString());
    Click(m_sheet->GoldButton1);
    QCOMPARE(Text(), QStringLiteral("kept"));
    AnswerFile(QString());
    Click(m_sheet->cmdSave);
    QCOMPARE(Text(), QStringLiteral("kept"));
}

void FrmDiagsTest::SavingAFile_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("an empty sheet is a line end") << QString() << QByteArray("\r\n");
    QTest::newRow("lines") << QStringLiteral("a\nb") << QByteArray("a\r\nb\r\n");
    QTest::newRow("Cyrillic") << QStringLiteral("Б") << QByteArray("\xC1\r\n");
    QTest::newRow("a no-break space") << QStringLiteral("a\u00A0b")
                                      << QByteArray("a\xA0"
                                                    "b\r\n");
}

void FrmDiagsTest::SavingAFile() {
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

void FrmDiagsTest::SavingAddsTheExtension() {
    AnswerFile(QStringLiteral("song"));
    Click(m_sheet->cmdSave);
    QCOMPARE(Bytes(QStringLiteral("song.txt")), QByteArray("\r\n"));
}

void FrmDiagsTest::SavingUnknownCharacters() {
    Write(QStringLiteral("s.txt"), "old");
    const QString path = m_folder->filePath(QStringLiteral("s.txt"));
    try {
        WriteSheet(path, QStringLiteral("a ♭ b ♯"));
        QFAIL("written");
    } catch (const RunTimeError& error) {
        QVERIFY(error.What().english.contains(QStringLiteral("♭♯")));
    }
    QCOMPARE(Bytes(QStringLiteral("s.txt")), QByteArray("old"));
}

void FrmDiagsTest::SavingWhereNothingCanBeWritten() {
    QVERIFY_THROWS_EXCEPTION(
        RunTimeError,
        WriteSheet(m_folder->filePath(QStringLiteral("no/s.txt")), QStringLiteral("a")));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, WriteSheet(m_folder->path(), QStringLiteral("a")));
}

void FrmDiagsTest::UnsavedTextIsAskedFor_data() {
    QTest::addColumn<int>("role");
    QTest::addColumn<bool>("may");
    QTest::newRow("discard") << static_cast<int>(QMessageBox::DestructiveRole) << true;
    QTest::newRow("cancel") << static_cast<int>(QMessageBox::RejectRole) << false;
}

void FrmDiagsTest::UnsavedTextIsAskedFor() {
    QFETCH(const int, role);
    QFETCH(const bool, may);
    QTest::keyClicks(m_sheet->txtMain, QStringLiteral("la la"));
    BoxSeen box;
    AnswerBox(box, static_cast<QMessageBox::ButtonRole>(role));
    QCOMPARE(m_sheet->MayEnd(), may);
    QVERIFY(box.seen);
    QCOMPARE(Text(), QStringLiteral("la la"));
}

void FrmDiagsTest::UntouchedSheetNeverAsks() {
    QVERIFY(m_sheet->MayEnd());
    Click(m_sheet->cmdAdd);
    QVERIFY(m_sheet->MayEnd());
    QTest::keyClicks(m_sheet->txtMain, QStringLiteral("x"));
    AnswerFile(QStringLiteral("s.txt"));
    Click(m_sheet->cmdSave);
    QVERIFY(m_sheet->MayEnd()); // Saved.
}

void FrmDiagsTest::OpeningOverUnsavedTextAsks() {
    QTest::keyClicks(m_sheet->txtMain, QStringLiteral("x"));
    BoxSeen box;
    AnswerBox(box, QMessageBox::RejectRole);
    Click(m_sheet->GoldButton1);
    QVERIFY(box.seen);
    QCOMPARE(box.name, QStringLiteral("UnsavedSheet"));
    QCOMPARE(Text(), QStringLiteral("x"));
}

void FrmDiagsTest::ClosingKeepsEverything() {
    Click(m_sheet->cmdAdd);
    QTest::keyClicks(m_sheet->txtMain, QStringLiteral("x"));
    QVERIFY(m_sheet->close());
    m_sheet->show();
    QCOMPARE(m_sheet->lstMain->RowCount(), 1);
    QCOMPARE(Text(), QStringLiteral("x"));
}

void FrmDiagsTest::Resizing() {
    m_sheet->resize(1000, 700);
    QCoreApplication::processEvents();
    const auto pixels = [this](int twips) {
        return qRound(twips * m_sheet->logicalDpiX() / 1440.0);
    };
    const QPlainTextEdit* text = m_sheet->txtMain;
    QCOMPARE(text->width(), 1000 - text->x() - pixels(200));
    QCOMPARE(text->height(), 700 - text->y() - pixels(500));
    QCOMPARE(m_sheet->lstMain->height(), 700 - m_sheet->lstMain->y() - pixels(400));
    // Whatever the system calls its fixed font, all letters are as wide.
    for (const QChar letter : {u'i', u'W', u'Ж'})
        QCOMPARE(text->fontMetrics().horizontalAdvance(letter),
                 text->fontMetrics().horizontalAdvance(u'0'));
}

void FrmDiagsTest::Shortcuts() {
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

int main(int argc, char** argv) {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    Application application(argc, argv);
    FrmDiagsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "frmdiags_test.moc"
