#include "diagrams/sheetfile.h"

#include "core/codepage.h"
#include "core/datafile.h"
#include "core/runtimeerror.h"

#include <QFileInfo>

qint64 SheetSize(const QString& path) {
    const QFileInfo file(path);
    if (!file.isFile())
        ReadWholeFile(path); // Says why it cannot be read.
    return file.size();
}

QString ReadSheet(const QString& path) {
    QString text = FromAnsi(ReadWholeFile(path));
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(u'\r', u'\n');
    if (text.endsWith(u'\n'))
        text.chop(1);
    text.replace(QChar::Null, u' '); // A text box cannot hold it.
    return text;
}

void WriteSheet(const QString& path, const QString& text) {
    if (const QString outside = OutsideAnsi(text); !outside.isEmpty())
        throw RunTimeError(
            {QStringLiteral("Файл не записан: этих знаков нет в кодовой странице: %1\n"
                            "Экспорт в ChordPro их сохранит.")
                 .arg(outside),
             QStringLiteral("Nothing was written: the code page does not have these characters: "
                            "%1\nThe export to ChordPro keeps them.")
                 .arg(outside)});
    QString lines = text + u'\n';
    lines.replace(u'\n', QStringLiteral("\r\n"));
    if (const auto failure = ReplaceFile(path, ToAnsi(lines)))
        throw RunTimeError(*failure);
}
