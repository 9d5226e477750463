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
    void BarreButtonWithoutExtentReports();
    void MissingRootIsRed();
    void NothingIsMissingWithoutMarks();
    void AnOpenDropDownKeepsItsKeys();
    void TheGrooveMovesTheBarTowardsTheClick();
    void ChoosingTheBarreFretAgain();
    void ScrollBarWritesTheString();
    void Transfer();
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
    m_main->Click(m_main->keyboard, KeyboardLayout().FreeArea(2).center());
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QStringLiteral("C D E G "));
    m_main->ClickRow(m_main->window.lstType, 0);
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QStringLiteral("C E G "));
    m_main->Click(m_main->keyboard, KeyboardLayout().FreeArea(2).center());
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
    m_main->Click(m_main->keyboard, KeyboardLayout().FreeArea(2).center());
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
