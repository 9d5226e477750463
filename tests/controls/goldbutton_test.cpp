// The skinned button: properties, states, events.
#include "controls/application.h"
#include "controls/colours.h"
#include "controls/handle.h"
#include "core/runtimeerror.h"
#include "onebutton.h"
#include "support/dialogs.h"

#include <QAccessible>
#include <QMetaProperty>
#include <QSignalSpy>

class GoldButtonTest : public QObject, private OneButton {
    Q_OBJECT

private Q_SLOTS:
    void init() { Reset(); }
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
    void ScreenReaderName();
};

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

int main(int argc, char** argv) {
    Application application(argc, argv);
    GoldButtonTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "goldbutton_test.moc"
