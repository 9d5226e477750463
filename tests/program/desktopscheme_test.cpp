// The desktop's choice of light or dark, over a bus of the test's own with a portal on it.
#include "program/desktopscheme.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QTest>

// Answers as a desktop's portal does.
class Portal : public QDBusVirtualObject {
public:
    std::optional<uint> colorScheme; // Nothing for a portal that knows no such setting.

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        asked = message.arguments();
        bus.send(colorScheme
                     ? message.createReply(QVariant::fromValue(
                           QDBusVariant(QVariant::fromValue(QDBusVariant(*colorScheme)))))
                     : message.createErrorReply(QStringLiteral("org.freedesktop.portal.Error"),
                                                QStringLiteral("not found")));
        return true;
    }

    QVariantList asked;
};

class DesktopSchemeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--session"), QStringLiteral("--nofork"),
                        QStringLiteral("--print-address=1")});
        QVERIFY(m_daemon.waitForReadyRead());
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_daemon.readLine().trimmed());
        auto bus = QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"),
                                                 QStringLiteral("portal"));
        QVERIFY(bus.registerVirtualObject(QStringLiteral("/org/freedesktop/portal/desktop"),
                                          &m_portal));
        QVERIFY(bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
    }
    void cleanupTestCase() {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    void WhatThePortalSays_data() {
        QTest::addColumn<uint>("colorScheme");
        QTest::addColumn<QList<Scheme>>("heard");
        QTest::newRow("no preference: the palette goes on ruling") << 0U << QList<Scheme>();
        QTest::newRow("dark") << 1U << QList{Scheme::Dark};
        QTest::newRow("light") << 2U << QList{Scheme::Light};
        QTest::newRow("what is not known yet") << 3U << QList<Scheme>();
    }
    void WhatThePortalSays() {
        QFETCH(const uint, colorScheme);
        QFETCH(const QList<Scheme>, heard);
        m_portal.colorScheme = colorScheme;
        QCOMPARE(Heard(), heard);
        QCOMPARE(m_portal.asked, (QVariantList{QStringLiteral("org.freedesktop.appearance"),
                                               QStringLiteral("color-scheme")}));
    }

    void APortalThatKnowsNoSuchSetting() {
        m_portal.colorScheme.reset();
        QCOMPARE(Heard(), QList<Scheme>());
    }

    void NobodyIsAskedWithoutABus() {
        const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        qunsetenv("XDG_RUNTIME_DIR");
        QObject context;
        AskDesktopScheme(&context, [](Scheme) { QFAIL("somebody answered"); });
        QVERIFY(context.children().isEmpty());
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    }

private:
    // What is heard until the question is done with.
    static QList<Scheme> Heard() {
        QList<Scheme> heard;
        QObject context;
        AskDesktopScheme(&context, [&heard](Scheme scheme) { heard += scheme; });
        if (context.children().isEmpty())
            qFatal("nobody was asked");
        if (!QTest::qWaitFor([&context] { return context.children().isEmpty(); }))
            qFatal("nobody answers");
        return heard;
    }

    QProcess m_daemon;
    Portal m_portal;
};

QTEST_GUILESS_MAIN(DesktopSchemeTest)
#include "desktopscheme_test.moc"
