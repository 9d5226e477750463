// What one reads off the neck without a word: which strings are open or muted, where the root is,
// which row the next search is for; and which of the two lists rules the picture.
#include "controls/application.h"
#include "support/mainwindow.h"

class NeckReadsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_main = std::make_unique<MainWindow>();
        m_main->window.resize(2000, 1200); // A ring's line is some pixels wide.
        QCoreApplication::processEvents();
    }
    void cleanup() { m_main.reset(); }

    void SignsAtTheNut_data();
    void SignsAtTheNut();
    void ARootHasARingOutsideItsDisc();
    void TheRowOfTheSearchIsSeen();
    void OneListIsStrong();

private:
    // Whether anything is painted there, on the panel beside the nut.
    bool IsPainted(QRectF twips);

    std::unique_ptr<MainWindow> m_main;
};

bool NeckReadsTest::IsPainted(QRectF twips) {
    const QWidget* panel = m_main->window.panel;
    const double scale = m_main->board->Scale();
    const QImage image = m_main->window.panel->grab().toImage();
    const QRect area =
        QRectF(twips.topLeft() * scale + QPointF(m_main->board->pos()), twips.size() * scale)
            .toRect()
            .intersected(panel->rect());
    for (int x = area.left(); x < area.right(); ++x)
        for (int y = area.top(); y < area.bottom(); ++y)
            if (image.pixelColor(x, y).lightness() < 128)
                return true;
    return false;
}

void NeckReadsTest::SignsAtTheNut_data() {
    QTest::addColumn<bool>("leftHanded");
    QTest::newRow("the nut at the left") << false;
    QTest::newRow("the nut at the right") << true;
}

void NeckReadsTest::SignsAtTheNut() {
    QFETCH(const bool, leftHanded);
    m_main->state.LeftHanded = leftHanded;
    m_main->window.lstBase->SelectRow(0); // C: the rows 1, 3 and 4 are stopped.
    const double side = leftHanded ? FretboardLayout::size.width() + 20 : -205;
    const auto sign = [&](int row, double middle) { // Its whole, or no more than its middle.
        const double y = FretboardLayout::StringY(row);
        return IsPainted({side + middle, y - 90 + middle, 185 - 2 * middle, 180 - 2 * middle});
    };
    for (const int row : {0, 2, 5})
        QVERIFY2(sign(row, 0) && !sign(row, 70), "an open string has a circle");
    for (const int row : {1, 3, 4})
        QVERIFY2(!sign(row, 0), "a stopped string has none");
    m_main->window.Label6_MouseDown(0, Qt::RightButton);
    QVERIFY2(sign(0, 70), "a muted string has a cross");
}

void NeckReadsTest::ARootHasARingOutsideItsDisc() {
    constexpr QPointF onRing(0, 162);
    m_main->window.lstBase->SelectRow(0);
    m_main->window.GoldButton3->setFocus();
    const FretboardLayout layout;
    const auto ring = [&](int row, int fret) {
        return m_main->Pixel(m_main->board, layout.MarkCentre(row, fret) + onRing).lightness() >
               200;
    };
    QVERIFY(ring(1, 1));  // C
    QVERIFY(ring(4, 3));  // C
    QVERIFY(!ring(3, 2)); // E
    const double pixel = 1 / m_main->board->Scale();
    for (const int x : {-1, 0, 1})
        for (const int y : {-1, 0, 1})
            QCOMPARE(m_main->Pixel(m_main->board,
                                   layout.MarkCentre(1, 1) + QPointF(x * pixel, y * pixel)),
                     QColor(255, 0, 0));
}

void NeckReadsTest::TheRowOfTheSearchIsSeen() {
    constexpr double beforeTheBridge = 7168;
    const auto lit = [&] {
        QList<int> rows;
        for (int row = 0; row < stringCount; ++row) {
            const QPointF beside(beforeTheBridge, FretboardLayout::StringY(row) + 40);
            if (m_main->Pixel(m_main->board, beside).lightness() > 140)
                rows += row;
        }
        return rows;
    };
    QCOMPARE(lit(), QList<int>{0});
    m_main->window.VScroll3->setValue(4);
    QCOMPARE(lit(), QList<int>{3});
    m_main->window.txtStr->setText(QStringLiteral("6"));
    QCOMPARE(lit(), QList<int>{5});
    m_main->window.txtStr->setText(QStringLiteral("7"));
    QCOMPARE(lit(), QList<int>());
}

void NeckReadsTest::OneListIsStrong() {
    const auto& window = m_main->window;
    QVERIFY(!window.lstType->IsDimmed() && window.lstLad->IsDimmed());
    const auto seen = [](ListBox* list) {
        return list->viewport()->grab(list->visualRect(list->currentIndex())).toImage();
    };
    const QImage weak = seen(window.lstLad);
    window.lstLad->SelectRow(0);
    QVERIFY(window.lstType->IsDimmed() && !window.lstLad->IsDimmed());
    QVERIFY(seen(window.lstLad) != weak);
    window.lstBase->SelectRow(2);
    QVERIFY(!window.lstType->IsDimmed() && window.lstLad->IsDimmed());
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    NeckReadsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "neckreads_test.moc"
