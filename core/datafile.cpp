#include "core/datafile.h"

#include "core/runtimeerror.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStorageInfo>

#include <new>

namespace {

// What keeps a file from being read. The system's own words, in its own language, are for
// what is none of the usual reasons.
Phrase WhyUnreadable(const QFileInfo& file, const QString& systemText) {
    if (!file.exists())
        return {QStringLiteral("его нет"), QStringLiteral("it does not exist")};
    if (file.isDir())
        return {QStringLiteral("это папка"), QStringLiteral("it is a folder")};
    if (!file.isFile())
        return {QStringLiteral("это не обычный файл"), QStringLiteral("it is no ordinary file")};
    if (file.size() > largestFile)
        return {QStringLiteral("он больше 256 МБ"), QStringLiteral("it is larger than 256 MB")};
    if (!file.isReadable())
        return {QStringLiteral("нет права его читать"),
                QStringLiteral("there is no permission to read it")};
    return {systemText, systemText};
}

Phrase WhyUnwritable(const QFileInfo& file, qint64 size, const QString& systemText) {
    const QString folder = file.absolutePath();
    if (file.isDir())
        return {QStringLiteral("это папка"), QStringLiteral("it is a folder")};
    if (file.exists() && !file.isFile())
        return {QStringLiteral("это не обычный файл"), QStringLiteral("it is no ordinary file")};
    if (!QFileInfo(folder).isDir())
        return {QStringLiteral("нет папки «%1»").arg(folder),
                QStringLiteral("there is no folder “%1”").arg(folder)};
    if (file.exists() ? !file.isWritable() : !QFileInfo(folder).isWritable())
        return {QStringLiteral("запись в него или в его папку не разрешена"),
                QStringLiteral("writing to it or to its folder is not permitted")};
    const QStorageInfo disk(folder);
    if (disk.isValid() && disk.bytesAvailable() < size)
        return {QStringLiteral("на диске нет места"), QStringLiteral("the disk is full")};
    return {systemText, systemText};
}

Phrase UnreadableFile(const QString& path, const Phrase& reason) {
    return {QStringLiteral("Не удаётся прочитать файл «%1»: %2").arg(path, reason.russian),
            QStringLiteral("The file “%1” cannot be read: %2").arg(path, reason.english)};
}

Phrase UnwritableFile(const QString& path, const Phrase& reason) {
    return {QStringLiteral("Не удаётся записать файл «%1»: %2").arg(path, reason.russian),
            QStringLiteral("The file “%1” cannot be written: %2").arg(path, reason.english)};
}

// The file that a link, or a link to a link, leads to, also where it is not there yet.
QFileInfo Target(const QString& path) {
    constexpr int longestChain = 40;
    QFileInfo target(path);
    for (int links = 0; target.isSymLink() && links < longestChain; ++links)
        target.setFile(target.symLinkTarget());
    return target;
}

bool Rewrite(QFile& file, const QByteArray& bytes) {
    return file.seek(0) && file.write(bytes) == bytes.size() && file.resize(bytes.size());
}

// Where it fails half way the old bytes, for which there was room, are put back.
std::optional<Phrase> WriteInPlace(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered)) {
        const QByteArray before = file.readAll();
        if (Rewrite(file, bytes))
            return std::nullopt;
        Rewrite(file, before);
    }
    return UnwritableFile(path, WhyUnwritable(QFileInfo(path), bytes.size(), file.errorString()));
}

} // namespace

bool FileExists(const QString& path) {
    return QFileInfo::exists(path);
}

FileContent TryToRead(const QString& path) {
    // Asked before it is opened: opening a pipe waits for somebody who writes into it.
    const QFileInfo info(path);
    if (!info.isFile() || info.size() > largestFile)
        return {{}, UnreadableFile(path, WhyUnreadable(info, {}))};
    QFile file(path);
    try {
        const bool opened = file.open(QIODevice::ReadOnly);
        QByteArray bytes = opened ? file.readAll() : QByteArray();
        if (opened && file.error() == QFileDevice::NoError)
            return {std::move(bytes), std::nullopt};
    } catch (const std::bad_alloc&) {
        return {{}, UnreadableFile(path, OutOfMemory().What())};
    }
    return {{}, UnreadableFile(path, WhyUnreadable(info, file.errorString()))};
}

QByteArray ReadWholeFile(const QString& path) {
    FileContent content = TryToRead(path);
    if (content.unreadable)
        throw RunTimeError(*content.unreadable);
    return std::move(content.bytes);
}

std::optional<Phrase> ReplaceFile(const QString& path, const QByteArray& bytes) {
    const QFileInfo target = Target(path);
    if (target.exists() && !target.isFile())
        return UnwritableFile(path, WhyUnwritable(target, bytes.size(), {}));
    QSaveFile file(path);
    // A disk that fills up takes the first part and calls that no error; a buffer would not see
    // it either.
    const bool opened = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    const qint64 written = opened ? file.write(bytes) : -1;
    if (written >= 0 && written < bytes.size())
        return UnwritableFile(path, {QStringLiteral("места хватило только на его часть"),
                                     QStringLiteral("there is room only for a part of it")});
    if (written == bytes.size() && file.commit())
        return std::nullopt;
    const bool folderTakesNoFile = !opened || file.error() == QFileDevice::RenameError;
    if (folderTakesNoFile && target.exists() && target.isWritable())
        return WriteInPlace(path, bytes);
    return UnwritableFile(path, WhyUnwritable(target, bytes.size(), file.errorString()));
}
