// The rings around the places on the neck where the marked keys' notes lie.
#include "controls/application.h"
#include "controls/colours.h"
#include "support/mainwindow.h"

namespace {

// Beside a place's middle, where the line of a root's square passes and that of a circle does not.
constexpr QPointF corner(114, 114);

} // namespace

class RingsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_main = std::make_unique<MainWindow>();
        m_main->window.resize(2000, 1200); // A ring's line is some pixels wide.
        QCoreApplication::processEvents();
    }
    void cleanup() { m_main.reset(); }

    void AScaleShowsThemAChordHidesThem();
    void TheButtonAndF12();
    void OnEveryPlaceOfAMarkedNote();
    void TheRootHasAnotherShape();
    void MarksAndBarreKeepTheirColours();
    void TheyFollowTheKeys();
    void TheOtherHand();
    void AStringThatNamesNoNote();

private:
    // Whether the place looks otherwise than with the rings hidden.
    bool IsRinged(int row, int fret, QPointF beside = QPointF());
    QImage Board() { return m_main->board->grab().toImage(); }

    std::unique_ptr<MainWindow> m_main;
};

bool RingsTest::IsRinged(int row, int fret, QPointF beside) {
    const FretboardLayout layout{.leftHanded = m_main->state.LeftHanded};
    const QPointF place = (layout.MarkCentre(row, fret) + beside) * m_main->board->Scale();
    const QRgb shown = Board().pixel(place.toPoint());
    m_main->window.cmdRings->click();
    const QRgb hidden = Board().pixel(place.toPoint());
    m_main->window.cmdRings->click();
    return shown != hidden;
}

void RingsTest::AScaleShowsThemAChordHidesThem() {
    QVERIFY(!m_main->workbench.RingsShown());
    m_main->window.lstLad->SelectRow(3);
    QVERIFY(m_main->workbench.RingsShown() && m_main->window.cmdRings->isChecked());
    m_main->window.lstType->SelectRow(1);
    QVERIFY(!m_main->workbench.RingsShown() && !m_main->window.cmdRings->isChecked());
    m_main->window.lstLad->SelectRow(3);
    m_main->window.lstBase->SelectRow(2);
    QVERIFY(!m_main->workbench.RingsShown());
}

void RingsTest::TheButtonAndF12() {
    m_main->window.cmdRings->click();
    QVERIFY(m_main->workbench.RingsShown() && m_main->window.cmdRings->isChecked());
    QTest::keyClick(m_main->window.lstType, Qt::Key_F12);
    QVERIFY(!m_main->workbench.RingsShown() && !m_main->window.cmdRings->isChecked());
    m_main->window.lstLad->SelectRow(3);
    QTest::keyClick(m_main->window.lstType, Qt::Key_F12);
    QVERIFY(!m_main->workbench.RingsShown());
}

void RingsTest::OnEveryPlaceOfAMarkedNote() {
    m_main->window.GoldButton3->setFocus();
    m_main->Click(m_main->board, FretboardLayout().MarkCentre(0, 15), Qt::RightButton);
    m_main->window.cmdRings->click();
    const QImage shown = Board();
    m_main->window.cmdRings->click();
    const QImage hidden = Board();
    for (int row = 0; row < stringCount; ++row)
        for (int fret = 1; fret <= 15; ++fret) {
            const auto note = m_main->workbench.NoteAt(row, fret);
            const bool inChord = note == 0 || note == 4 || note == 7;
            const QPointF centre = FretboardLayout().MarkCentre(row, fret) * m_main->board->Scale();
            const QRect around(centre.toPoint() - QPoint(6, 6), QSize(13, 13));
            QCOMPARE(shown.copy(around) != hidden.copy(around), inChord);
        }
}

void RingsTest::TheRootHasAnotherShape() {
    m_main->Click(m_main->board, FretboardLayout().MarkCentre(0, 15), Qt::RightButton);
    m_main->window.cmdRings->click();
    QVERIFY(IsRinged(0, 8, corner));   // C
    QVERIFY(!IsRinged(0, 3, corner));  // G
    QVERIFY(!IsRinged(0, 12, corner)); // E
    QVERIFY(IsRinged(0, 12, {0, 130}));
}

void RingsTest::MarksAndBarreKeepTheirColours() {
    m_main->window.cmdRings->click();
    for (int row = 0; row < stringCount; ++row)
        if (const auto mark = m_main->workbench.Row(row).mark)
            for (const QPointF inside : {QPointF(0, 0), QPointF(70, 70), QPointF(-100, 0)})
                QCOMPARE(
                    m_main->Pixel(m_main->board, FretboardLayout().MarkCentre(row, *mark) + inside),
                    Colours::mark);
    m_main->window.lstLadBarre->SelectRow(7);
    m_main->window.cmdMakeBarre->click();
    for (int row = 0; row < stringCount; ++row)
        QCOMPARE(m_main->Pixel(m_main->board, FretboardLayout().MarkCentre(row, 8)), Colours::mark);
    const QRectF bar = FretboardLayout().BarreRect({8, stringCount - 1});
    for (const double share : {0.1, 0.35, 0.6, 0.9})
        QCOMPARE(m_main->Pixel(m_main->board, {bar.left() + 60, bar.top() + share * bar.height()}),
                 Colours::mark);
}

void RingsTest::TheyFollowTheKeys() {
    m_main->window.cmdRings->click();
    QVERIFY(!IsRinged(0, 10)); // D
    m_main->window.Do([&] { m_main->workbench.ToggleKey(26); });
    QVERIFY(IsRinged(0, 10));
    m_main->window.Do([&] { m_main->workbench.ClearKeyMarks(); });
    QVERIFY(!IsRinged(0, 10));
}

void RingsTest::TheOtherHand() {
    m_main->state.LeftHanded = true;
    m_main->window.cmdRings->click();
    QVERIFY(IsRinged(0, 8));
    QVERIFY(!IsRinged(0, 9));
}

void RingsTest::AStringThatNamesNoNote() {
    m_main->state.StringNotes[0] = QStringLiteral("H");
    m_main->window.StringsChanged();
    m_main->window.cmdRings->click();
    QVERIFY(!IsRinged(0, 8));
    QVERIFY(IsRinged(1, 13));
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    RingsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "rings_test.moc"
