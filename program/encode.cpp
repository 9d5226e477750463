// Turns texts of the repository (UTF-8, LF), one after another, into a file of the program (code
// page 1251, CR LF), or says which characters the page does not have and writes nothing.
#include "core/codepage.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringDecoder>
#include <QStringList>

#include <cstdio>
#include <cstdlib>

namespace {

int Fail(const QString& message) {
    std::fputs((message + u'\n').toLocal8Bit().constData(), stderr);
    return EXIT_FAILURE;
}

// "file:line: ..." for every line with characters that the page does not have, each of
// them with its code point: some look like a letter of the page, others like nothing.
QStringList Faults(const QString& file, const QStringList& lines) {
    QStringList faults;
    for (qsizetype line = 0; line < lines.size(); ++line) {
        QStringList characters;
        for (const char32_t code : OutsideAnsi(lines[line]).toUcs4())
            characters += QStringLiteral("“%1” (U+%2)")
                              .arg(QString::fromUcs4(&code, 1))
                              .arg(static_cast<uint>(code), 4, 16, QLatin1Char('0'));
        if (!characters.isEmpty())
            faults += QStringLiteral("%1:%2: not in the code page: ").arg(file).arg(line + 1) +
                      characters.join(QStringLiteral(", "));
    }
    return faults;
}

// The source's lines, or what is wrong with it.
struct Source {
    QStringList lines;
    QString fault;
};

Source Read(const QString& name) {
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        return {{}, QStringLiteral("cannot read ") + name};
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString text = utf8.decode(file.readAll());
    if (utf8.hasError())
        return {{}, name + QStringLiteral(": not UTF-8")};
    const QStringList lines = text.remove(u'\r').split(u'\n');
    return {lines, Faults(name, lines).join(u'\n')};
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3)
        return Fail(QStringLiteral("usage: encode SOURCE... TARGET"));
    QByteArray bytes;
    for (int source = 1; source < argc - 1; ++source) {
        const auto [lines, fault] = Read(QString::fromLocal8Bit(argv[source]));
        if (!fault.isEmpty())
            return Fail(fault);
        bytes += ToAnsi(lines.join(QStringLiteral("\r\n")));
    }
    QSaveFile target(QString::fromLocal8Bit(argv[argc - 1]));
    QDir().mkpath(QFileInfo(target.fileName()).path());
    if (!target.open(QIODevice::WriteOnly) || target.write(bytes) < 0 || !target.commit())
        return Fail(QStringLiteral("cannot write ") + target.fileName());
    return EXIT_SUCCESS;
}
