// Turns a text of the repository (UTF-8, LF) into a file of the program (code page 1251,
// CR LF), or says which characters the page does not have.
#include "core/codepage.h"

#include <QFile>
#include <QString>

#include <cstdio>
#include <cstdlib>

namespace {

int Fail(const QString& message) {
    std::fputs(qPrintable(message + u'\n'), stderr);
    return EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3)
        return Fail(QStringLiteral("usage: encode SOURCE TARGET"));
    QFile source(QString::fromLocal8Bit(argv[1]));
    if (!source.open(QIODevice::ReadOnly))
        return Fail(QStringLiteral("cannot read ") + source.fileName());
    QString text = QString::fromUtf8(source.readAll());
    if (const QString outside = OutsideAnsi(text); !outside.isEmpty())
        return Fail(source.fileName() + QStringLiteral(": not in the code page: ") + outside);
    text.replace(u'\n', QStringLiteral("\r\n"));
    const QByteArray bytes = ToAnsi(text);
    QFile target(QString::fromLocal8Bit(argv[2]));
    if (!target.open(QIODevice::WriteOnly) || target.write(bytes) != bytes.size())
        return Fail(QStringLiteral("cannot write ") + target.fileName());
    return EXIT_SUCCESS;
}
