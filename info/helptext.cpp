#include "info/helptext.h"

#include "core/codepage.h"
#include "core/datafile.h"

QString ReadHelp(const QString& appPath) {
    const QString file = appPath + QStringLiteral("help.dat");
    if (FileExists(file))
        return FromAnsi(ReadWholeFile(file));
    return QStringLiteral("Файл справки отсутствует. Обратитесь к автору программы.");
}

QString FitForTextBox(const QString& text, Tongue tongue) {
    QString fitting;
    qsizetype copied = 0; // How much of the text is in fitting.
    qsizetype lines = 0;
    for (qsizetype start = 0; start < text.size(); ++lines) {
        if (lines == mostHelpLines)
            return fitting + QStringView(text).mid(copied, start - copied) +
                   Phrase{QStringLiteral("... (дальше не показано: слишком много строк)"),
                          QStringLiteral("... (the rest is not shown: too many lines)")}
                       .In(tongue);
        qsizetype end = start;
        while (end < text.size() && text[end] != u'\n' && text[end] != u'\r' &&
               end - start < longestHelpLine)
            ++end;
        if (end < text.size() && end - start == longestHelpLine && text[end] != u'\n' &&
            text[end] != u'\r') {
            fitting += QStringView(text).mid(copied, end - copied);
            fitting += u'\n';
            copied = end;
        } else if (end < text.size()) {
            const bool pair = text[end] == u'\r' && end + 1 < text.size() && text[end + 1] == u'\n';
            end += pair ? 2 : 1;
        }
        start = end;
    }
    return copied == 0 ? text : fitting + QStringView(text).mid(copied);
}
