#include "core/datafile.h"

#include "core/runtimeerror.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStorageInfo>

namespace {

// What keeps a file from being read. The system's own words, in its own language, are for
// what is none of the usual reasons.
Phrase WhyUnreadable(const QFileInfo& file, const QString& systemText) {
    if (!file.exists())
        return {QStringLiteral("его нет"), QStringLiteral("it does not exist")};
    if (file.isDir())
        return {QStringLiteral("это папка"), QStringLiteral("it is a folder")};
    if (!file.isReadable())
        return {QStringLiteral("нет права его читать"),
                QStringLiteral("there is no permission to read it")};
    return {systemText, systemText};
}

Phrase WhyUnwritable(const QFileInfo& file, qint64 size, const QString& systemText) {
    const QString folder = file.absolutePath();
    if (file.isDir())
        return {QStringLiteral("это папка"), QStringLiteral("it is a folder")};
    if (!QFileInfo(folder).isDir())
        return {QStringLiteral("нет папки «%1»").arg(folder),
                QStringLiteral("there is no folder “%1”").arg(folder)};
    if (!QFileInfo(folder).isWritable() || (file.exists() && !file.isWritable()))
        return {QStringLiteral("запись в него или в его папку не разрешена"),
                QStringLiteral("writing to it or to its folder is not permitted")};
    const QStorageInfo disk(folder);
    if (disk.isValid() && disk.bytesAvailable() < size)
        return {QStringLiteral("на диске нет места"), QStringLiteral("the disk is full")};
    return {systemText, systemText};
}

Phrase UnwritableFile(const QString& path, const Phrase& reason) {
    return {QStringLiteral("Не удаётся записать файл «%1»: %2").arg(path, reason.russian),
            QStringLiteral("The file “%1” cannot be written: %2").arg(path, reason.english)};
}

} // namespace

bool FileExists(const QString& path) {
    return QFileInfo::exists(path);
}

QByteArray ReadWholeFile(const QString& path) {
    QFile file(path);
    const bool opened = file.open(QIODevice::ReadOnly);
    QByteArray bytes = opened ? file.readAll() : QByteArray();
    if (!opened || file.error() != QFileDevice::NoError)
        throw RunTimeError(UnreadableFile(path, file.errorString()));
    return bytes;
}

std::optional<Phrase> ReplaceFile(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    const bool opened = file.open(QIODevice::WriteOnly);
    const qint64 written = opened ? file.write(bytes) : -1;
    // A disk that fills up takes the first part and calls that no error.
    if (written >= 0 && written < bytes.size())
        return UnwritableFile(path, {QStringLiteral("места хватило только на его часть"),
                                     QStringLiteral("there is room only for a part of it")});
    if (written == bytes.size() && file.commit())
        return std::nullopt;
    QFileInfo target(path);
    if (target.isSymLink())
        target.setFile(target.symLinkTarget());
    return UnwritableFile(path, WhyUnwritable(target, bytes.size(), file.errorString()));
}

Phrase UnreadableFile(const QString& path, const QString& systemText) {
    const Phrase reason = WhyUnreadable(QFileInfo(path), systemText);
    return {QStringLiteral("Не удаётся прочитать файл «%1»: %2").arg(path, reason.russian),
            QStringLiteral("The file “%1” cannot be read: %2").arg(path, reason.english)};
}
