#include "core/datafile.h"

#include "core/runtimeerror.h"

#include <QFile>
#include <QFileInfo>

namespace {

[[noreturn]] void Fail(const QString& path, const QString& reason) {
    throw RunTimeError({QStringLiteral("Не удаётся прочитать файл «%1»: %2").arg(path, reason),
                        QStringLiteral("The file “%1” cannot be read: %2").arg(path, reason)});
}

} // namespace

bool FileExists(const QString& path) {
    return QFileInfo::exists(path);
}

QByteArray ReadWholeFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        Fail(path, file.errorString());
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        Fail(path, file.errorString());
    return bytes;
}
