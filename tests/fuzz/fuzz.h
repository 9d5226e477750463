// What the fuzz targets share: taking an input apart, a folder for the files that it stands
// for, and the end at a broken promise.
#pragma once

#include "core/runtimeerror.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

// The bytes of an input, taken from the front; behind its end there are only empty texts.
class Input {
public:
    Input(const quint8* data, std::size_t size)
        : m_bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)) {}

    QByteArray Rest() { return Take(m_bytes.size(), 0); }

    // Up to the next LF, which is taken away too.
    QByteArray Line() {
        const qsizetype end = m_bytes.indexOf('\n');
        return end < 0 ? Rest() : Take(end, 1);
    }

private:
    QByteArray Take(qsizetype size, qsizetype dropped) {
        QByteArray taken = m_bytes.left(size);
        m_bytes.remove(0, size + dropped);
        return taken;
    }

    QByteArray m_bytes;
};

// Ends the program where a promise is broken.
inline void Require(bool kept, const char* promise) {
    if (!kept)
        qFatal("Broken: %s", promise);
}

// Runs what may end in a run-time error; false when it did.
template <typename Action>
bool Succeeds(Action action) {
    try {
        action();
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

// A folder of the run's own, in the place for temporary files.
class Folder {
public:
    // With the separator at its end, as AppState::AppPath has it.
    QString Path() const { return m_folder.path() + QDir::separator(); }

    // The path of a file that holds the bytes now.
    QString Write(const QString& name, const QByteArray& bytes) const {
        QString path = m_folder.filePath(name);
        QFile file(path);
        Require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(),
                "the folder can be written");
        return path;
    }

    QByteArray Read(const QString& name) const {
        QFile file(m_folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir m_folder;
};
