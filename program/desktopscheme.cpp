#include "program/desktopscheme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFileInfo>

#include <utility>

namespace {

constexpr int patience = 5000; // Milliseconds; a portal may have to be started first.

// Without one, asking for it could start a bus.
bool HasSessionBus() {
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
           (!folder.isEmpty() && QFileInfo::exists(folder + QStringLiteral("/bus")));
}

// The portal wraps its value twice.
QVariant Unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

std::optional<Scheme> SchemeOfPortal(uint colorScheme) {
    if (colorScheme == 1)
        return Scheme::Dark;
    if (colorScheme == 2)
        return Scheme::Light;
    return std::nullopt;
}

void AskDesktopScheme(QObject* context, std::function<void(Scheme)> answered) {
    if (!HasSessionBus())
        return;
    QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"),
        QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("Read"));
    question << QStringLiteral("org.freedesktop.appearance") << QStringLiteral("color-scheme");
    auto* answer = new QDBusPendingCallWatcher(
        QDBusConnection::sessionBus().asyncCall(question, patience), context);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, context,
                     [answered = std::move(answered)](QDBusPendingCallWatcher* finished) {
                         const QDBusPendingReply<QDBusVariant> reply = *finished;
                         finished->deleteLater();
                         if (reply.isError())
                             return;
                         const QVariant value = Unwrapped(reply.value().variant());
                         if (const auto scheme = SchemeOfPortal(value.toUInt()))
                             answered(*scheme);
                     });
}
