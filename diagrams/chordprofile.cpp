#include "diagrams/chordprofile.h"

#include "core/codepage.h"
#include "core/datafile.h"
#include "core/runtimeerror.h"
#include "diagrams/sheetlines.h"

#include <QSet>
#include <QStringDecoder>
#include <QStringList>

namespace {

QString FromUtf8OrAnsi(const QByteArray& bytes) {
    // Drops the mark, and takes half a letter at the end for a mistake.
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = utf8(bytes);
    return utf8.hasError() ? FromAnsi(bytes) : text;
}

// Definitions as they are written: what two of them say is the same when they look the same.
class Definitions {
public:
    // False for one that is there already.
    bool Add(const ChordDefinition& definition) {
        const QString line = WriteDefinition(definition);
        if (m_lines.contains(line))
            return false;
        m_lines.insert(line);
        return true;
    }

private:
    QSet<QString> m_lines;
};

} // namespace

QString ReadChordProFile(const QString& path) {
    const QByteArray bytes = ReadWholeFile(path);
    if (bytes.contains('\0'))
        throw RunTimeError({QStringLiteral("Файл «%1» — не текст.").arg(path),
                            QStringLiteral("The file “%1” is no text.").arg(path)});
    QString text = FromUtf8OrAnsi(bytes);
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(u'\r', u'\n');
    if (text.endsWith(u'\n'))
        text.chop(1);
    return text;
}

QString ChordProText(const QString& text, const SheetQuestions& questions) {
    Definitions definitions;
    for (const SheetLine& line : SheetLines(text))
        if (line.directive && line.directive->name == u"define")
            if (const auto definition = ReadDefinition(line.directive->value))
                definitions.Add(*definition);
    QStringList lines;
    for (const SheetLine& line : SheetLines(text)) {
        if (line.codes.empty())
            lines += line.text.toString();
        for (const SheetCode& code : line.codes) {
            const ChordDefinition definition{code.name, ShapeInLine(code, line.text, questions)};
            if (definitions.Add(definition))
                lines += WriteDefinition(definition);
        }
        const QStringView rest = line.BehindCodes();
        if (!rest.isEmpty())
            lines += rest.toString();
    }
    return lines.join(u'\n');
}

void WriteChordProFile(const QString& path, const QString& text) {
    if (const auto failure = ReplaceFile(path, (text + u'\n').toUtf8()))
        throw RunTimeError(*failure);
}
