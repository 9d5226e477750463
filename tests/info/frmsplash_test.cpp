// The splash: its texts and the five steps of its bar.
#include "info/frmsplash.h"

#include <QLabel>
#include <QTest>

namespace {

QString TextOf(const QWidget& window, const char* name) {
    return window.findChild<QLabel*>(QString::fromLatin1(name))->text();
}

const Author someone{{QStringLiteral("Анна"), QStringLiteral("Anna")},
                     QStringLiteral("anna@example.org")};

} // namespace

class FrmSplashTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TheTextsStandAsWritten() {
        const frmSplash splash;
        QCOMPARE(splash.objectName(), QStringLiteral("frmSplash"));
        QCOMPARE(TextOf(splash, "Label1"), QStringLiteral("Tonvik 2.1"));
        QCOMPARE(splash.findChild<QLabel*>(QStringLiteral("Label1"))->font().family(),
                 QStringLiteral("Arial"));
        QCOMPARE(TextOf(splash, "Label2"),
                 QStringLiteral("Version: 2.1-beta, platform: Win9x/NT, freeware"));
        QCOMPARE(TextOf(splash, "Label3"), QStringLiteral("Please, wait a minute..."));
    }

    void TheAuthorIsNamed_data() {
        QTest::addColumn<QString>("email");
        QTest::addColumn<QString>("line");
        QTest::newRow("with an address")
            << someone.email << QStringLiteral("Author: Anna (anna@example.org)");
        QTest::newRow("without one") << QString() << QStringLiteral("Author: Anna");
    }
    void TheAuthorIsNamed() {
        QFETCH(const QString, email);
        QFETCH(const QString, line);
        QCOMPARE(TextOf(frmSplash({someone.name, email}), "lblInfo"), line);
        QCOMPARE(TextOf(frmSplash(), "lblInfo"), QStringLiteral("Author: The Tonvik developers"));
    }

    void TheBarEndsOneFrameWidthWider() {
        frmSplash splash;
        const float start = splash.BarWidth();
        for (int step = 1; step <= frmSplash::steps; ++step) {
            const float before = splash.BarWidth();
            splash.ProgressStep();
            QCOMPARE(splash.BarWidth(), before + splash.FrameWidth() / 5);
        }
        QCOMPARE(splash.BarWidth(), start + splash.FrameWidth());
        QCOMPARE(splash.Shape3->geometry(), splash.Shape2->geometry());
    }

    void TheBarIsPaintedAsWideAsItIs() {
        frmSplash splash;
        splash.show();
        QVERIFY(QTest::qWaitForWindowExposed(&splash));
        const auto barAt = [&splash](double share) {
            const QRect frame = splash.Shape2->geometry();
            const QPoint place(frame.x() + qRound(frame.width() * share), frame.center().y());
            return splash.grab().toImage().pixelColor(place);
        };
        const QColor empty = barAt(0.1);
        splash.ProgressStep();
        QVERIFY(barAt(0.1) != empty);
        QCOMPARE(barAt(0.3), empty);
        splash.ProgressStep();
        QVERIFY(barAt(0.3) != empty);
        QCOMPARE(barAt(0.5), empty);
    }

    void ItIsModelessAndFrameless() {
        const frmSplash splash;
        QVERIFY(!splash.isModal());
        QVERIFY(splash.windowFlags().testFlag(Qt::FramelessWindowHint));
        for (const QWidget* shape : {splash.Shape1, splash.Shape2, splash.Shape3})
            QVERIFY(splash.rect().contains(shape->geometry()));
    }
};

QTEST_MAIN(FrmSplashTest)
#include "frmsplash_test.moc"
