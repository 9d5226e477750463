// Whole files, read and replaced, with the reasons of a failure that the program reports.
#pragma once

#include "core/phrase.h"

#include <QByteArray>

#include <optional>

// Whether anything bears this name, a folder among them.
bool FileExists(const QString& path);

// What is larger is no file of ours.
constexpr qint64 largestFile = qint64{256} * 1024 * 1024;

// The bytes of a file, or why there are none.
struct FileContent {
    QByteArray bytes;
    std::optional<Phrase> unreadable;
};

// Reads every byte. A folder, a pipe, a device, a file that is missing, larger than largestFile
// or than the memory that is left: each is a file that cannot be read.
FileContent TryToRead(const QString& path);

// Every byte of the file; a run-time error when it cannot be read.
QByteArray ReadWholeFile(const QString& path);

// Replaces the file, or the one that a symbolic link leads to, whole or not at all: a program
// that is killed meanwhile leaves the old file. Only where the folder takes no other file, a
// file that may be written is written in its place. Gives why it was not done, and nothing
// where it was.
[[nodiscard]] std::optional<Phrase> ReplaceFile(const QString& path, const QByteArray& bytes);
