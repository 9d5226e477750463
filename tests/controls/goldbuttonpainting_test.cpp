// How the skinned button paints itself, probed pixel by pixel.
#include "controls/application.h"
#include "controls/colours.h"
#include "controls/icons.h"
#include "onebutton.h"

#include <QPainter>

namespace {

// The button as it paints itself, at a scale of the screen.
QImage Painted(GoldButton& button, double scale = 1) {
    QImage image(button.size() * scale, QImage::Format_ARGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::magenta);
    button.render(&image, {}, {}, {});
    return image;
}

int PixelsOf(const QImage& image, const QColor& colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == colour ? 1 : 0;
    return count;
}

// Where the first and last pixels of a colour stand.
std::pair<int, int> Extent(const QImage& image, const QColor& colour) {
    int first = image.width();
    int last = -1;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) == colour) {
                first = std::min(first, x);
                last = std::max(last, x);
            }
    return {first, last};
}

// Four parts, each of one colour.
QPixmap Skin() {
    QPixmap skin(4 * GoldButton::skinStep, GoldButton::skinStep);
    QPainter painter(&skin);
    int part = 0;
    for (const Qt::GlobalColor colour : {Qt::green, Qt::cyan, Qt::yellow, Qt::darkGreen})
        painter.fillRect(GoldButton::skinStep * part++, 0, GoldButton::skinStep,
                         GoldButton::skinStep, colour);
    return skin;
}

QIcon Square(const QColor& colour) {
    QPixmap pixmap(64, 64);
    pixmap.fill(colour);
    return {pixmap};
}

} // namespace

class GoldButtonPaintingTest : public QObject, private OneButton {
    Q_OBJECT

private Q_SLOTS:
    void init() { Reset(); }
    void EdgesByState();
    void EdgeFlags_data();
    void EdgeFlags();
    void CaptionColours();
    void Alignment_data();
    void Alignment();
    void SkinParts();
    void DisabledSkin();
    void PicturesByState();
    void MissingPictures();
    void Mask();
    void SharpAtTwice();
    void FocusShows();
    void IconsAreDrawn();
};

void GoldButtonPaintingTest::EdgesByState() {
    m_button->SetCaption(QString());
    const QImage normal = Painted(*m_button);
    SendMove({5, 5});
    const QImage hover = Painted(*m_button);
    QTest::mousePress(m_button.get(), Qt::LeftButton);
    m_button->clearFocus();
    m_button->setDown(true);
    const QImage down = Painted(*m_button);
    QVERIFY(normal != hover);
    QVERIFY(hover != down);
    QVERIFY(normal != down);
}

void GoldButtonPaintingTest::EdgeFlags_data() {
    QTest::addColumn<int>("edge");
    QTest::addColumn<QColor>("topLeft");
    QTest::addColumn<QColor>("bottomRight");
    QTest::addColumn<QColor>("innerTopLeft");
    QTest::newRow("none") << 0 << Colours::buttonFace.Now() << Colours::buttonFace.Now()
                          << Colours::buttonFace.Now();
    QTest::newRow("raised outer") << 1 << Colours::window.Now() << Colours::buttonDark.Now()
                                  << Colours::buttonFace.Now();
    QTest::newRow("sunken outer") << 2 << Colours::edge.Now() << Colours::edge.Now()
                                  << Colours::buttonFace.Now();
    QTest::newRow("raised inner alone")
        << 4 << Colours::edge.Now() << Colours::edge.Now() << Colours::buttonFace.Now();
    QTest::newRow("sunken inner alone")
        << 8 << Colours::buttonDark.Now() << Colours::window.Now() << Colours::buttonFace.Now();
    QTest::newRow("raised") << 5 << Colours::window.Now() << Colours::buttonDark.Now()
                            << Colours::edge.Now();
    QTest::newRow("sunken") << 10 << Colours::edge.Now() << Colours::edge.Now()
                            << Colours::buttonDark.Now();
}

void GoldButtonPaintingTest::EdgeFlags() {
    QFETCH(const int, edge);
    QFETCH(const QColor, topLeft);
    QFETCH(const QColor, bottomRight);
    QFETCH(const QColor, innerTopLeft);
    m_button->SetCaption(QString());
    m_button->SetOnUp(edge);
    const QImage image = Painted(*m_button);
    QCOMPARE(image.pixelColor(60, 0), topLeft);
    QCOMPARE(image.pixelColor(0, 20), topLeft);
    QCOMPARE(image.pixelColor(60, 39), bottomRight);
    QCOMPARE(image.pixelColor(119, 20), bottomRight);
    QCOMPARE(image.pixelColor(60, 1), innerTopLeft);
    QCOMPARE(image.pixelColor(1, 20), innerTopLeft);
}

void GoldButtonPaintingTest::CaptionColours() {
    m_button->SetCaption(QStringLiteral("HHHH"));
    m_button->SetForeColor(OleColor::Rgb(200, 0, 0));
    QVERIFY(PixelsOf(Painted(*m_button), QColor(200, 0, 0)) > 10);
    SendMove({5, 5});
    QVERIFY(PixelsOf(Painted(*m_button), QColor(0, 0, 255)) > 10);
    m_button->SetDownColor(OleColor::Rgb(0, 150, 0));
    m_button->setDown(true);
    QVERIFY(PixelsOf(Painted(*m_button), QColor(0, 150, 0)) > 10);
    m_button->setEnabled(false);
    QVERIFY(PixelsOf(Painted(*m_button), Colours::mutedText) > 10);
}

void GoldButtonPaintingTest::Alignment_data() {
    QTest::addColumn<int>("alignment");
    QTest::newRow("left") << 0;
    QTest::newRow("right") << 1;
    QTest::newRow("centre") << 2;
}

void GoldButtonPaintingTest::Alignment() {
    QFETCH(const int, alignment);
    m_button->SetCaption(QStringLiteral("HH"));
    m_button->SetForeColor(OleColor::Rgb(200, 0, 0));
    m_button->SetAlignment(alignment);
    const auto [first, last] = Extent(Painted(*m_button), QColor(200, 0, 0));
    const int before = first;
    const int behind = 119 - last;
    if (alignment == 0)
        QVERIFY(before < 20 && behind > 60);
    else if (alignment == 1)
        QVERIFY(behind < 20 && before > 60);
    else
        QVERIFY(std::abs(before - behind) <= 3);
}

void GoldButtonPaintingTest::SkinParts() {
    m_button->SetCaption(QString());
    m_button->SetSkinPicture(Skin());
    m_button->SetStyle(GoldButton::bsSkin);
    const auto border = [&](const QColor& colour) {
        const QImage image = Painted(*m_button);
        // Two pixels all around, corners included, and nothing inside.
        const int all = 2 * 2 * (120 + 40) - 4 * 4;
        return PixelsOf(image, colour) == all &&
               image.pixelColor(60, 2) == Colours::buttonFace.Now();
    };
    QVERIFY(border(Qt::green));
    SendMove({5, 5});
    QVERIFY(border(Qt::cyan));
    m_button->setDown(true);
    QVERIFY(border(Qt::yellow));
    m_button->setEnabled(false);
    QVERIFY(border(Qt::darkGreen));
}

void GoldButtonPaintingTest::DisabledSkin() {
    m_button->SetCaption(QStringLiteral("HHHH"));
    m_button->SetSkinPicture(Skin());
    m_button->SetStyle(GoldButton::bsSkin);
    m_button->SetSkinDisabledText(OleColor::Rgb(10, 20, 30));
    m_button->SetSkinHighlight(OleColor::Rgb(200, 210, 220));
    m_button->setEnabled(false);
    const QImage image = Painted(*m_button);
    QVERIFY(PixelsOf(image, QColor(10, 20, 30)) > 10);
    QVERIFY(PixelsOf(image, QColor(200, 210, 220)) > 5);
}

void GoldButtonPaintingTest::PicturesByState() {
    m_button->SetCaption(QString());
    m_button->SetPicture(Square(Qt::green));
    m_button->SetPictureHover(Square(Qt::cyan));
    m_button->SetPictureDown(Square(Qt::yellow));
    m_button->SetPictureDisabled(Square(Qt::magenta));
    const QPoint middle(60, 20);
    QCOMPARE(Painted(*m_button).pixelColor(middle), QColor(Qt::green));
    SendMove({5, 5});
    QCOMPARE(Painted(*m_button).pixelColor(middle), QColor(Qt::cyan));
    m_button->setDown(true);
    QCOMPARE(Painted(*m_button).pixelColor(middle), QColor(Qt::yellow));
    m_button->setEnabled(false);
    QVERIFY(Painted(*m_button).pixelColor(middle) != QColor(Qt::yellow));
}

void GoldButtonPaintingTest::MissingPictures() {
    m_button->SetCaption(QString());
    m_button->SetPicture(Square(Qt::green));
    SendMove({5, 5});
    QCOMPARE(Painted(*m_button).pixelColor(60, 20), QColor(Qt::green));
    m_button->setEnabled(false);
    QVERIFY(Painted(*m_button).pixelColor(60, 20) != QColor(Qt::green)); // Faded.
}

void GoldButtonPaintingTest::Mask() {
    m_button->SetCaption(QString());
    m_button->SetPicture(Square(QColor(1, 2, 3)));
    m_button->SetMaskColor(OleColor::Rgb(1, 2, 3));
    m_button->SetPictureBackColor(OleColor::Rgb(4, 5, 6));
    QCOMPARE(Painted(*m_button).pixelColor(60, 20), QColor(1, 2, 3));
    m_button->SetUseMaskColor(true);
    QCOMPARE(Painted(*m_button).pixelColor(60, 20), QColor(4, 5, 6));
    m_button->SetMaskColor(OleColor::Rgb(1, 2, 4));
    QCOMPARE(Painted(*m_button).pixelColor(60, 20), QColor(1, 2, 3));
}

void GoldButtonPaintingTest::SharpAtTwice() {
    m_button->SetCaption(QString());
    m_button->SetPicture(MakeIcon(Icon::Help));
    const QImage once = Painted(*m_button, 1);
    const QImage twice = Painted(*m_button, 2);
    QVERIFY(once.scaled(twice.size()) != twice);
    // A picture blown up would come in blocks of four equal pixels. The corners are no picture.
    constexpr int edge = 16;
    int broken = 0;
    for (int y = edge; y + edge < twice.height(); y += 2)
        for (int x = edge; x + edge < twice.width(); x += 2)
            broken += twice.pixel(x, y) != twice.pixel(x + 1, y) ||
                              twice.pixel(x, y) != twice.pixel(x, y + 1)
                          ? 1
                          : 0;
    QVERIFY2(broken > 60, qPrintable(QString::number(broken)));
}

void GoldButtonPaintingTest::FocusShows() {
    const QImage without = Painted(*m_button);
    m_button->setFocus();
    const QImage with = Painted(*m_button);
    QVERIFY(PixelsOf(with, Colours::focus) > PixelsOf(without, Colours::focus) + 100);
}

void GoldButtonPaintingTest::IconsAreDrawn() {
    QList<QImage> seen;
    for (int icon = 0; icon <= static_cast<int>(Icon::Dashes); ++icon) {
        const QImage image = MakeIcon(static_cast<Icon>(icon)).pixmap(QSize(48, 48), 1.0).toImage();
        int painted = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                painted += qAlpha(image.pixel(x, y)) > 128 ? 1 : 0;
        QVERIFY(painted > 60);
        QVERIFY(!seen.contains(image));
        seen += image;
    }
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    GoldButtonPaintingTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "goldbuttonpainting_test.moc"
