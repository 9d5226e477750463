// Every text can be read on what lies behind it: a contrast of 4.5 to 1 or more, by the
// formula of the Web Content Accessibility Guidelines.
#include "controls/colours.h"

#include <QTest>

#include <algorithm>
#include <cmath>

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

} // namespace

class ColoursTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TheFormula();
    void TextsCanBeRead_data();
    void TextsCanBeRead();
};

void ColoursTest::TheFormula() {
    QCOMPARE(std::round(Contrast(Qt::black, Qt::white) * 100), 2100.0);
    QCOMPARE(std::round(Contrast(Qt::red, Qt::white) * 100), 400.0);
    QCOMPARE(Contrast(Qt::blue, Qt::blue), 1.0);
}

void ColoursTest::TextsCanBeRead_data() {
    using namespace Colours;
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QColor>("behind");
    QTest::newRow("captions") << Colours::text << window;
    QTest::newRow("captions of frames") << quietText << window;
    QTest::newRow("list rows") << Colours::text << field;
    QTest::newRow("every second list row") << Colours::text << fieldStripe;
    QTest::newRow("the selected row") << selectionText << selection;
    QTest::newRow("buttons") << Colours::text << buttonFace;
    QTest::newRow("what is disabled") << mutedText << window;
    QTest::newRow("captions in frames") << Colours::text << frame;
    QTest::newRow("what is disabled in frames") << mutedText << frame;
    QTest::newRow("disabled list rows") << mutedText << field;
    QTest::newRow("disabled buttons") << mutedText << buttonFace;
    QTest::newRow("hints in fields") << quietText << field;
    QTest::newRow("tool tips") << Colours::text << toolTip;
    QTest::newRow("links") << focus << window;
    QTest::newRow("notes and fret numbers") << normalText << window;
    QTest::newRow("under the pointer") << highlight << window;
    QTest::newRow("the name on a marked key") << normalText << mark;
    QTest::newRow("the name on a pointed fret") << Colours::text << field;
    QTest::newRow("the missing root") << mark << behindMark;
}

void ColoursTest::TextsCanBeRead() {
    QFETCH(QColor, text);
    QFETCH(QColor, behind);
    const double contrast = Contrast(text, behind);
    QVERIFY2(contrast >= 4.5, qPrintable(QString::number(contrast)));
}

QTEST_APPLESS_MAIN(ColoursTest)
#include "colours_test.moc"
