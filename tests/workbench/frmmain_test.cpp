// The main window, driven by real mouse events.
#include "controls/application.h"
#include "controls/colours.h"
#include "controls/upscrollbar.h"
#include "core/runtimeerror.h"
#include "support/dialogs.h"
#include "support/mainwindow.h"

namespace {

// In pixels per twip: the window still fits on a small screen, and a little less by rounding.
constexpr double smallestScale = 0.849 / 15;

QPointF Crossing(int row, int fret) {
    return {(fret - 0.5) * 480, FretboardLayout::StringY(row)};
}

} // namespace

class FrmMainTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_main = std::make_unique<MainWindow>(); }
    void cleanup() { m_main.reset(); }

    void AfterStartUp();
    void NamesAreUnique();
    void PicturesShareOneScale();
    void ChoosingByMouse();
    void ClickingTheSelectedRowAgain();
    void DeselectingStopsTheHandlers();
    void DoubleClickTellsTheNotations();
    void DoubleClickWithNothingSelected();
    void FindingAType();
    void FindingNothing();
    void ScaleHidesTheFingers();
    void KeysByMouse();
    void KeyAtTheFarRight();
    void MarksArePainted();
    void FretsByMouse();
    void PressOnALine();
    void PressBesideTheRows();
    void DoubleClickIsTwoPresses();
    void RightClickClears();
    void RightClickTakesTheBarreOff();
    void BarreIsDragged();
    void BarreIsPainted();
    void FretNumberTogglesTheBarre();
    void ErrorsOfTheFretboardAreIgnored();
    void BarreButtonWithoutExtentReports();
    void Highlights();
    void Handles();
    void MutedStrings();
    void MissingRootIsRed();
    void NothingIsMissingWithoutMarks();
    void AnOpenDropDownKeepsItsKeys();
    void TheGrooveMovesTheBarTowardsTheClick();
    void AMutedStringStaysStruckOut();
    void ChoosingTheBarreFretAgain();
    void ScrollBarWritesTheString();
    void Transfer();
    void OrientationsSwapTheGauges();
    void ResizingKeepsLabelsAligned_data();
    void ResizingKeepsLabelsAligned();
    void ClosingAsksFirst();

private:
    std::unique_ptr<MainWindow> m_main;
};

void FrmMainTest::AfterStartUp() {
    QCOMPARE(m_main->window.windowTitle(), QStringLiteral("Тонвик"));
    QCOMPARE(m_main->window.lstType->RowCount(), 50);
    QCOMPARE(m_main->window.lstBase->RowCount(), 12);
    QCOMPARE(m_main->window.lstLad->RowCount(), 66);
    QCOMPARE(m_main->window.lstType->RowText(49), QStringLiteral("9sus4"));
    QCOMPARE(m_main->Text(QStringLiteral("lblChord")), QStringLiteral("C"));
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QStringLiteral("C E G "));
    QCOMPARE(m_main->Text(QStringLiteral("lblNoS")), QStringLiteral("   "));
    QCOMPARE(m_main->Find<QComboBox>(QStringLiteral("lstWhat"))->currentText(),
             QStringLiteral("быстро"));
    QCOMPARE(m_main->Find<QComboBox>(QStringLiteral("lstTemp"))->currentText(),
             QStringLiteral("1 раз"));
    QCOMPARE(m_main->Find<QComboBox>(QStringLiteral("lstBarre"))->currentText(),
             QStringLiteral("6 струн"));
    QCOMPARE(m_main->window.lstBarre->count(), 6);
    QCOMPARE(m_main->window.lstLadBarre->count(), 15);
    QCOMPARE(m_main->window.lstLadBarre->itemText(14), QStringLiteral("15 лад"));
    QCOMPARE(m_main->window.txtFind->text(), QStringLiteral("Введите тип аккорда"));
    QCOMPARE(m_main->window.txtStr->text(), QStringLiteral("1"));
    QCOMPARE(m_main->Find(QStringLiteral("Label4(5)"))->property("Tag").toString(),
             QStringLiteral("44"));
}

void FrmMainTest::NamesAreUnique() {
    QStringList names;
    for (const QWidget* widget : m_main->window.findChildren<QWidget*>())
        if (!widget->objectName().isEmpty() && !widget->objectName().startsWith(u"qt_"))
            names += widget->objectName();
    QCOMPARE(names.removeDuplicates(), 0);
    QVERIFY(names.contains(QStringLiteral("picKeyboard")));
}

void FrmMainTest::PicturesShareOneScale() {
    QVERIFY(std::abs(m_main->board->Scale() / m_main->keyboard->Scale() - 1) < 0.002);
    QVERIFY(m_main->board->Scale() >= smallestScale);
    QVERIFY(std::abs(m_main->board->height() - 2175 * m_main->board->Scale()) <= 1);
}

void FrmMainTest::ChoosingByMouse() {
    m_main->ClickRow(m_main->window.lstBase, 4);
    QCOMPARE(m_main->Text(QStringLiteral("lblChord")), QStringLiteral("E"));
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QStringLiteral("E G# B "));
    m_main->ClickRow(m_main->window.lstType, 1);
    QCOMPARE(m_main->Text(QStringLiteral("lblChord")), QStringLiteral("Em"));
    QCOMPARE(m_main->Find(QStringLiteral("lblChord"))->toolTip(),
             QStringLiteral("m, min, -, minor"));
}

void FrmMainTest::ClickingTheSelectedRowAgain() {
    m_main->Click(m_main->keyboard, KeyboardLayout::FreeArea(2).center());
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QStringLiteral("C D E G "));
    m_main->ClickRow(m_main->window.lstType, 0);
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QStringLiteral("C E G "));
    m_main->Click(m_main->keyboard, KeyboardLayout::FreeArea(2).center());
    m_main->ClickRow(m_main->window.lstBase, 0);
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QStringLiteral("C E G "));
}

void FrmMainTest::DeselectingStopsTheHandlers() {
    m_main->window.lstType->SelectRow(-1);
    m_main->ClickRow(m_main->window.lstBase, 4);
    QCOMPARE(m_main->Text(QStringLiteral("lblChord")), QStringLiteral("C"));
}

void FrmMainTest::DoubleClickTellsTheNotations() {
    BoxSeen box;
    AnswerBox(box);
    const QModelIndex row = m_main->window.lstType->model()->index(1, 0);
    m_main->ClickRow(m_main->window.lstType, 1);
    QTest::mouseDClick(m_main->window.lstType->viewport(), Qt::LeftButton, {},
                       m_main->window.lstType->visualRect(row).center());
    QVERIFY(box.seen);
    QCOMPARE(box.text, QStringLiteral("m, min, -, minor"));
    QCOMPARE(box.title, QStringLiteral("Аккорд:"));
    QCOMPARE(box.icon, QMessageBox::Information);
    QCOMPARE(box.buttons, QMessageBox::Ok);
}

void FrmMainTest::DoubleClickWithNothingSelected() {
    m_main->window.lstType->SelectRow(-1);
    QVERIFY_THROWS_EXCEPTION(RunTimeError, m_main->window.lstType_DblClick());
}

void FrmMainTest::FindingAType() {
    m_main->window.txtFind->setText(QStringLiteral("5+"));
    QTest::mouseClick(m_main->window.cmdFind, Qt::LeftButton);
    QCOMPARE(m_main->window.lstType->Row(), 2);
    QCOMPARE(m_main->Text(QStringLiteral("lblChord")), QStringLiteral("Caug"));
    m_main->Click(m_main->keyboard, KeyboardLayout::FreeArea(2).center());
    QTest::mouseClick(m_main->window.cmdFind, Qt::LeftButton); // Found again: spelled again.
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QStringLiteral("C E G# "));
}

void FrmMainTest::FindingNothing() {
    BoxSeen box;
    AnswerBox(box);
    QTest::mouseClick(m_main->window.cmdFind, Qt::LeftButton);
    QVERIFY(box.seen);
    QCOMPARE(box.text, QStringLiteral("Такого типа аккорда нет в базе данных программы."));
    QCOMPARE(box.title, QStringLiteral("Find"));
    QCOMPARE(box.icon, QMessageBox::Information);
    QCOMPARE(m_main->window.lstType->Row(), 0);
}

void FrmMainTest::ScaleHidesTheFingers() {
    m_main->ClickRow(m_main->window.lstLad, 0);
    QCOMPARE(m_main->Text(QStringLiteral("lblChord")), QStringLiteral("C Harmonic Minor"));
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QStringLiteral("C D D# F G G# B "));
    QCOMPARE(m_main->Text(QStringLiteral("Label4"), 4), QStringLiteral("A"));
    QVERIFY(!m_main->workbench.Row(4).mark);
}

void FrmMainTest::KeysByMouse() {
    m_main->Click(m_main->keyboard, {1, 1}, Qt::RightButton);
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QString());
    m_main->Click(m_main->keyboard, KeyboardLayout::FreeArea(9).center());
    m_main->Click(m_main->keyboard, {123 * 1.5, 100}); // A zone of C#.
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QStringLiteral("C# A "));
    m_main->Click(m_main->keyboard, KeyboardLayout::FreeArea(9).center());
    m_main->Click(m_main->keyboard, {123 * 1.5, 100});
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QString());
    QCOMPARE(m_main->workbench.Keys().Fill(1), blackKeyColour);
    QCOMPARE(m_main->workbench.Keys().Fill(9), whiteKeyColour);
    m_main->Click(m_main->keyboard, {360, 1300}); // On a border.
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QString());
}

void FrmMainTest::KeyAtTheFarRight() {
    m_main->Click(m_main->keyboard, {1, 1}, Qt::MiddleButton); // Any but the left one clears.
    m_main->Click(m_main->keyboard, {7572, 1400});
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QString());
    Q_EMIT m_main->keyboard->MouseDown(Qt::LeftButton, {7700, 100});
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QStringLiteral("C "));
}

void FrmMainTest::MarksArePainted() {
    for (int key = 0; key < keyCount; ++key) {
        const bool marked = key == 0 || key == 4 || key == 7;
        const QColor own = IsBlackKey(key) ? Colours::blackKey : Colours::whiteKey;
        QCOMPARE(m_main->Pixel(m_main->keyboard, KeyboardLayout::FreeArea(key).center()),
                 marked ? Colours::mark : own);
    }
    QCOMPARE(m_main->Pixel(m_main->board, FretboardLayout().MarkCentre(1, 1)), Colours::mark);
    QCOMPARE(m_main->Pixel(m_main->board, FretboardLayout().MarkCentre(3, 2)), Colours::mark);
    QVERIFY(m_main->Pixel(m_main->board, FretboardLayout().MarkCentre(0, 1)) != Colours::mark);
}

void FrmMainTest::FretsByMouse() {
    m_main->Click(m_main->board, Crossing(0, 5));
    QCOMPARE(m_main->Text(QStringLiteral("Label4"), 0), QStringLiteral("A"));
    QCOMPARE(m_main->Pixel(m_main->board, FretboardLayout().MarkCentre(0, 5)), Colours::mark);
    QCOMPARE(m_main->Text(QStringLiteral("Label4"), 1), QStringLiteral("C")); // The others stay.
    m_main->Click(m_main->board, {7208, FretboardLayout::StringY(2)});
    QCOMPARE(m_main->workbench.Row(2).mark, std::optional(16));
    m_main->Click(m_main->board, Crossing(0, 3), Qt::MiddleButton); // Any but the right one.
    QCOMPARE(m_main->workbench.Row(0).mark, std::optional(3));
}

void FrmMainTest::PressOnALine() {
    m_main->Click(m_main->board, {480, FretboardLayout::StringY(4)});
    QCOMPARE(m_main->workbench.Row(4).mark, std::optional(0));
    QCOMPARE(m_main->Text(QStringLiteral("Label4"), 4), QStringLiteral("A"));
}

void FrmMainTest::PressBesideTheRows() {
    m_main->Click(m_main->board, {240, 420});
    m_main->Click(m_main->board, {240, 30});
    QCOMPARE(m_main->workbench.Row(5).mark, std::nullopt);
    QCOMPARE(m_main->workbench.Row(4).mark, std::optional(3));
}

void FrmMainTest::DoubleClickIsTwoPresses() {
    const QPointF place = KeyboardLayout::FreeArea(2).center();
    m_main->Click(m_main->keyboard, place);
    QVERIFY(m_main->workbench.Keys().IsMarked(2));
    QMouseEvent second(QEvent::MouseButtonDblClick, place * m_main->keyboard->Scale(), {},
                       Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(m_main->keyboard, &second);
    QVERIFY(!m_main->workbench.Keys().IsMarked(2));
}

void FrmMainTest::RightClickClears() {
    m_main->Click(m_main->board, {100, 100}, Qt::RightButton);
    for (int row = 0; row < stringCount; ++row)
        QVERIFY(!m_main->workbench.Row(row).mark);
    QCOMPARE(m_main->Text(QStringLiteral("Label4"), 1), QStringLiteral("B"));
    QCOMPARE(m_main->Text(QStringLiteral("lblNoS")), QString());
}

void FrmMainTest::RightClickTakesTheBarreOff() {
    QTest::mouseClick(m_main->window.cmdMakeBarre, Qt::LeftButton);
    QVERIFY(m_main->workbench.ShownBarre());
    m_main->Click(m_main->board, {247, 1000}, Qt::RightButton);
    QVERIFY(!m_main->workbench.ShownBarre());
    QCOMPARE(m_main->Text(QStringLiteral("Label4"), 1), QStringLiteral("B"));
}

void FrmMainTest::BarreIsDragged() {
    QTest::mouseClick(m_main->window.cmdMakeBarre, Qt::LeftButton);
    const auto marks = m_main->workbench.Row(1).mark;
    m_main->Press(m_main->board, {247, 30}); // Anywhere in its column.
    QCOMPARE(m_main->workbench.Row(1).mark, marks);
    m_main->Release(m_main->board, {247, 30});
    const QString note = m_main->Text(QStringLiteral("Label4"), 1);
    m_main->Press(m_main->board, {247, FretboardLayout::StringY(1)}); // Also on a string.
    QCOMPARE(m_main->workbench.Row(1).mark, marks);
    QCOMPARE(m_main->Text(QStringLiteral("Label4"), 1), note);
    m_main->Move(m_main->board, {247 + 450, 30});
    QCOMPARE(m_main->window.lstLadBarre->currentIndex(), 1);
    QCOMPARE(m_main->workbench.ShownBarre()->fret, 2);
    m_main->Move(m_main->board, {247 + 480 + 300, 30});
    QCOMPARE(m_main->window.lstLadBarre->currentIndex(), 1);
    for (int move = 0; move < 20; ++move)
        m_main->Move(m_main->board, {7200, 30});
    QCOMPARE(m_main->window.lstLadBarre->currentIndex(), 14);
    m_main->Release(m_main->board, {9000, 30});
    m_main->Move(m_main->board, {100, 30});
    QCOMPARE(m_main->window.lstLadBarre->currentIndex(), 14);
}

void FrmMainTest::BarreIsPainted() {
    m_main->window.lstLadBarre->SelectRow(4);
    QTest::mouseClick(m_main->window.cmdMakeBarre, Qt::LeftButton);
    const QRectF bar = FretboardLayout().BarreRect({5, 5});
    QCOMPARE(m_main->Pixel(m_main->board, bar.center()), Colours::mark);
    QCOMPARE(m_main->Pixel(m_main->board, {bar.center().x(), bar.top() + 30}), Colours::mark);
    QTest::mouseClick(m_main->window.cmdMakeBarre, Qt::LeftButton);
    QVERIFY(m_main->Pixel(m_main->board, bar.center()) != Colours::mark);
}

void FrmMainTest::FretNumberTogglesTheBarre() {
    auto* fifth = m_main->Find(QStringLiteral("Label3(4)"));
    QTest::mouseClick(fifth, Qt::LeftButton);
    QCOMPARE(m_main->workbench.ShownBarre()->fret, 5);
    QCOMPARE(m_main->window.lstLadBarre->currentIndex(), 4);
    QTest::mouseClick(m_main->Find(QStringLiteral("Label3(0)")), Qt::LeftButton);
    QCOMPARE(m_main->workbench.ShownBarre()->fret, 1);
    QTest::mouseClick(m_main->Find(QStringLiteral("Label3(0)")), Qt::LeftButton);
    QVERIFY(!m_main->workbench.ShownBarre());
}

void FrmMainTest::ErrorsOfTheFretboardAreIgnored() {
    m_main->window.lstBarre->setCurrentIndex(-1);
    QTest::mouseClick(m_main->Find(QStringLiteral("Label3(4)")), Qt::LeftButton);
    QVERIFY(!m_main->workbench.ShownBarre());
    QCOMPARE(m_main->window.lstLadBarre->currentIndex(), 4);
}

void FrmMainTest::BarreButtonWithoutExtentReports() {
    m_main->window.lstBarre->setCurrentIndex(-1);
    BoxSeen box;
    AnswerBox(box);
    QTest::mouseClick(m_main->window.cmdMakeBarre, Qt::LeftButton);
    QVERIFY(box.seen);
    QCOMPARE(box.name, QStringLiteral("RunTimeError"));
    QCOMPARE(box.icon, QMessageBox::Critical);
    QVERIFY(!m_main->workbench.ShownBarre());
    QVERIFY(m_main->window.isVisible()); // The program goes on.
}

void FrmMainTest::Highlights() {
    const auto hover = [this](const QString& name) {
        QWidget* label = m_main->Find(name);
        QMouseEvent move(QEvent::MouseMove, QPointF(3, 3), label->mapToGlobal(QPointF(3, 3)),
                         Qt::NoButton, Qt::NoButton, {});
        QCoreApplication::sendEvent(label, &move);
    };
    hover(QStringLiteral("Label3(2)"));
    QCOMPARE(m_main->Colour(QStringLiteral("Label3(2)")), Colours::highlight);
    hover(QStringLiteral("Label3(3)"));
    QCOMPARE(m_main->Colour(QStringLiteral("Label3(2)")), Colours::normalText);
    QCOMPARE(m_main->Colour(QStringLiteral("Label3(3)")), Colours::highlight);
    hover(QStringLiteral("Label6(1)"));
    QCOMPARE(m_main->Colour(QStringLiteral("Label4(1)")), Colours::highlight);
    hover(QStringLiteral("Label6(2)"));
    QCOMPARE(m_main->Colour(QStringLiteral("Label4(1)")), Colours::normalText);
    QCOMPARE(m_main->Colour(QStringLiteral("Label3(3)")), Colours::highlight);
    m_main->Move(m_main->keyboard, {100, 100}); // Ends the fret's, not the string's.
    QCOMPARE(m_main->Colour(QStringLiteral("Label3(3)")), Colours::normalText);
    QCOMPARE(m_main->Colour(QStringLiteral("Label4(2)")), Colours::highlight);
    m_main->Move(m_main->board, {100, 100});
    QCOMPARE(m_main->Colour(QStringLiteral("Label4(2)")), Colours::normalText);
    hover(QStringLiteral("Label6(2)"));
    hover(QStringLiteral("Label3(0)"));
    QCOMPARE(m_main->Colour(QStringLiteral("Label4(2)")), Colours::normalText);
    hover(QStringLiteral("Label1"));
    QCOMPARE(m_main->Colour(QStringLiteral("Label3(0)")), Colours::normalText);
}

void FrmMainTest::Handles() {
    QWidget* fifth = m_main->Find(QStringLiteral("Label6(4)"));
    QTest::mouseClick(fifth, Qt::LeftButton);
    QCOMPARE(m_main->window.txtStr->text(), QStringLiteral("5"));
    QCOMPARE(m_main->workbench.Row(4).mark, std::optional(7));
    QTest::mouseClick(m_main->window.cmdFindNew, Qt::LeftButton);
    QCOMPARE(m_main->workbench.Row(4).mark, std::optional(10));
    QCOMPARE(m_main->Text(QStringLiteral("Label4"), 4), QStringLiteral("G"));
    QCOMPARE(fifth->geometry(), m_main->Find(QStringLiteral("Label4(4)"))->geometry());
}

void FrmMainTest::MutedStrings() {
    QWidget* handle = m_main->Find(QStringLiteral("Label6(0)"));
    auto* label = m_main->Find<QLabel>(QStringLiteral("Label4(0)"));
    QTest::mouseClick(handle, Qt::RightButton);
    QVERIFY(!label->isEnabled());
    QVERIFY(label->font().strikeOut());
    QTest::mouseClick(handle, Qt::RightButton);
    QVERIFY(label->isEnabled());
    QVERIFY(!label->font().strikeOut());
}

void FrmMainTest::MissingRootIsRed() {
    m_main->Click(m_main->keyboard, {1, 1}, Qt::RightButton);
    for (const int key : {1, 4, 9, 11, 14, 19})
        m_main->window.Do([&] { m_main->workbench.ToggleKey(key); });
    QTest::mouseClick(m_main->window.Command1, Qt::LeftButton);
    QCOMPARE(m_main->Text(QStringLiteral("lblNoS")), QStringLiteral("C#      "));
    QCOMPARE(m_main->Colour(QStringLiteral("lblNoS")), Colours::mark);
    m_main->ClickRow(m_main->window.lstType, 0);
    QCOMPARE(m_main->Colour(QStringLiteral("lblNoS")), Colours::normalText);
}

void FrmMainTest::NothingIsMissingWithoutMarks() {
    MissingRootIsRed();
    m_main->Click(m_main->keyboard, {1, 1}, Qt::RightButton);
    for (const int key : {1, 4, 9, 11, 14, 19})
        m_main->window.Do([&] { m_main->workbench.ToggleKey(key); });
    QTest::mouseClick(m_main->window.Command1, Qt::LeftButton);
    QCOMPARE(m_main->Colour(QStringLiteral("lblNoS")), Colours::mark);
    m_main->Click(m_main->keyboard, {1, 1}, Qt::RightButton);
    QTest::mouseClick(m_main->window.Command1, Qt::LeftButton);
    QCOMPARE(m_main->Text(QStringLiteral("lblNoS")), QString());
    QCOMPARE(m_main->Colour(QStringLiteral("lblNoS")), Colours::normalText);
    QVERIFY(!m_main->window.lblNoS->autoFillBackground());
}

void FrmMainTest::AnOpenDropDownKeepsItsKeys() {
    DropDown* list = m_main->window.lstLadBarre;
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Space);
    QWidget* view = list->view();
    QTRY_VERIFY(view->isVisible());
    QTest::keyClick(view, Qt::Key_Down);
    QTest::keyClick(view, Qt::Key_Down);
    QTest::keyClick(view, Qt::Key_Return);
    QCOMPARE(list->currentIndex(), 2);
    QVERIFY(!m_main->board->hasFocus());
}

void FrmMainTest::TheGrooveMovesTheBarTowardsTheClick() {
    UpScrollBar bar(QStringLiteral("bar"), 0, 12);
    bar.resize(20, 400);
    bar.show();
    bar.setValue(6);
    const auto click = [&bar](int y) {
        QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(bar.width() / 2, y));
    };
    click(60);
    QCOMPARE(bar.value(), 7);
    click(340);
    QCOMPARE(bar.value(), 6);
    click(4); // The upper arrow.
    QCOMPARE(bar.value(), 7);
}

void FrmMainTest::AMutedStringStaysStruckOut() {
    m_main->window.Label6_MouseDown(2, Qt::RightButton);
    const auto* label = m_main->Find<QLabel>(QStringLiteral("Label4(2)"));
    QVERIFY(label->font().strikeOut());
    m_main->window.resize(m_main->window.size() + QSize(200, 150));
    QCoreApplication::processEvents();
    QVERIFY(label->font().strikeOut());
    QVERIFY(!m_main->Find<QLabel>(QStringLiteral("Label4(1)"))->font().strikeOut());
}

void FrmMainTest::ChoosingTheBarreFretAgain() {
    QTest::mouseClick(m_main->window.cmdMakeBarre, Qt::LeftButton);
    m_main->Click(m_main->board, Crossing(0, 9));
    QCOMPARE(m_main->workbench.Row(0).mark, std::optional(9));
    m_main->window.lstLadBarre->SelectRow(0);
    QVERIFY(m_main->workbench.ShownBarre());
    QVERIFY(m_main->workbench.Row(0).mark != std::optional(9)); // Fingered anew.
}

void FrmMainTest::ScrollBarWritesTheString() {
    auto* bar = m_main->window.VScroll3;
    const QRect up(0, 0, bar->width(), 6);
    QTest::mouseClick(bar, Qt::LeftButton, {}, up.center());
    QCOMPARE(m_main->window.txtStr->text(), QStringLiteral("2")); // The upper arrow raises it.
    for (int i = 0; i < 9; ++i)
        QTest::mouseClick(bar, Qt::LeftButton, {}, up.center());
    QCOMPARE(m_main->window.txtStr->text(), QStringLiteral("6"));
    QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(bar->width() / 2, bar->height() - 4));
    QCOMPARE(m_main->window.txtStr->text(), QStringLiteral("5"));
    m_main->window.txtStr->setText(QStringLiteral("1"));
    QCOMPARE(bar->value(), 5); // Nothing moves the bar.
}

void FrmMainTest::Transfer() {
    m_main->ClickRow(m_main->window.lstBase, 9);
    QTest::mouseClick(m_main->window.Command2, Qt::LeftButton);
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QStringLiteral("C# E A "));
    QTest::mouseClick(m_main->window.cmdFindChord, Qt::LeftButton);
    QCOMPARE(m_main->Text(QStringLiteral("lblChord")), QStringLiteral("---"));
}

void FrmMainTest::OrientationsSwapTheGauges() {
    MainWindow top(standardStrings, false);
    QCOMPARE(top.Text(QStringLiteral("Label4"), 0), QStringLiteral("E"));
    QCOMPARE(top.Find(QStringLiteral("Label4(0)"))->property("Tag").toString(),
             QStringLiteral("44"));
    for (auto* window : {&top.window, &m_main->window})
        window->resize(1800, 1000);
    QCoreApplication::processEvents();
    const auto thickness = [](MainWindow& main, int row) {
        const QPointF beside(480 * 8.5, FretboardLayout::StringY(row) - 20);
        return main.Pixel(main.board, beside).lightness();
    };
    QVERIFY(thickness(top, 0) > thickness(*m_main, 0)); // The thick string shines 20 twips off.
    QVERIFY(thickness(*m_main, 5) > thickness(top, 5));
}

void FrmMainTest::ResizingKeepsLabelsAligned_data() {
    QTest::addColumn<QSize>("size");
    QTest::newRow("small") << QSize(1, 1);
    QTest::newRow("wide") << QSize(2400, 700);
    QTest::newRow("tall") << QSize(1300, 1500);
}

void FrmMainTest::ResizingKeepsLabelsAligned() {
    QFETCH(const QSize, size);
    m_main->window.resize(size);
    QCoreApplication::processEvents();
    const double scale = m_main->board->Scale();
    QVERIFY(scale >= smallestScale);
    for (int fret = 1; fret <= 15; ++fret) {
        const auto* label = m_main->Find<QLabel>(QStringLiteral("Label3(%1)").arg(fret - 1));
        const double x = (label->geometry().center().x() - m_main->board->x()) / scale;
        QVERIFY(std::abs(x - (480 * (fret - 1) + 247)) * scale < 1.7); // Pixels.
        QVERIFY(label->fontMetrics().height() <= label->height() + 4);
        QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) <= label->width());
    }
    for (int row = 0; row < stringCount; ++row) {
        const auto* label = m_main->Find<QLabel>(QStringLiteral("Label4(%1)").arg(row));
        const double y = (label->geometry().center().y() - m_main->board->y()) / scale;
        QVERIFY(std::abs(y - FretboardLayout::StringY(row)) < 30);
        QVERIFY(label->geometry().right() < m_main->window.panel->width());
    }
}

void FrmMainTest::ClosingAsksFirst() {
    bool may = false;
    m_main->window.SetMayEnd([&may] { return may; });
    QVERIFY(!m_main->window.close());
    QVERIFY(m_main->window.isVisible());
    may = true;
    QVERIFY(m_main->window.close());
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    FrmMainTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "frmmain_test.moc"
