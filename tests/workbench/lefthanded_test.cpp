// The neck of a left-handed player: mirrored to the eye and to the mouse, the same in music.
#include "controls/application.h"
#include "controls/colours.h"
#include "support/mainwindow.h"

namespace {

constexpr FretboardLayout mirrored{.leftHanded = true};

} // namespace

class LeftHandedTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_main.reset(); }

    void MarksArePaintedMirrored();
    void ClicksAreCountedFromTheNut();
    void TheBarreIsDraggedTowardsTheNut();
    void LabelsStandOnTheOtherSide();
    void ALabelIsUnderItsFret();
    void KeyboardStays();
    void ShiftLeftIsStillTheLowerFret();
    void PartsLieWhereTheyAreDrawn();
    void TheOtherHandTakesOverAtOnce();

private:
    // Where a part of the panel stands in it, in twips.
    QRectF Place(const QWidget* part) const;

    std::unique_ptr<MainWindow> m_main;
};

void LeftHandedTest::init() {
    m_main = std::make_unique<MainWindow>();
    m_main->state.LeftHanded = true;
    m_main->window.ShowState();
}

QRectF LeftHandedTest::Place(const QWidget* part) const {
    const double scale = m_main->board->Scale();
    const QPointF origin = m_main->keyboard->pos();
    return {(part->pos() - origin) / scale, QSizeF(part->size()) / scale};
}

void LeftHandedTest::MarksArePaintedMirrored() {
    QCOMPARE(m_main->workbench.Row(1).mark, std::optional(1)); // C
    QCOMPARE(m_main->Pixel(m_main->board, mirrored.MarkCentre(1, 1)), Colours::mark);
    QVERIFY(m_main->Pixel(m_main->board, FretboardLayout().MarkCentre(1, 1)) != Colours::mark);
    m_main->window.cmdMakeBarre_Click();
    QCOMPARE(m_main->Pixel(m_main->board, mirrored.BarreRect({1, 5}).center()), Colours::mark);
}

void LeftHandedTest::ClicksAreCountedFromTheNut() {
    for (const int fret : {1, 5, 15}) {
        m_main->Click(m_main->board, mirrored.MarkCentre(0, fret));
        QCOMPARE(m_main->workbench.Row(0).mark, std::optional(fret));
        QCOMPARE(m_main->Pixel(m_main->board, mirrored.MarkCentre(0, fret)), Colours::mark);
    }
    m_main->Click(m_main->board, {1, FretboardLayout::StringY(0)});
    QCOMPARE(m_main->workbench.Row(0).mark, std::optional(16));
}

void LeftHandedTest::TheBarreIsDraggedTowardsTheNut() {
    m_main->window.lstLadBarre->SelectRow(4);
    m_main->window.cmdMakeBarre_Click();
    m_main->Press(m_main->board, {mirrored.FretMiddle(5), 30});
    m_main->Move(m_main->board, {mirrored.FretMiddle(4), 30});
    QCOMPARE(m_main->workbench.ShownBarre()->fret, 4);
    m_main->Move(m_main->board, {mirrored.FretMiddle(5), 30});
    QCOMPARE(m_main->workbench.ShownBarre()->fret, 5);
    m_main->Release(m_main->board, {mirrored.FretMiddle(5), 30});
}

void LeftHandedTest::LabelsStandOnTheOtherSide() {
    const double pixel = 1 / m_main->board->Scale();
    QVERIFY(std::abs(Place(m_main->board).left() - 480) <= pixel);
    for (int row = 0; row < stringCount; ++row) {
        const auto index = static_cast<std::size_t>(row);
        QVERIFY(std::abs(Place(m_main->window.panel->Label4[index]).left()) <= pixel);
        QCOMPARE(m_main->window.panel->Label4[index]->geometry(),
                 m_main->window.panel->Label6[index]->geometry());
    }
}

void LeftHandedTest::ALabelIsUnderItsFret() {
    for (int fret = 1; fret <= InstrumentPanel::fretLabels; ++fret) {
        const QLabel* label = m_main->window.panel->Label3[static_cast<std::size_t>(fret - 1)];
        QCOMPARE(label->text(), QString::number(fret));
        const double x = Place(label).center().x() - Place(m_main->board).left();
        QCOMPARE(mirrored.FretAt(x), std::optional(fret));
    }
    m_main->window.Label3_Click(6);
    QCOMPARE(m_main->workbench.ShownBarre()->fret, 7);
}

void LeftHandedTest::KeyboardStays() {
    m_main->Click(m_main->keyboard, {10, 1500});
    QVERIFY(!m_main->workbench.Keys().IsMarked(0)); // It was the C of the chord.
}

void LeftHandedTest::ShiftLeftIsStillTheLowerFret() {
    m_main->window.lstLadBarre->SelectRow(4);
    QTest::keyClick(&m_main->window, Qt::Key_Left, Qt::ShiftModifier);
    QCOMPARE(m_main->workbench.BarreFretRow(), 3);
    QTest::keyClick(&m_main->window, Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(m_main->workbench.BarreFretRow(), 4);
}

void LeftHandedTest::PartsLieWhereTheyAreDrawn() {
    m_main->window.cmdMakeBarre_Click();
    const PictureParts parts = m_main->board->Parts();
    QCOMPARE(parts.parts.back().place, mirrored.BarreRect(*m_main->workbench.ShownBarre()));
}

void LeftHandedTest::TheOtherHandTakesOverAtOnce() {
    m_main->state.LeftHanded = false;
    m_main->window.ShowState();
    QCOMPARE(m_main->Pixel(m_main->board, FretboardLayout().MarkCentre(1, 1)), Colours::mark);
    QCOMPARE(m_main->board->x(), m_main->keyboard->x());
    m_main->Click(m_main->board, FretboardLayout().MarkCentre(0, 3));
    QCOMPARE(m_main->workbench.Row(0).mark, std::optional(3));
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    LeftHandedTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "lefthanded_test.moc"
