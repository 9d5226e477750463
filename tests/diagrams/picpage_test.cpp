// The pages beside the text: what is seen, clicked, exported, imported and brought back.
#include "sheet.h"

#include "diagrams/sheetexport.h"

#include <QClipboard>
#include <QMenu>
#include <QMimeData>

class PicPageTest : public QObject, private Sheet {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        Reset();
        m_state.AppPath = QStringLiteral(TONVIK_PRINT_FOLDER);
        m_laid.clear();
        m_sheet->SetLay([this](const Shape& shape) { m_laid += FretsText(shape); });
    }

    void PagesFollowTheText() {
        QCOMPARE(Diagrams().size(), 0U);
        Type(m_sheet->txtMain, QStringLiteral("Am - 012200"));
        QCoreApplication::processEvents();
        QCOMPARE(Diagrams().size(), 1U);
        QCOMPARE(Diagrams()[0].diagram.name, QStringLiteral("Am"));
        QTest::keyClick(m_sheet->txtMain, Qt::Key_Backspace);
        QCoreApplication::processEvents();
        QCOMPARE(Diagrams().size(), 0U); // Five numbers are text.
    }

    void DotsAreSeen() {
        Show(QStringLiteral("Am - 012200"));
        const PlacedDiagram& placed = Diagrams().at(0);
        const DiagramLayout layout(placed.diagram);
        const QImage seen = m_sheet->picPage->viewport()->grab().toImage();
        const auto lightness = [&](int fret) {
            QRectF dot = layout.DotRect(2, fret);
            dot.translate(placed.place.topLeft());
            const QPointF place = m_sheet->picPage->ToPixels(0, dot).center();
            return seen.pixelColor(place.toPoint()).lightness();
        };
        QVERIFY(lightness(1) < 128);
        QVERIFY(lightness(2) > lightness(1));
    }

    void AClickSelectsTheCode() {
        Show(QStringLiteral("x\nAm - 012200 C - 010230"));
        ClickDiagram(1);
        QCOMPARE(m_sheet->txtMain->SelectedText(), QStringLiteral("C - 010230"));
        QCOMPARE(m_laid, QStringList());
    }

    void ADoubleClickLaysTheShape() {
        Show(QStringLiteral("Am - 012200 F - Б1/001220"));
        const QPoint place = Place(1);
        QTest::mouseDClick(m_sheet->picPage->viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(m_laid, QStringList(QStringLiteral("133211")));
    }

    void TheKeyboardGoesFromOneToTheNext() {
        Show(QStringLiteral("Am - 012200 C - 010230"));
        m_sheet->picPage->setFocus();
        QTest::keyClick(m_sheet->picPage, Qt::Key_Right);
        QCOMPARE(m_sheet->txtMain->SelectedText(), QStringLiteral("Am - 012200"));
        QTest::keyClick(m_sheet->picPage, Qt::Key_Right);
        QTest::keyClick(m_sheet->picPage, Qt::Key_Right);
        QCOMPARE(m_sheet->txtMain->SelectedText(), QStringLiteral("C - 010230"));
        QTest::keyClick(m_sheet->picPage, Qt::Key_Return);
        QCOMPARE(m_laid, QStringList(QStringLiteral("032010")));
    }

    void CollectedRowsKeepTheirShape() {
        m_board.shape = ReadShape(u"xx0110");
        Click(m_sheet->cmdAdd);
        Click(m_sheet->cmdMake);
        QCoreApplication::processEvents();
        QCOMPARE(FretsText(Diagrams().at(0).diagram.shape), QStringLiteral("xx0110"));
        Show(QStringLiteral("Am - 011001"));
        QCOMPARE(FretsText(Diagrams().at(0).diagram.shape), QStringLiteral("100110"));
    }

    void TheOrderOfTheStringsIsTheNecks() {
        m_state.ThinStringAtBottom = false;
        Show(QStringLiteral("Am - 002210"));
        QCOMPARE(FretsText(Diagrams().at(0).diagram.shape), QStringLiteral("002210"));
    }

    void ADiagramIsCopied() {
        Show(QStringLiteral("Am - 012200"));
        Choose(0);
        const QMimeData* copied = QApplication::clipboard()->mimeData();
        QCOMPARE(copied->text(), QStringLiteral("002210"));
        QVERIFY(copied->hasImage());
    }

    void ADiagramIsSaved_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("beginning");
        QTest::newRow("SVG") << QStringLiteral("d.svg") << QByteArray("<?xml");
        QTest::newRow("PNG") << QStringLiteral("d.png") << QByteArray("\x89PNG");
    }
    void ADiagramIsSaved() {
        QFETCH(const QString, name);
        Show(QStringLiteral("Am - 012200"));
        m_afterMenu = [this, name] { AnswerFile(name); };
        Choose(1);
        m_afterMenu = {};
        QTEST(Bytes(name).first(5).first(name.endsWith(u'g') && name.contains(u'p') ? 4 : 5),
              "beginning");
    }

    void Exports_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("written");
        QTest::addColumn<QByteArray>("beginning");
        const auto row = [](const char* rule, const char* name, const char* written,
                            const QByteArray& beginning) {
            QTest::newRow(rule) << QString::fromLatin1(name) << QString::fromLatin1(written)
                                << beginning;
        };
        row("PDF", "s.pdf", "s.pdf", "%PDF");
        row("SVG", "s.svg", "s.svg", "<?xml");
        row("PNG", "s.png", "s.png", "\x89PNG");
        row("capital letters", "s.PNG", "s.PNG", "\x89PNG");
        row("ChordPro", "s.cho", "s.cho", "{define: Am base-fret 1 frets 0 0 2 2 1 0 fingers");
        row("another suffix of it", "s.crd", "s.crd", "{define: Am");
        row("no suffix: the filter's", "s", "s.pdf", "%PDF");
        row("a foreign suffix: the filter's behind it", "s.txt", "s.txt.pdf", "%PDF");
    }
    void Exports() {
        QFETCH(const QString, name);
        QFETCH(const QString, written);
        QFETCH(const QByteArray, beginning);
        Show(QStringLiteral("Am - 012200\nПривет"));
        AnswerFile(name);
        Click(m_sheet->cmdExport);
        QVERIFY(m_sheet->lblSaved->text().contains(u"«" + written + u"»"));
        QCOMPARE(Bytes(written).first(beginning.size()), beginning);
        QCOMPARE(m_folder->Names(), QStringList(written));
    }

    void ExportsOverSeveralFilesAsk_data() {
        QTest::addColumn<int>("role");
        QTest::addColumn<bool>("replaced");
        QTest::newRow("yes") << static_cast<int>(QMessageBox::YesRole) << true;
        QTest::newRow("no") << static_cast<int>(QMessageBox::NoRole) << false;
    }
    void ExportsOverSeveralFilesAsk() {
        QFETCH(const int, role);
        QFETCH(const bool, replaced);
        Write(QStringLiteral("s-2.svg"), "old");
        Show(QStringLiteral("a\n{np}\nb"));
        BoxSeen box;
        AnswerFile(QStringLiteral("s.svg"));
        m_afterFile = [&box, role] { AnswerBox(box, static_cast<QMessageBox::ButtonRole>(role)); };
        Click(m_sheet->cmdExport);
        QCOMPARE(box.name, QStringLiteral("ReplaceFiles"));
        QVERIFY(box.text.contains(QStringLiteral("s-2.svg")));
        QCOMPARE(Bytes(QStringLiteral("s-2.svg")) != "old", replaced);
        QCOMPARE(Bytes(QStringLiteral("s.svg")) != "(missing)", replaced);
        QCOMPARE(!m_sheet->lblSaved->text().isEmpty(), replaced);
    }

    void ExportsThatFailAreReported() {
        Show(QStringLiteral("a"));
        m_state.AppPath = m_folder->Path();
        QVERIFY(m_folder->MakeFolder(QStringLiteral("gone")));
        AnswerFile(QStringLiteral("gone/s.png"));
        BoxSeen box;
        m_afterFile = [this, &box] {
            QVERIFY(QDir(m_folder->Path()).rmdir(QStringLiteral("gone")));
            AnswerBox(box);
        };
        Click(m_sheet->cmdExport);
        QVERIFY(box.seen);
        QCOMPARE(Text(), QStringLiteral("a"));
    }

    void ImportsTakeTheTextUnchanged() {
        const QString song = QStringLiteral("{title: ♭ 雪}\n\n[Am]x  \n");
        Write(QStringLiteral("s.cho"), song.toUtf8());
        AnswerFile(QStringLiteral("s.cho"));
        Click(m_sheet->cmdImport);
        QCOMPARE(m_sheet->txtMain->Text() + u'\n', song);
        QVERIFY(m_sheet->MayEnd()); // Nothing is lost: it lies in its file.
        AnswerFile(QStringLiteral("out.cho"));
        Click(m_sheet->cmdExport);
        QCOMPARE(Bytes(QStringLiteral("out.cho")), song.toUtf8());
    }

    void ImportsOverAMegabyteAreRefused_data() {
        QTest::addColumn<int>("size");
        QTest::addColumn<bool>("taken");
        QTest::newRow("1,000,000 bytes") << 1'000'000 << true;
        QTest::newRow("one more") << 1'000'001 << false;
        QTest::newRow("10 MB") << 10'000'000 << false;
    }
    void ImportsOverAMegabyteAreRefused() {
        QFETCH(const int, size);
        QFETCH(const bool, taken);
        Write(QStringLiteral("s.cho"),
              QByteArray("a line of a song and its end\n").repeated(size / 29 + 1).first(size));
        AnswerFile(QStringLiteral("s.cho"));
        BoxSeen box;
        if (!taken)
            m_afterFile = [&box] { AnswerBox(box); };
        Click(m_sheet->cmdImport);
        QCOMPARE(box.seen, !taken);
        QCOMPARE(!Text().isEmpty(), taken);
    }

    void ImportsOfNoTextAreRefused() {
        Write(QStringLiteral("s.cho"), QByteArray("\x7f\0\1", 3));
        Show(QStringLiteral("kept"));
        m_sheet->txtMain->document()->setModified(false);
        AnswerFile(QStringLiteral("s.cho"));
        BoxSeen box;
        m_afterFile = [&box] { AnswerBox(box); };
        Click(m_sheet->cmdImport);
        QVERIFY(box.seen);
        QCOMPARE(Text(), QStringLiteral("kept"));
    }

    void ImportsOverUnsavedTextAsk() {
        Type(m_sheet->txtMain, QStringLiteral("x"));
        BoxSeen box;
        AnswerBox(box, QMessageBox::RejectRole);
        Click(m_sheet->cmdImport);
        QCOMPARE(box.name, QStringLiteral("UnsavedSheet"));
        QCOMPARE(Text(), QStringLiteral("x"));
    }

private:
    const std::vector<PlacedDiagram>& Diagrams() const {
        return m_sheet->picPage->Pages().at(0).diagrams;
    }
    void Show(const QString& text) {
        m_sheet->txtMain->setPlainText(text);
        QCoreApplication::processEvents();
    }
    QPoint Place(std::size_t diagram) const {
        return m_sheet->picPage->ToPixels(0, Diagrams().at(diagram).place).center().toPoint();
    }
    void ClickDiagram(std::size_t diagram) {
        QTest::mouseClick(m_sheet->picPage->viewport(), Qt::LeftButton, {}, Place(diagram));
    }
    // Chooses from the menu of the first diagram.
    void Choose(int action) {
        QTimer::singleShot(0, m_sheet.get(), [this, action] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QVERIFY(menu != nullptr);
            if (m_afterMenu)
                m_afterMenu();
            menu->setActiveAction(menu->actions().at(action));
            QTest::keyClick(menu, Qt::Key_Return);
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, Place(0),
                                m_sheet->picPage->viewport()->mapToGlobal(Place(0)));
        QCoreApplication::sendEvent(m_sheet->picPage->viewport(), &event);
    }

    QStringList m_laid;
    std::function<void()> m_afterMenu;
};

int main(int argc, char** argv) {
    return RunSheetTest<PicPageTest>(argc, argv);
}
#include "picpage_test.moc"
