// Every text can be read on what lies behind it, and every edge be seen, in both schemes: contrasts
// by the formula of the Web Content Accessibility Guidelines.
#include "controls/colours.h"
#include "controls/theme.h"

#include <QPalette>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <functional>
#include <vector>

namespace {

double Linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
    return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
           0.0722 * Linear(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

// A colour as a row of a table names it, whichever scheme is looked at.
using Seen = std::function<QColor(Scheme)>;

Seen In(const Colours::Shade& shade) {
    return [shade](Scheme scheme) { return shade.In(scheme); };
}

Seen In(const QColor& colour) {
    return [colour](Scheme) { return colour; };
}

struct Pair {
    const char* what;
    Seen front;
    Seen behind;
    double least;
};

void AddRows(const std::vector<Pair>& pairs) {
    QTest::addColumn<QColor>("front");
    QTest::addColumn<QColor>("behind");
    QTest::addColumn<double>("least");
    for (const auto scheme : {Scheme::Light, Scheme::Dark})
        for (const Pair& pair : pairs)
            QTest::addRow("%s: %s", scheme == Scheme::Dark ? "dark" : "light", pair.what)
                << pair.front(scheme) << pair.behind(scheme) << pair.least;
}

} // namespace

class ColoursTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TheFormula();
    void ThePrescribedAreTheSame();
    void TheSchemeInUse();
    void TheDesktopsWindowsDecide();
    void Contrasts_data();
    void Contrasts();
};

void ColoursTest::TheFormula() {
    QCOMPARE(std::round(Contrast(Qt::black, Qt::white) * 100), 2100.0);
    QCOMPARE(std::round(Contrast(Qt::red, Qt::white) * 100), 400.0);
    QCOMPARE(Contrast(Qt::blue, Qt::blue), 1.0);
}

void ColoursTest::ThePrescribedAreTheSame() {
    QCOMPARE(Colours::mark, QColor(255, 0, 0));
    QCOMPARE(Colours::highlight, QColor(0, 0, 255));
    QCOMPARE(Colours::normalText, QColor(0, 0, 0));
}

void ColoursTest::TheSchemeInUse() {
    QCOMPARE(Colours::CurrentScheme(), Scheme::Light);
    QCOMPARE(Colours::text.Now(), Colours::text.In(Scheme::Light));
    Colours::UseScheme(Scheme::Dark);
    QCOMPARE(Colours::text.Now(), Colours::text.In(Scheme::Dark));
    Colours::UseScheme(Scheme::Light);
}

void ColoursTest::TheDesktopsWindowsDecide() {
    const auto scheme = [](const QColor& window) {
        return SchemeOfWindows(QPalette(Qt::gray, window));
    };
    QCOMPARE(scheme(QColor(0x31, 0x36, 0x3B)), Scheme::Dark);
    QCOMPARE(scheme(QColor(0xEF, 0xF0, 0xF1)), Scheme::Light);
}

void ColoursTest::Contrasts_data() {
    using namespace Colours;
    constexpr double ofText = 4.5;
    constexpr double ofEdges = 3;
    constexpr double ofPureRed = 3.9; // Red can't do better on white.
    AddRows({
        {"captions", In(Colours::text), In(window), ofText},
        {"captions of frames", In(quietText), In(window), ofText},
        {"captions in frames", In(Colours::text), In(frame), ofText},
        {"hints in frames", In(quietText), In(frame), ofText},
        {"list rows", In(Colours::text), In(field), ofText},
        {"every second list row", In(Colours::text), In(fieldStripe), ofText},
        {"the selected row", In(selectionText), In(selection), ofText},
        {"the row of a list that rules nothing", In(Colours::text), In(dimSelection), ofText},
        {"signs at the nut", In(onPlate), In(plate), ofText},
        {"buttons", In(Colours::text), In(buttonFace), ofText},
        {"what is disabled", In(mutedText), In(window), ofText},
        {"what is disabled in frames", In(mutedText), In(frame), ofText},
        {"disabled list rows", In(mutedText), In(field), ofText},
        {"disabled buttons", In(mutedText), In(buttonFace), ofText},
        {"hints in fields", In(quietText), In(field), ofText},
        {"tool tips", In(Colours::text), In(toolTip), ofText},
        {"links", In(focus), In(window), ofText},
        {"notes and fret numbers", In(normalText), In(plate), ofText},
        {"under the pointer", In(highlight), In(plate), ofText},
        {"a button under the pointer", In(highlight), In(pointedFace), ofText},
        {"muted strings", In(mutedOnPlate), In(plate), ofText},
        {"missing notes", In(normalText), In(paper), ofText},
        {"the missing root", In(mark), In(paper), ofPureRed},
        {"the name on a marked key", In(normalText), In(mark), ofText},
        {"the name on a pointed fret", In(onWoodText), In(onWood), ofText},
        {"edges in windows", In(edge), In(window), ofEdges},
        {"edges in frames", In(edge), In(frame), ofEdges},
        {"edges of fields", In(edge), In(field), ofEdges},
        {"edges of buttons", In(edge), In(buttonFace), ofEdges},
        {"the focus in windows", In(focus), In(window), ofEdges},
        {"the focus in fields", In(focus), In(field), ofEdges},
        {"the focus on buttons", In(focus), In(buttonFace), ofEdges},
        {"the focus beside a selected row", In(selection), In(field), ofEdges},
        {"pictures on buttons", In(selection), In(buttonFace), ofEdges},
    });
}

void ColoursTest::Contrasts() {
    QFETCH(QColor, front);
    QFETCH(QColor, behind);
    QFETCH(double, least);
    const double contrast = Contrast(front, behind);
    QVERIFY2(contrast >= least, qPrintable(QString::number(contrast)));
}

QTEST_APPLESS_MAIN(ColoursTest)
#include "colours_test.moc"
