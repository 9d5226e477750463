// The diagram sheet through its real window: the list of fingerings, and the window itself.
#include "sheet.h"


class FrmDiagsTest : public QObject, private Sheet {
    Q_OBJECT

private Q_SLOTS:
    void init() { Reset(); }

    void Codes_data() {
        QTest::addColumn<int>("barre");
        QTest::addColumn<QList<int>>("marks");
        QTest::addColumn<QString>("code");
        const int none = -1;
        QTest::newRow("nothing on the board")
            << 0 << QList{none, none, none, none, none, none} << QStringLiteral("Am - 000000");
        QTest::newRow("without a barre")
            << 0 << QList{none, 1, 1, none, none, none} << QStringLiteral("Am - 011000");
        QTest::newRow("over a barre")
            << 5 << QList{none, none, none, 7, 7, none} << QStringLiteral("Am - Б5/000220");
        QTest::newRow("below the barre")
            << 5 << QList{4, none, none, none, none, none} << QStringLiteral("Am - Б5/-100000");
        QTest::newRow("two digits")
            << 0 << QList{12, none, none, none, none, 16} << QStringLiteral("Am - 12000016");
        QTest::newRow("a mark off the board")
            << 0 << QList{0, none, none, none, none, none} << QStringLiteral("Am - 000000");
        QTest::newRow("a mark off the board with a barre")
            << 2 << QList{0, none, none, none, none, none} << QStringLiteral("Am - Б2/-200000");
    }
    void Codes() {
        QFETCH(const int, barre);
        QFETCH(const QList<int>, marks);
        QFETCH(const QString, code);
        BoardFingering board{
            QStringLiteral("Am"), barre > 0 ? std::optional(barre) : std::nullopt, {}};
        for (int row = 0; row < 6; ++row)
            if (marks[row] >= 0)
                board.marks[static_cast<std::size_t>(row)] = marks[row];
        QCOMPARE(FingeringCode(board), code);
    }

    void Titles() {
        QCOMPARE(m_sheet->windowTitle(), QStringLiteral("Диаграмма аккордов"));
        m_state.LanguageFile = QStringLiteral("/x.lng");
        QCOMPARE(frmDiags(m_state, [] { return BoardFingering{}; }).windowTitle(),
                 QStringLiteral("Tonvik Diags"));
    }

    void EveryColumnHasAHeadingOverIt() {
        const auto over = [](const QWidget* heading, const QWidget* column) {
            return heading->x() == column->x() &&
                   heading->geometry().bottom() < column->geometry().top();
        };
        QVERIFY(over(m_sheet->lblRows, m_sheet->lstMain));
        m_sheet->resize(m_sheet->size() + QSize(200, 50));
        QVERIFY(over(m_sheet->lblPages, m_sheet->picPage));
        QVERIFY(over(m_sheet->lblText, m_sheet->txtMain));
        QCOMPARE(m_sheet->lblLength->text(), QStringLiteral("Длина линий:"));
        QVERIFY(m_sheet->lblLength->geometry().right() < m_sheet->Text1->geometry().left());
        QVERIFY(!m_sheet->lblLength->IsCut());
        QVERIFY(m_sheet->txtMain->placeholderText().contains(QStringLiteral("текст песни")));
    }

    void Adding() {
        Click(m_sheet->cmdAdd);
        m_board.chordName = QStringLiteral("---");
        Click(m_sheet->cmdAdd);
        QCOMPARE(m_sheet->lstMain->RowCount(), 2);
        QCOMPARE(m_sheet->lstMain->RowText(0), QStringLiteral("Am - 011000"));
        QCOMPARE(m_sheet->lstMain->RowText(1), QStringLiteral("--- - 011000"));
        QCOMPARE(Text(), QString());
    }

    void RemovingARow() {
        Click(m_sheet->cmdAdd);
        m_board.chordName = QStringLiteral("B");
        Click(m_sheet->cmdAdd);
        m_sheet->lstMain->SelectRow(0);
        Click(m_sheet->cmdDel);
        QCOMPARE(m_sheet->lstMain->RowCount(), 1);
        QCOMPARE(m_sheet->lstMain->RowText(0), QStringLiteral("B - 011000"));
        QCOMPARE(m_sheet->lstMain->Row(), -1);
    }

    void RemovingNothing() {
        Click(m_sheet->cmdAdd);
        BoxSeen box;
        AnswerBox(box);
        Click(m_sheet->cmdDel);
        QVERIFY(box.seen);
        QCOMPARE(box.name, QStringLiteral("RunTimeError"));
        QCOMPARE(box.text, QStringLiteral("В списке диаграмм не выбрана строка."));
        QCOMPARE(m_sheet->lstMain->RowCount(), 1);
    }

    void ClearingAsks_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("rows");
        QTest::newRow("Escape is No") << static_cast<int>(Qt::Key_Escape) << 1;
        QTest::newRow("Enter on the first button is Yes") << static_cast<int>(Qt::Key_Return) << 0;
    }
    void ClearingAsks() {
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

    void AddingKeepsTheSelection() {
        Click(m_sheet->cmdAdd);
        Click(m_sheet->cmdAdd);
        m_sheet->lstMain->SelectRow(0);
        Click(m_sheet->cmdAdd);
        QCOMPARE(m_sheet->lstMain->Row(), 0);
        Click(m_sheet->cmdDel);
        QCOMPARE(m_sheet->lstMain->RowCount(), 2);
    }

    void OnlyAClickOnOneRowInserts() {
        Click(m_sheet->cmdAdd);
        Click(m_sheet->cmdAdd);
        const ClickList* list = m_sheet->lstMain;
        const auto centre = [list](int row) {
            return list->visualRect(list->model()->index(row, 0)).center();
        };
        QTest::mousePress(list->viewport(), Qt::LeftButton, {}, centre(0));
        QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, centre(1));
        QTest::mousePress(list->viewport(), Qt::LeftButton, {},
                          {5, list->viewport()->height() - 5});
        QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, centre(1));
        QCOMPARE(Text(), QString());
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, centre(0));
        const QString once = Text();
        QVERIFY(!once.isEmpty());
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, centre(0)); // The second press...
        QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, centre(0));
        QCOMPARE(Text(), once); // ...of one double click.
    }

    void WritingTheList() {
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

    void ClickingARow() {
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

    void ClosingKeepsEverything() {
        Click(m_sheet->cmdAdd);
        Type(m_sheet->txtMain, QStringLiteral("x"));
        QVERIFY(m_sheet->close());
        m_sheet->show();
        QCOMPARE(m_sheet->lstMain->RowCount(), 1);
        QCOMPARE(Text(), QStringLiteral("x"));
    }

    void Resizing() {
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

    void AnAddedRowIsScrolledTo() {
        const ClickList* list = m_sheet->lstMain;
        for (int row = 0; row < 60; ++row) {
            Click(m_sheet->cmdAdd);
            QVERIFY(list->viewport()->rect().intersects(
                list->visualRect(list->model()->index(row, 0))));
        }
    }

    void AMinimisedSheetIsNotLaidOut() {
        const QRect before = m_sheet->txtMain->geometry();
        m_sheet->setWindowState(Qt::WindowMinimized);
        m_sheet->resize(900, 800);
        QCoreApplication::processEvents();
        QCOMPARE(m_sheet->txtMain->geometry(), before);
    }

    void AMinimisedSheetComesUp() {
        m_sheet->showMinimized();
        m_sheet->OpenBeside({});
        QVERIFY(!m_sheet->isMinimized());
        QVERIFY(m_sheet->isVisible());
    }

    void TheSheetRemembersItsPlace() {
        m_sheet->close();
        const QRect seen(0, 0, 100, 100);
        m_sheet->OpenBeside(seen);
        m_sheet->move(31, 47);
        m_sheet->resize(m_sheet->size() + QSize(3, 5));
        const QSize size = m_sheet->size();
        m_sheet->close();
        m_sheet->OpenBeside(seen);
        QCOMPARE(m_sheet->pos(), QPoint(31, 47));
        QCOMPARE(m_sheet->size(), size);
    }

    void TheSheetOpensBesideWhatIsSeen() {
        m_sheet = std::make_unique<frmDiags>(m_state, [this] { return m_board; });
        const QRect screen = m_sheet->screen()->availableGeometry();
        const QRect seen(screen.topLeft(), QSize(screen.width(), 40));
        m_sheet->OpenBeside(seen);
        QVERIFY(!m_sheet->frameGeometry().intersects(seen));
    }
};

int main(int argc, char** argv) {
    return RunSheetTest<FrmDiagsTest>(argc, argv);
}
#include "frmdiags_test.moc"
