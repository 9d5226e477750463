#include "core/statefolder.h"

#include <QDir>
#include <QStandardPaths>

QString StateFolder() {
    const QString state = qEnvironmentVariable("XDG_STATE_HOME");
    if (QDir::isAbsolutePath(state))
        return QDir::cleanPath(state) + QStringLiteral("/tonvik");
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    return QDir::homePath() + QStringLiteral("/.local/state/tonvik");
#else
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/tonvik");
#endif
}
