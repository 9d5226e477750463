// How the main window uses its room, and how little it needs.
#include "controls/application.h"
#include "controls/windowtexts.h"
#include "support/mainwindow.h"

#include <QLayout>
#include <QScrollBar>
#include <QWheelEvent>

class WindowRoomTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_main = std::make_unique<MainWindow>(); }
    void cleanup() { m_main.reset(); }

    void ItNeedsLittle();
    void ATallWindowHasMoreRowsOfDiagrams();
    void TheNextRowIsReachedByTheWheel();
    void ALargeWindowHasLargeLetters();
    void NothingIsCutInALargeWindow();
    void TheToolTipOfAStringNamesTheTuning();
    void AWipedNeckSaysHowToBringItBack();
    void TheCardLetsThePointerThrough();

private:
    void Resize(int width, int height) {
        m_main->window.resize(width, height);
        QCoreApplication::processEvents();
    }
    int StripRows() const {
        const VoicingList* strip = m_main->window.lstVoicings;
        return strip->viewport()->height() / strip->Cell().height();
    }

    std::unique_ptr<MainWindow> m_main;
};

void WindowRoomTest::ItNeedsLittle() {
    QVERIFY(m_main->window.lstVoicings->isVisible());
    const QSize least = m_main->window.layout()->totalMinimumSize();
    QVERIFY2(least.width() <= 950, qPrintable(QString::number(least.width())));
    QVERIFY2(least.height() <= 500, qPrintable(QString::number(least.height())));
}

void WindowRoomTest::ATallWindowHasMoreRowsOfDiagrams() {
    Resize(1024, 530);
    QCOMPARE(StripRows(), 1);
    const int neck = m_main->board->width();
    Resize(1024, 740);
    QVERIFY(StripRows() >= 2);
    QVERIFY(m_main->board->width() >= neck); // The pictures grow first.
    const VoicingList* strip = m_main->window.lstVoicings;
    const auto place = [strip](int row) {
        return strip->visualRect(strip->model()->index(row, 0));
    };
    QCOMPARE(place(7).top(), place(0).top()); // Eight beside each other...
    QVERIFY(place(8).top() > place(0).top()); // ...and the next below.
}

void WindowRoomTest::TheNextRowIsReachedByTheWheel() {
    Resize(1024, 740);
    VoicingList* strip = m_main->window.lstVoicings;
    const QPointF place(20, 20);
    QWheelEvent wheel(place, strip->viewport()->mapToGlobal(place), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(strip->viewport(), &wheel);
    QVERIFY(strip->verticalScrollBar()->value() > 0);
}

void WindowRoomTest::ALargeWindowHasLargeLetters() {
    Resize(1024, 740);
    const int letters = m_main->window.lstType->fontMetrics().height();
    const int name = m_main->window.lblChord->fontMetrics().height();
    Resize(1900, 1040);
    const double grown = m_main->window.lstType->fontMetrics().height() / double(letters);
    QVERIFY(grown > 1.1);
    QVERIFY(m_main->window.lblChord->fontMetrics().height() / double(name) > grown);
    Resize(1024, 740);
    QCOMPARE(m_main->window.lstType->fontMetrics().height(), letters);
    QCOMPARE(m_main->window.lblChord->fontMetrics().height(), name);
}

void WindowRoomTest::NothingIsCutInALargeWindow() {
    Resize(1900, 1040);
    for (auto* button : m_main->window.findChildren<GoldButton*>())
        QVERIFY2(button->width() >= button->sizeHint().width() &&
                     button->height() >= button->sizeHint().height(),
                 qPrintable(button->objectName()));
}

void WindowRoomTest::TheToolTipOfAStringNamesTheTuning() {
    m_main->window.ShowTexts({});
    m_main->window.ShowState();
    const auto tuning = [this] {
        return m_main->window.panel->Label6[3]->toolTip().section(u'\n', 1);
    };
    QCOMPARE(tuning(), QStringLiteral("Строй: E A D G B E (обычный)"));
    LayStrings(m_main->state,
               {{QStringLiteral("E"), QStringLiteral("B"), QStringLiteral("G"), QStringLiteral("D"),
                 QStringLiteral("A"), QStringLiteral("D")},
                standardStrings.soundNumbers},
               false);
    m_main->window.StringsChanged();
    QCOMPARE(tuning(), QStringLiteral("Строй: D A D G B E (Low D/Drop D)"));
    m_main->state.StringNotes[0] = QStringLiteral("C");
    m_main->window.StringsChanged();
    QCOMPARE(tuning(), QStringLiteral("Строй: C A D G B E"));
}

void WindowRoomTest::AWipedNeckSaysHowToBringItBack() {
    const QPointF place = FretboardLayout().MarkCentre(2, 7);
    m_main->Move(m_main->board, place);
    m_main->Click(m_main->board, place, Qt::RightButton);
    QVERIFY(m_main->Text(QStringLiteral("lblHint")).contains(QStringLiteral("Ctrl+Z")));
    m_main->Move(m_main->board, place + QPointF(10, 0));
    QVERIFY(!m_main->Text(QStringLiteral("lblHint")).contains(QStringLiteral("Ctrl+Z")));
    // Where there was nothing, there is nothing to bring back.
    m_main->Click(m_main->board, place, Qt::RightButton);
    QVERIFY(!m_main->Text(QStringLiteral("lblHint")).contains(QStringLiteral("Ctrl+Z")));
}

void WindowRoomTest::TheCardLetsThePointerThrough() {
    m_main->window.Label3_MouseMove(2);
    QCOMPARE(m_main->Colour(QStringLiteral("Label3(2)")), QColor(0, 0, 255));
    QWidget* card = m_main->window.lblKeys->parentWidget();
    QVERIFY(card != &m_main->window && card->hasMouseTracking());
    const QPointF place(1, 1);
    QMouseEvent move(QEvent::MouseMove, place, card->mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                     {});
    QCoreApplication::sendEvent(card, &move);
    QCOMPARE(m_main->Colour(QStringLiteral("Label3(2)")), QColor(0, 0, 0));
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    WindowRoomTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "windowroom_test.moc"
