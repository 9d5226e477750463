// What may stand in a file's place and is none, or is one that nobody can read into memory.
#pragma once

#include "support/testfolder.h"

#include <QTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

// The rows of a test: the kind, and how a report of it ends in English.
inline void OddFiles() {
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("why");
#ifdef Q_OS_UNIX
    QTest::newRow("a pipe") << QStringLiteral("pipe") << QStringLiteral("it is no ordinary file");
    QTest::newRow("a link to a device")
        << QStringLiteral("/dev/zero") << QStringLiteral("it is no ordinary file");
#endif
    QTest::newRow("a file of 8 TB")
        << QStringLiteral("large") << QStringLiteral("it is larger than 256 MB");
}

// Makes one of the kind. False where this system cannot.
inline bool MakeOddFile(const QString& kind, const QString& path) {
    if (kind.startsWith(u'/'))
        return QFile::link(kind, path);
#ifdef Q_OS_UNIX
    if (kind == QStringLiteral("pipe"))
        return mkfifo(QFile::encodeName(path).constData(), S_IRUSR | S_IWUSR) == 0;
#endif
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.resize(qint64{8} << 40);
}
