// A folder of its own for a test, with the few things that the tests do in it.
#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

class TestFolder {
public:
    bool IsValid() const { return m_folder.isValid(); }

    // The folder with the separator at its end, as AppState::AppPath has it.
    QString Path() const { return m_folder.path() + u'/'; }
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    bool Write(const QString& name, const QByteArray& bytes) const {
        QFile file(Path(name));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    }

    QByteArray Bytes(const QString& name) const {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    bool MakeFolder(const QString& name) const { return QDir(m_folder.path()).mkdir(name); }

    // Every name in the folder, sorted.
    QStringList Names() const {
        return QDir(m_folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                       QDir::Name);
    }

private:
    QTemporaryDir m_folder;
};
