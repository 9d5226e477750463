// Whole files and folders, read with the errors that the program reports.
#pragma once

#include <QByteArray>
#include <QString>

// Whether anything bears this name, a folder among them.
bool FileExists(const QString& path);

// Every byte of the file; a run-time error when it cannot be opened or read.
QByteArray ReadWholeFile(const QString& path);
