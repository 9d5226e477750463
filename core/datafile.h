// Whole files, read and replaced, with the reasons of a failure that the program reports.
#pragma once

#include "core/phrase.h"

#include <QByteArray>

#include <optional>

// Whether anything bears this name, a folder among them.
bool FileExists(const QString& path);

// Every byte of the file; a run-time error when it cannot be opened or read.
QByteArray ReadWholeFile(const QString& path);

// Replaces the file, or the one that a symbolic link leads to, whole or not at all: a program
// that is killed meanwhile leaves the old file. Gives why it was not done, and nothing
// where it was.
[[nodiscard]] std::optional<Phrase> ReplaceFile(const QString& path, const QByteArray& bytes);

// The report of a file that could not be read. systemText: the system's own words.
Phrase UnreadableFile(const QString& path, const QString& systemText);
