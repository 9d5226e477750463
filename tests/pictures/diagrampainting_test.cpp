// Chord diagrams painted into images and probed where the layout says that things are.
#include "pictures/diagrampainting.h"

#include <QImage>
#include <QPainter>
#include <QTest>

class DiagramPaintingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EveryDotIsThere_data();
    void EveryDotIsThere();
    void SignsStandAboveTheStrings();
    void NutOrNumber();
    void BarsAreFilled();
    void FingersStandInTheirDots();
    void FingersStandBelowSmallDots();
    void LongNamesStayInside_data();
    void LongNamesStayInside();
    void NamesAreNoMarkup();
    void ProportionsAreKept();
    void ThePainterIsLeftAsItWas();
    void ScreenColoursRead();
};

namespace {

const QColor paper = Qt::white;

Diagram Shown(const QString& frets, const QString& name = {}, bool leftHanded = false) {
    const auto shape = ReadShape(frets);
    if (!shape)
        qFatal("%s is no shape", qPrintable(frets));
    return {name, *shape, leftHanded};
}

// A diagram painted at a scale (pixels a twip), to be probed in twips.
class Painted {
public:
    Painted(const Diagram& diagram, double scale)
        : m_scale(scale),
          m_image((DiagramLayout(diagram).Size() * scale).toSize() + QSize(1, 1),
                  QImage::Format_RGB32) {
        m_image.fill(paper);
        QPainter painter(&m_image);
        PaintDiagram(painter, QRectF(QPointF(0, 0), DiagramLayout(diagram).Size() * scale), diagram,
                     PaperDiagramColours());
    }

    QColor At(QPointF twips) const {
        return m_image.pixelColor(static_cast<int>(twips.x() * m_scale),
                                  static_cast<int>(twips.y() * m_scale));
    }

    // How much of a place is darker than half.
    double Darkness(const QRectF& twips) const {
        const QRect pixels =
            QRectF(twips.topLeft() * m_scale, twips.size() * m_scale).toAlignedRect();
        const QRect inside = pixels.intersected(m_image.rect());
        int dark = 0;
        for (int y = inside.top(); y <= inside.bottom(); ++y)
            for (int x = inside.left(); x <= inside.right(); ++x)
                dark += m_image.pixelColor(x, y).lightness() < 128 ? 1 : 0;
        return static_cast<double>(dark) / (inside.width() * inside.height());
    }

private:
    double m_scale;
    QImage m_image;
};

constexpr double large = 0.4;

} // namespace

void DiagramPaintingTest::EveryDotIsThere_data() {
    QTest::addColumn<QString>("frets");
    QTest::addColumn<double>("scale");
    QTest::addColumn<bool>("leftHanded");
    int row = 0;
    for (const char* frets : {"x32010", "133211", "x(10)(12)(12)(11)(10)", "000(20)00", "x15000"})
        for (const double scale : {0.05, 1.0 / 15, large})
            for (const bool leftHanded : {false, true})
                QTest::addRow("%d: %s at %g%s", ++row, frets, scale, leftHanded ? ", mirrored" : "")
                    << QString::fromLatin1(frets) << scale << leftHanded;
}

void DiagramPaintingTest::EveryDotIsThere() {
    QFETCH(const QString, frets);
    QFETCH(const double, scale);
    QFETCH(const bool, leftHanded);
    const Diagram diagram = Shown(frets, QStringLiteral("Am7"), leftHanded);
    const DiagramLayout layout(diagram);
    const Painted painted(diagram, scale);
    for (int string = 1; string <= stringCount; ++string)
        for (int row = 0; row < layout.Rows(); ++row) {
            const int fret = layout.FirstFret() + row;
            const double aside = layout.DotSize() * 0.28;
            for (const double dx : {-aside, aside})
                for (const double dy : {-aside, aside}) {
                    const QColor seen =
                        painted.At(layout.DotCentre(string, fret) + QPointF(dx, dy));
                    QVERIFY2((seen.lightness() < 128) == (diagram.shape.Fret(string) == fret),
                             qPrintable(QStringLiteral("string %1, fret %2: %3")
                                            .arg(QString::number(string), QString::number(fret),
                                                 seen.name())));
                }
        }
}

void DiagramPaintingTest::SignsStandAboveTheStrings() {
    const Diagram diagram = Shown(QStringLiteral("x32010"));
    const DiagramLayout layout(diagram);
    const Painted painted(diagram, large);
    QCOMPARE(painted.At(layout.SignRect(6).center()), QColor(Qt::black)); // Where the cross meets.
    for (const int open : {1, 3}) {
        QCOMPARE(painted.At(layout.SignRect(open).center()), paper);
        const QRectF sign = layout.SignRect(open);
        QVERIFY(painted.At({sign.left(), sign.center().y()}).lightness() < 128); // The ring.
    }
    for (const int stopped : {2, 4, 5})
        QCOMPARE(painted.Darkness(layout.SignRect(stopped)), 0.0);
}

void DiagramPaintingTest::NutOrNumber() {
    for (const bool leftHanded : {false, true}) {
        const Diagram open = Shown(QStringLiteral("x32010"), {}, leftHanded);
        const Diagram high = Shown(QStringLiteral("x79987"), {}, leftHanded);
        const DiagramLayout layout(high);
        QCOMPARE(Painted(open, large).At(layout.NutRect().center()), QColor(Qt::black));
        QCOMPARE(Painted(high, large).Darkness(layout.NutRect().adjusted(0, 0, 0, -10)), 0.0);
        QCOMPARE(Painted(open, large).Darkness(layout.PositionRect()), 0.0);
        QVERIFY(Painted(high, large).Darkness(layout.PositionRect()) > 0.01);
    }
}

void DiagramPaintingTest::BarsAreFilled() {
    Diagram diagram = Shown(QStringLiteral("x79987"));
    diagram.shape.barres = {{7, 1, 5, 1}};
    const DiagramLayout layout(diagram);
    const Painted painted(diagram, large);
    const double y = layout.DotCentre(1, 7).y();
    for (double x = layout.StringX(5); x <= layout.StringX(1); x += 5)
        QCOMPARE(painted.At({x, y}), QColor(Qt::black));
    QCOMPARE(painted.At({(layout.StringX(6) + layout.StringX(5)) / 2, y}), paper);
}

void DiagramPaintingTest::FingersStandInTheirDots() {
    Diagram diagram = Shown(QStringLiteral("x32010"));
    const DiagramLayout layout(diagram);
    const QRectF dot = layout.DotRect(5, 3).adjusted(30, 30, -30, -30);
    QCOMPARE(Painted(diagram, large).Darkness(dot), 1.0);
    diagram.shape.fingers = {0, 1, 0, 2, 3, 0};
    const Painted painted(diagram, large);
    QVERIFY(painted.Darkness(dot) < 0.9);
    QCOMPARE(painted.Darkness(layout.FingerRect(5).adjusted(0, 20, 0, 0)), 0.0);
}

void DiagramPaintingTest::FingersStandBelowSmallDots() {
    Diagram diagram = Shown(QStringLiteral("1(15)0000"));
    diagram.shape.fingers = {0, 0, 0, 0, 4, 1};
    const DiagramLayout layout(diagram);
    const Painted painted(diagram, large);
    QVERIFY(painted.Darkness(layout.FingerRect(5)) > 0.03);
    QCOMPARE(painted.At(layout.DotCentre(5, 15)), QColor(Qt::black));
}

void DiagramPaintingTest::LongNamesStayInside_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("set smaller") << QStringLiteral("F#m7b5add11/C#");
    QTest::newRow("cut") << QString(200, u'W');
}

void DiagramPaintingTest::LongNamesStayInside() {
    QFETCH(const QString, name);
    QImage image(600, 600, QImage::Format_RGB32);
    image.fill(paper);
    QPainter painter(&image);
    const Diagram diagram = Shown(QStringLiteral("x32010"), name);
    const QRectF place(150, 150, 300, 400);
    PaintDiagram(painter, place, diagram, PaperDiagramColours());
    painter.end();
    const QRect allowed = DiagramPlace(place, diagram).toAlignedRect();
    bool inked = false;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const bool blank = image.pixelColor(x, y) == paper;
            QVERIFY(blank || allowed.contains(x, y));
            inked = inked || !blank;
        }
    QVERIFY(inked);
}

void DiagramPaintingTest::NamesAreNoMarkup() {
    const auto inkOf = [](const QString& name) {
        const Diagram diagram = Shown(QStringLiteral("x32010"), name);
        return Painted(diagram, large).Darkness(DiagramLayout(diagram).NameRect());
    };
    QVERIFY(inkOf(QStringLiteral("<b>")) > inkOf(QStringLiteral("b")));
    QVERIFY(inkOf(QStringLiteral("C&D")) > inkOf(QStringLiteral("CD")));
}

void DiagramPaintingTest::ProportionsAreKept() {
    const Diagram diagram = Shown(QStringLiteral("x32010"), QStringLiteral("C"));
    const QSizeF natural = DiagramLayout(diagram).Size();
    for (const QRectF& place : {QRectF(0, 0, 1000, 100), QRectF(7, 9, 100, 1000)}) {
        const QRectF filled = DiagramPlace(place, diagram);
        QVERIFY(place.contains(filled.adjusted(0.01, 0.01, -0.01, -0.01)));
        QCOMPARE(filled.center(), place.center());
        QCOMPARE(filled.width() / filled.height(), natural.width() / natural.height());
    }
}

void DiagramPaintingTest::ThePainterIsLeftAsItWas() {
    QImage image(50, 50, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setPen(Qt::green);
    const QTransform transform = painter.transform();
    PaintDiagram(painter, QRectF(10, 10, 30, 30), Shown(QStringLiteral("x32010")),
                 PaperDiagramColours());
    QCOMPARE(painter.pen().color(), QColor(Qt::green));
    QCOMPARE(painter.transform(), transform);
}

void DiagramPaintingTest::ScreenColoursRead() {
    const DiagramColours colours = ScreenDiagramColours();
    QVERIFY(std::abs(colours.ink.lightness() - colours.dotText.lightness()) > 128);
}

QTEST_MAIN(DiagramPaintingTest)
#include "diagrampainting_test.moc"
