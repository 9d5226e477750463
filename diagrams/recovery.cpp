#include "diagrams/recovery.h"

#include "core/datafile.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUuid>

namespace {

constexpr qint64 largestFile = 100'000'000; // Bytes; a sheet is far smaller.

QString LockOf(const QString& path) {
    return path + QStringLiteral(".lock");
}

std::unique_ptr<QLockFile> Locked(const QString& path) {
    auto lock = std::make_unique<QLockFile>(LockOf(path));
    lock->setStaleLockTime(0); // A run may last for days.
    return lock->tryLock(0) ? std::move(lock) : nullptr;
}

QByteArray ToBytes(const SheetContents& contents) {
    QJsonArray rows;
    for (const CollectedRow& row : contents.rows)
        rows += QJsonObject{{QStringLiteral("text"), row.text},
                            {QStringLiteral("written"), row.written}};
    return QJsonDocument(
               QJsonObject{{QStringLiteral("text"), contents.text}, {QStringLiteral("rows"), rows}})
        .toJson();
}

std::optional<SheetContents> FromFile(const QString& path) {
    QFile file(path);
    if (file.size() > largestFile || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    SheetContents contents{object[QStringLiteral("text")].toString(), {}};
    for (const auto& row : object[QStringLiteral("rows")].toArray())
        contents.rows += CollectedRow{row[QStringLiteral("text")].toString(),
                                      row[QStringLiteral("written")].toBool()};
    return contents.text.isEmpty() && contents.rows.isEmpty() ? std::nullopt
                                                              : std::optional(contents);
}

} // namespace

Recovery::Recovery(QString folder) : m_folder(std::move(folder)) {}

Recovery::~Recovery() {
    Forget();
}

void Recovery::OfferLeft(const std::function<bool(const SheetContents& contents)>& offer) const {
    const QDir folder(m_folder);
    for (const QString& name :
         folder.entryList({QStringLiteral("sheet-*.json")}, QDir::Files, QDir::Time)) {
        const QString path = folder.filePath(name);
        const auto lock = path == m_path ? nullptr : Locked(path);
        if (!lock)
            continue;
        const auto contents = FromFile(path);
        const bool taken = contents && offer(*contents);
        QFile::remove(path);
        if (taken)
            return;
    }
}

void Recovery::Keep(const SheetContents& contents) {
    if (m_kept == contents)
        return;
    if (m_path.isEmpty()) {
        QDir().mkpath(m_folder);
        const QString path = QDir(m_folder).filePath(
            QStringLiteral("sheet-%1.json").arg(QUuid::createUuid().toString(QUuid::Id128)));
        m_lock = Locked(path);
        if (!m_lock)
            return;
        m_path = path;
    }
    if (!ReplaceFile(m_path, ToBytes(contents)))
        m_kept = contents;
}

void Recovery::Forget() {
    if (!m_path.isEmpty())
        QFile::remove(m_path);
    m_path.clear();
    m_lock.reset();
    m_kept.reset();
}
