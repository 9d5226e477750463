// The skinned button: properties, states, events, painting.
#include "controls/application.h"
#include "controls/colours.h"
#include "controls/goldbutton.h"
#include "controls/handle.h"
#include "controls/icons.h"
#include "core/runtimeerror.h"
#include "support/dialogs.h"

#include <QAccessible>
#include <QMetaProperty>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

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

class GoldButtonTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void PropertiesInTheirOrder();
    void Defaults();
    void ColoursAsQtColours();
    void CaptionIsTheName();
    void BadValues();
    void OneEnterAndOneExit();
    void MovesOutside();
    void ClickOnce();
    void OtherButtonsOnlyTell();
    void EventsTellButtonsAndModifiers();
    void Keyboard();
    void LosingFocus();
    void DisabledIsDeaf();
    void HandlerThatFails();
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
    void ScreenReaderName();
    void IconsAreDrawn();

private:
    void Enter() { QTest::mouseMove(m_button.get(), {5, 5}); }
    void SendMove(QPointF place, Qt::MouseButtons buttons = {});

    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<GoldButton> m_button;
};

void GoldButtonTest::init() {
    m_button.reset();
    m_window = std::make_unique<QWidget>();
    m_button = std::make_unique<GoldButton>(QStringLiteral("cmdTest"), m_window.get());
    m_button->setGeometry(20, 20, 120, 40);
    m_window->resize(200, 100);
    QFont hard = m_window->font(); // Letters without grey edges can be counted.
    hard.setStyleStrategy(QFont::NoAntialias);
    hard.setBold(true);
    m_window->setFont(hard);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_button->clearFocus();
}

void GoldButtonTest::SendMove(QPointF place, Qt::MouseButtons buttons) {
    QMouseEvent move(QEvent::MouseMove, place, m_button->mapToGlobal(place), Qt::NoButton, buttons,
                     {});
    QCoreApplication::sendEvent(m_button.get(), &move);
}

void GoldButtonTest::PropertiesInTheirOrder() {
    const QMetaObject* meta = m_button->metaObject();
    QStringList names;
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i)
        names += QString::fromLatin1(meta->property(i).name());
    QCOMPARE(names.join(u' '),
             QStringLiteral("Caption Enabled Alignment HoverColor ForeColor DownColor "
                            "SkinDisabledText SkinHighlight PictureBackColor OnUp OnDown OnHover "
                            "Style MaskColor UseMaskColor SkinPicture Picture PictureHover "
                            "PictureDown PictureDisabled Font"));
}

void GoldButtonTest::Defaults() {
    QCOMPARE(m_button->property("Enabled").toBool(), true);
    QCOMPARE(m_button->property("Alignment").toInt(), 2);
    QCOMPARE(m_button->property("OnUp").toInt(), 4);
    QCOMPARE(m_button->property("OnDown").toInt(), 10);
    QCOMPARE(m_button->property("OnHover").toInt(), 5);
    QCOMPARE(m_button->property("Style").toInt(), 0);
    QCOMPARE(m_button->property("UseMaskColor").toBool(), false);
    QCOMPARE(m_button->property("HoverColor").toUInt(), 0x00FF0000U);
    QCOMPARE(m_button->property("DownColor").toUInt(), 0x00FF0000U);
    QCOMPARE(m_button->property("ForeColor").toUInt(), 0x80000012U);
    QCOMPARE(m_button->property("SkinDisabledText").toUInt(), 0x80000010U);
    QCOMPARE(m_button->property("SkinHighlight").toUInt(), 0x80000014U);
    QCOMPARE(m_button->property("PictureBackColor").toUInt(), 0x8000000FU);
    QCOMPARE(m_button->property("MaskColor").toUInt(), 0x8000000FU);
    QVERIFY(m_button->Picture().isNull());
    QVERIFY(m_button->SkinPicture().isNull());
    QCOMPARE(m_button->property("Font").value<QFont>(), m_window->font());
}

void GoldButtonTest::ColoursAsQtColours() {
    QCOMPARE(m_button->property("HoverColor").value<QColor>(), QColor(0, 0, 255));
    QCOMPARE(m_button->property("ForeColor").value<QColor>(), Colours::text.Now());
    QVERIFY(m_button->setProperty("HoverColor", QColor(1, 2, 3)));
    QCOMPARE(m_button->HoverColor().value, 0x00030201U);
    QVERIFY(m_button->setProperty("DownColor", 0x000000FFU));
    QCOMPARE(m_button->DownColor().In(m_button->palette()), QColor(255, 0, 0));
}

void GoldButtonTest::CaptionIsTheName() {
    QCOMPARE(m_button->Caption(), QStringLiteral("cmdTest"));
    m_button->SetCaption(QString());
    QCOMPARE(m_button->Caption(), QString());
    m_button->setProperty("Caption", QStringLiteral("Play"));
    QCOMPARE(m_button->text(), QStringLiteral("Play"));
}

void GoldButtonTest::BadValues() {
    QVERIFY_THROWS_EXCEPTION(RunTimeError, m_button->SetAlignment(3));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, m_button->SetAlignment(-1));
    QCOMPARE(m_button->Alignment(), 2);
    QVERIFY_THROWS_EXCEPTION(RunTimeError, m_button->setProperty("Style", 2));
    QCOMPARE(m_button->Style(), GoldButton::bsNormal);
}

void GoldButtonTest::OneEnterAndOneExit() {
    QSignalSpy enter(m_button.get(), &GoldButton::MouseEnter);
    QSignalSpy leave(m_button.get(), &GoldButton::MouseExit);
    for (const double x : {1.0, 50.0, 119.0})
        SendMove({x, 5});
    QCOMPARE(enter.size(), 1);
    QCOMPARE(leave.size(), 0);
    QCOMPARE(m_button->CurrentState(), GoldButton::State::Hover);
    SendMove({-1, 5});
    QEvent away(QEvent::Leave);
    QCoreApplication::sendEvent(m_button.get(), &away);
    QCOMPARE(enter.size(), 1);
    QCOMPARE(leave.size(), 1);
    QCOMPARE(m_button->CurrentState(), GoldButton::State::Normal);
}

void GoldButtonTest::MovesOutside() {
    QSignalSpy leave(m_button.get(), &GoldButton::MouseExit);
    for (const QPointF outside :
         {QPointF(-1, 5), QPointF(121, 5), QPointF(5, -1), QPointF(5, 41)}) {
        leave.clear();
        SendMove({5, 5});
        SendMove({120, 40}); // The very edge is inside.
        QCOMPARE(leave.size(), 0);
        SendMove(outside);
        QCOMPARE(leave.size(), 1);
    }
}

void GoldButtonTest::ClickOnce() {
    QSignalSpy click(m_button.get(), &GoldButton::Click);
    QSignalSpy clicked(m_button.get(), &QAbstractButton::clicked);
    QSignalSpy down(m_button.get(), &GoldButton::MouseDown);
    QSignalSpy up(m_button.get(), &GoldButton::MouseUp);
    QTest::mousePress(m_button.get(), Qt::LeftButton);
    QCOMPARE(m_button->CurrentState(), GoldButton::State::Down);
    QCOMPARE(click.size(), 0);
    QTest::mouseRelease(m_button.get(), Qt::LeftButton);
    QVERIFY(m_button->CurrentState() != GoldButton::State::Down);
    for (const auto* spy : {&click, &clicked, &down, &up})
        QCOMPARE(spy->size(), 1);
}

void GoldButtonTest::OtherButtonsOnlyTell() {
    QSignalSpy click(m_button.get(), &GoldButton::Click);
    QSignalSpy down(m_button.get(), &GoldButton::MouseDown);
    QTest::mouseClick(m_button.get(), Qt::RightButton);
    QCOMPARE(click.size(), 0);
    QCOMPARE(down.size(), 1);
    QVERIFY(m_button->CurrentState() != GoldButton::State::Down);
}

void GoldButtonTest::EventsTellButtonsAndModifiers() {
    QSignalSpy down(m_button.get(), &GoldButton::MouseDown);
    QSignalSpy moved(m_button.get(), &GoldButton::MouseMove);
    QTest::mousePress(m_button.get(), Qt::MiddleButton, Qt::ShiftModifier | Qt::AltModifier,
                      {7, 9});
    QCOMPARE(down.first(), (QVariantList{4, 5, 7.0, 9.0}));
    SendMove({8, 9}, Qt::LeftButton | Qt::RightButton);
    QCOMPARE(moved.last(), (QVariantList{3, 0, 8.0, 9.0}));
}

void GoldButtonTest::Keyboard() {
    QSignalSpy click(m_button.get(), &GoldButton::Click);
    QTest::keyClick(m_window.get(), Qt::Key_Tab);
    QVERIFY(m_button->hasFocus());
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
        QTest::keyClick(m_button.get(), key);
    QCOMPARE(click.size(), 3);
    QTest::keyPress(m_button.get(), Qt::Key_Space);
    QCOMPARE(m_button->CurrentState(), GoldButton::State::Down);
    QTest::keyRelease(m_button.get(), Qt::Key_Space);
}

void GoldButtonTest::LosingFocus() {
    QSignalSpy click(m_button.get(), &GoldButton::Click);
    m_button->setFocus();
    Enter();
    SendMove({5, 5});
    QTest::mousePress(m_button.get(), Qt::LeftButton);
    m_button->clearFocus();
    QCOMPARE(m_button->CurrentState(), GoldButton::State::Normal);
    QTest::mouseRelease(m_button.get(), Qt::LeftButton);
    QCOMPARE(click.size(), 0);
}

void GoldButtonTest::DisabledIsDeaf() {
    SendMove({5, 5});
    QSignalSpy leave(m_button.get(), &GoldButton::MouseExit);
    m_button->setProperty("Enabled", false);
    QVERIFY(!m_button->isEnabled());
    QCOMPARE(leave.size(), 1);
    QSignalSpy click(m_button.get(), &GoldButton::Click);
    QTest::mouseClick(m_button.get(), Qt::LeftButton);
    QCOMPARE(click.size(), 0);
    QCOMPARE(m_button->CurrentState(), GoldButton::State::Disabled);
}

void GoldButtonTest::HandlerThatFails() {
    Handle(m_button.get(), &GoldButton::Click, m_button.get(), [] {
        throw RunTimeError({QStringLiteral("нет"), QStringLiteral("no")});
    });
    BoxSeen box;
    AnswerBox(box);
    QTest::mouseClick(m_button.get(), Qt::LeftButton);
    QVERIFY(box.seen);
    QCOMPARE(box.text, QStringLiteral("нет"));
    QVERIFY(m_button->CurrentState() != GoldButton::State::Down);
}

void GoldButtonTest::EdgesByState() {
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

void GoldButtonTest::EdgeFlags_data() {
    QTest::addColumn<int>("edge");
    QTest::addColumn<QColor>("topLeft");
    QTest::addColumn<QColor>("bottomRight");
    QTest::addColumn<QColor>("innerTopLeft");
    QTest::newRow("none") << 0 << Colours::buttonFace.Now() << Colours::buttonFace.Now() << Colours::buttonFace.Now();
    QTest::newRow("raised outer") << 1 << Colours::window.Now() << Colours::buttonDark.Now()
                                  << Colours::buttonFace.Now();
    QTest::newRow("sunken outer") << 2 << Colours::buttonShadow.Now() << Colours::buttonLight.Now()
                                  << Colours::buttonFace.Now();
    QTest::newRow("raised inner alone")
        << 4 << Colours::buttonLight.Now() << Colours::buttonShadow.Now() << Colours::buttonFace.Now();
    QTest::newRow("sunken inner alone")
        << 8 << Colours::buttonDark.Now() << Colours::window.Now() << Colours::buttonFace.Now();
    QTest::newRow("raised") << 5 << Colours::window.Now() << Colours::buttonDark.Now() << Colours::buttonLight.Now();
    QTest::newRow("sunken") << 10 << Colours::buttonShadow.Now() << Colours::buttonLight.Now()
                            << Colours::buttonDark.Now();
}

void GoldButtonTest::EdgeFlags() {
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

void GoldButtonTest::CaptionColours() {
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

void GoldButtonTest::Alignment_data() {
    QTest::addColumn<int>("alignment");
    QTest::newRow("left") << 0;
    QTest::newRow("right") << 1;
    QTest::newRow("centre") << 2;
}

void GoldButtonTest::Alignment() {
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

void GoldButtonTest::SkinParts() {
    m_button->SetCaption(QString());
    m_button->SetSkinPicture(Skin());
    m_button->SetStyle(GoldButton::bsSkin);
    const auto border = [&](const QColor& colour) {
        const QImage image = Painted(*m_button);
        // Two pixels all around, corners included, and nothing inside.
        const int all = 2 * 2 * (120 + 40) - 4 * 4;
        return PixelsOf(image, colour) == all && image.pixelColor(60, 2) == Colours::buttonFace.Now();
    };
    QVERIFY(border(Qt::green));
    SendMove({5, 5});
    QVERIFY(border(Qt::cyan));
    m_button->setDown(true);
    QVERIFY(border(Qt::yellow));
    m_button->setEnabled(false);
    QVERIFY(border(Qt::darkGreen));
}

void GoldButtonTest::DisabledSkin() {
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

void GoldButtonTest::PicturesByState() {
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

void GoldButtonTest::MissingPictures() {
    m_button->SetCaption(QString());
    m_button->SetPicture(Square(Qt::green));
    SendMove({5, 5});
    QCOMPARE(Painted(*m_button).pixelColor(60, 20), QColor(Qt::green));
    m_button->setEnabled(false);
    QVERIFY(Painted(*m_button).pixelColor(60, 20) != QColor(Qt::green)); // Faded.
}

void GoldButtonTest::Mask() {
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

void GoldButtonTest::SharpAtTwice() {
    m_button->SetCaption(QString());
    m_button->SetPicture(MakeIcon(Icon::Help));
    const QImage once = Painted(*m_button, 1);
    const QImage twice = Painted(*m_button, 2);
    QVERIFY(once.scaled(twice.size()) != twice);
    // A picture blown up would come in blocks of four equal pixels.
    int broken = 0;
    for (int y = 0; y + 1 < twice.height(); y += 2)
        for (int x = 0; x + 1 < twice.width(); x += 2)
            broken += twice.pixel(x, y) != twice.pixel(x + 1, y) ||
                              twice.pixel(x, y) != twice.pixel(x, y + 1)
                          ? 1
                          : 0;
    QVERIFY(broken > 60);
}

void GoldButtonTest::FocusShows() {
    const QImage without = Painted(*m_button);
    m_button->setFocus();
    const QImage with = Painted(*m_button);
    QVERIFY(PixelsOf(with, Colours::focus) > PixelsOf(without, Colours::focus) + 100);
}

void GoldButtonTest::ScreenReaderName() {
    m_button->SetCaption(QStringLiteral("&Play"));
    auto* spoken = QAccessible::queryAccessibleInterface(m_button.get());
    QCOMPARE(spoken->text(QAccessible::Name), QStringLiteral("Play"));
    QCOMPARE(spoken->role(), QAccessible::Button);
    m_button->SetCaption(QString());
    m_button->setAccessibleName(QStringLiteral("Play the strings"));
    QCOMPARE(spoken->text(QAccessible::Name), QStringLiteral("Play the strings"));
    QSignalSpy click(m_button.get(), &GoldButton::Click);
    spoken->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTRY_COMPARE(click.size(), 1);
}

void GoldButtonTest::IconsAreDrawn() {
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
    GoldButtonTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "goldbutton_test.moc"
