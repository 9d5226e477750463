// Profile files: sections in square brackets, a key, "=" and a value on a line.
#pragma once

#include "core/phrase.h"

#include <QByteArray>

#include <optional>

// One profile file in memory. Names of sections and keys are compared without regard to
// case; the first section of a name counts, and in it the first key. Lines that are no
// section and no key, comments among them, are kept as they are. It stays the bytes that it
// is, so a large file costs no more than its size.
class ProfileFile {
public:
    // An absent or unreadable file is an empty one, as the platform reads it.
    static ProfileFile Read(const QString& path);
    static ProfileFile FromBytes(const QByteArray& bytes);

    // The value without the blanks around it and one pair of enclosing quotes, at most 255
    // characters; nothing where the section or the key is missing.
    std::optional<QString> Value(const QString& section, const QString& key) const;
    QString Value(const QString& section, const QString& key, const QString& missing) const;

    // Sets a key, adding it, or its section, at the end where it is missing.
    void SetValue(const QString& section, const QString& key, const QString& value);

    QByteArray ToBytes() const;

    // Replaces the file whole. On failure the old file stays and the result says why; what
    // was never read is not replaced either.
    [[nodiscard]] std::optional<Phrase> Write(const QString& path) const;

private:
    // Where a line begins; -1 where there is none.
    qsizetype FindSection(const QString& section) const;
    qsizetype FindKey(qsizetype sectionLine, const QString& key) const;
    qsizetype EndOfSection(qsizetype sectionLine) const; // Behind its last line with text.

    QByteArray m_bytes;
    std::optional<Phrase> m_unreadable; // Why a file that is there could not be read.
};

// The value of a key of the file, or missing where file, section or key is.
QString ReadIni(const QString& file, const QString& section, const QString& key,
                const QString& missing);

// Sets one value of the file, replacing it whole. A failure changes and reports nothing.
void WriteIni(const QString& file, const QString& section, const QString& key,
              const QString& value);
