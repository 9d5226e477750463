// The sheet's recovery file: what is not saved yet, kept for the case of a crash.
#pragma once

#include <QList>
#include <QLockFile>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

struct CollectedRow {
    QString text;
    bool written = false; // Into the sheet's text, once at least.

    bool operator==(const CollectedRow&) const = default;
};

struct SheetContents {
    QString text;
    QList<CollectedRow> rows;

    bool operator==(const SheetContents&) const = default;
};

// Every run has a file of its own, locked while the run lasts. What cannot be written is not
// kept, silently.
class Recovery {
public:
    // folder: the user's state folder; made when something is to be kept.
    explicit Recovery(QString folder);
    Recovery(const Recovery&) = delete;
    Recovery& operator=(const Recovery&) = delete;
    ~Recovery(); // Whoever comes here ends cleanly and leaves no file.

    // Offers what runs that ended otherwise have left, the latest first, until one is taken: offer
    // says whether it is. A file goes once it was offered, not before. Runs that still last keep
    // theirs.
    void OfferLeft(const std::function<bool(const SheetContents& contents)>& offer) const;

    // Replaces the run's file, whole or not at all; nothing where it holds this already.
    void Keep(const SheetContents& contents);

    // The sheet is saved: removes the run's file.
    void Forget();

private:
    QString m_folder;
    QString m_path; // Empty until something was kept.
    std::unique_ptr<QLockFile> m_lock;
    std::optional<SheetContents> m_kept;
};
