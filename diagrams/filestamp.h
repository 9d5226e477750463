// What is noticed of a file, to see later whether another program has changed it.
#pragma once

#include <QDateTime>
#include <QFileInfo>

struct FileStamp {
    QString path; // Canonical; empty for no file.
    QDateTime modified;
    qint64 size = -1;

    static FileStamp Of(const QString& path) {
        const QFileInfo file(path);
        return {file.canonicalFilePath(), file.lastModified(), file.exists() ? file.size() : -1};
    }

    bool operator==(const FileStamp&) const = default;
};
