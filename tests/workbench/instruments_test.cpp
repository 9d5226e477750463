// The main window's pictures and the labels around them, under real mouse events.
#include "controls/application.h"
#include "controls/colours.h"
#include "support/mainwindow.h"

namespace {

QPointF Crossing(int row, int fret) {
    return {(fret - 0.5) * 480, FretboardLayout::StringY(row)};
}

} // namespace

class InstrumentsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_main = std::make_unique<MainWindow>(); }
    void cleanup() { m_main.reset(); }

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
    void Highlights();
    void Handles();
    void MutedStrings();
    void AMutedStringStaysStruckOut();
    void OrientationsSwapTheGauges();

private:
    std::unique_ptr<MainWindow> m_main;
};

void InstrumentsTest::KeysByMouse() {
    m_main->Click(m_main->keyboard, {1, 1}, Qt::RightButton);
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QString());
    m_main->Click(m_main->keyboard, KeyboardLayout().FreeArea(9).center());
    m_main->Click(m_main->keyboard, {123 * 1.5, 100}); // A zone of C#.
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QStringLiteral("C# A "));
    m_main->Click(m_main->keyboard, KeyboardLayout().FreeArea(9).center());
    m_main->Click(m_main->keyboard, {123 * 1.5, 100});
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QString());
    QCOMPARE(m_main->workbench.Keys().Fill(1), blackKeyColour);
    QCOMPARE(m_main->workbench.Keys().Fill(9), whiteKeyColour);
    m_main->Click(m_main->keyboard, {360, 1300}); // On a border.
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QString());
}

void InstrumentsTest::KeyAtTheFarRight() {
    m_main->Click(m_main->keyboard, {1, 1}, Qt::MiddleButton); // Any but the left one clears.
    m_main->Click(m_main->keyboard, {7572, 1400});
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QString());
    Q_EMIT m_main->keyboard->MouseDown(Qt::LeftButton, {7700, 100});
    QCOMPARE(m_main->Text(QStringLiteral("lblKeys")), QStringLiteral("C "));
}

void InstrumentsTest::MarksArePainted() {
    for (int key = 0; key < keyCount; ++key) {
        const bool marked = key == 0 || key == 4 || key == 7;
        const QColor own = IsBlackKey(key) ? Colours::blackKey : Colours::whiteKey;
        QCOMPARE(m_main->Pixel(m_main->keyboard, KeyboardLayout().FreeArea(key).center()),
                 marked ? Colours::mark : own);
    }
    QCOMPARE(m_main->Pixel(m_main->board, FretboardLayout().MarkCentre(1, 1)), Colours::mark);
    QCOMPARE(m_main->Pixel(m_main->board, FretboardLayout().MarkCentre(3, 2)), Colours::mark);
    QVERIFY(m_main->Pixel(m_main->board, FretboardLayout().MarkCentre(0, 1)) != Colours::mark);
}

void InstrumentsTest::FretsByMouse() {
    m_main->Click(m_main->board, Crossing(0, 5));
    QCOMPARE(m_main->Text(QStringLiteral("Label4"), 0), QStringLiteral("A"));
    QCOMPARE(m_main->Pixel(m_main->board, FretboardLayout().MarkCentre(0, 5)), Colours::mark);
    QCOMPARE(m_main->Text(QStringLiteral("Label4"), 1), QStringLiteral("C")); // The others stay.
    m_main->Click(m_main->board, {7208, FretboardLayout::StringY(2)});
    QCOMPARE(m_main->workbench.Row(2).mark, std::optional(16));
    m_main->Click(m_main->board, Crossing(0, 3), Qt::MiddleButton); // Any but the right one.
    QCOMPARE(m_main->workbench.Row(0).mark, std::optional(3));
}

void InstrumentsTest::PressOnALine() {
    m_main->Click(m_main->board, {480, FretboardLayout::StringY(4)});
    QCOMPARE(m_main->workbench.Row(4).mark, std::optional(0));
    QCOMPARE(m_main->Text(QStringLiteral("Label4"), 4), QStringLiteral("A"));
}

void InstrumentsTest::PressBesideTheRows() {
    m_main->Click(m_main->board, {240, 420});
    m_main->Click(m_main->board, {240, 30});
    QCOMPARE(m_main->workbench.Row(5).mark, std::nullopt);
    QCOMPARE(m_main->workbench.Row(4).mark, std::optional(3));
}

void InstrumentsTest::DoubleClickIsTwoPresses() {
    const QPointF place = KeyboardLayout().FreeArea(2).center();
    m_main->Click(m_main->keyboard, place);
    QVERIFY(m_main->workbench.Keys().IsMarked(2));
    QMouseEvent second(QEvent::MouseButtonDblClick, place * m_main->keyboard->Scale(), {},
                       Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(m_main->keyboard, &second);
    QVERIFY(!m_main->workbench.Keys().IsMarked(2));
}

void InstrumentsTest::RightClickClears() {
    m_main->Click(m_main->board, {100, 100}, Qt::RightButton);
    for (int row = 0; row < stringCount; ++row)
        QVERIFY(!m_main->workbench.Row(row).mark);
    QCOMPARE(m_main->Text(QStringLiteral("Label4"), 1), QStringLiteral("B"));
    QCOMPARE(m_main->Text(QStringLiteral("lblNoS")), QString());
}

void InstrumentsTest::RightClickTakesTheBarreOff() {
    QTest::mouseClick(m_main->window.cmdMakeBarre, Qt::LeftButton);
    QVERIFY(m_main->workbench.ShownBarre());
    m_main->Click(m_main->board, {247, 1000}, Qt::RightButton);
    QVERIFY(!m_main->workbench.ShownBarre());
    QCOMPARE(m_main->Text(QStringLiteral("Label4"), 1), QStringLiteral("B"));
}

void InstrumentsTest::BarreIsDragged() {
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

void InstrumentsTest::BarreIsPainted() {
    m_main->window.lstLadBarre->SelectRow(4);
    QTest::mouseClick(m_main->window.cmdMakeBarre, Qt::LeftButton);
    const QRectF bar = FretboardLayout().BarreRect({5, 5});
    QCOMPARE(m_main->Pixel(m_main->board, bar.center()), Colours::mark);
    QCOMPARE(m_main->Pixel(m_main->board, {bar.center().x(), bar.top() + 30}), Colours::mark);
    QTest::mouseClick(m_main->window.cmdMakeBarre, Qt::LeftButton);
    QVERIFY(m_main->Pixel(m_main->board, bar.center()) != Colours::mark);
}

void InstrumentsTest::FretNumberTogglesTheBarre() {
    auto* fifth = m_main->Find(QStringLiteral("Label3(4)"));
    QTest::mouseClick(fifth, Qt::LeftButton);
    QCOMPARE(m_main->workbench.ShownBarre()->fret, 5);
    QCOMPARE(m_main->window.lstLadBarre->currentIndex(), 4);
    QTest::mouseClick(m_main->Find(QStringLiteral("Label3(0)")), Qt::LeftButton);
    QCOMPARE(m_main->workbench.ShownBarre()->fret, 1);
    QTest::mouseClick(m_main->Find(QStringLiteral("Label3(0)")), Qt::LeftButton);
    QVERIFY(!m_main->workbench.ShownBarre());
}

void InstrumentsTest::ErrorsOfTheFretboardAreIgnored() {
    m_main->window.lstBarre->setCurrentIndex(-1);
    QTest::mouseClick(m_main->Find(QStringLiteral("Label3(4)")), Qt::LeftButton);
    QVERIFY(!m_main->workbench.ShownBarre());
    QCOMPARE(m_main->window.lstLadBarre->currentIndex(), 4);
}

void InstrumentsTest::Highlights() {
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

void InstrumentsTest::Handles() {
    QWidget* fifth = m_main->Find(QStringLiteral("Label6(4)"));
    QTest::mouseClick(fifth, Qt::LeftButton);
    QCOMPARE(m_main->window.txtStr->text(), QStringLiteral("5"));
    QCOMPARE(m_main->workbench.Row(4).mark, std::optional(7));
    QTest::mouseClick(m_main->window.cmdFindNew, Qt::LeftButton);
    QCOMPARE(m_main->workbench.Row(4).mark, std::optional(10));
    QCOMPARE(m_main->Text(QStringLiteral("Label4"), 4), QStringLiteral("G"));
    QCOMPARE(fifth->geometry(), m_main->Find(QStringLiteral("Label4(4)"))->geometry());
}

void InstrumentsTest::MutedStrings() {
    QWidget* handle = m_main->Find(QStringLiteral("Label6(0)"));
    auto* label = m_main->Find<QLabel>(QStringLiteral("Label4(0)"));
    QTest::mouseClick(handle, Qt::RightButton);
    QVERIFY(!label->isEnabled());
    QVERIFY(label->font().strikeOut());
    QTest::mouseClick(handle, Qt::RightButton);
    QVERIFY(label->isEnabled());
    QVERIFY(!label->font().strikeOut());
}

void InstrumentsTest::AMutedStringStaysStruckOut() {
    m_main->window.Label6_MouseDown(2, Qt::RightButton);
    const auto* label = m_main->Find<QLabel>(QStringLiteral("Label4(2)"));
    QVERIFY(label->font().strikeOut());
    m_main->window.resize(m_main->window.size() + QSize(200, 150));
    QCoreApplication::processEvents();
    QVERIFY(label->font().strikeOut());
    QVERIFY(!m_main->Find<QLabel>(QStringLiteral("Label4(1)"))->font().strikeOut());
}

void InstrumentsTest::OrientationsSwapTheGauges() {
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

int main(int argc, char** argv) {
    Application application(argc, argv);
    InstrumentsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "instruments_test.moc"
