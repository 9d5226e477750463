#include "info/wordsearch.h"

#include <QStringMatcher>

QString Folded(QStringView text) {
    constexpr QChar noBreakSpace(0xA0);
    QString folded = text.toString();
    for (QChar& letter : folded) {
        letter = letter.toCaseFolded();
        if (letter == u'ё')
            letter = u'е';
        else if (letter == noBreakSpace)
            letter = u' ';
    }
    return folded;
}

std::vector<int> FindWords(const QString& folded, const QString& words) {
    std::vector<int> hits;
    if (words.isEmpty())
        return hits;
    const QStringMatcher matcher(Folded(words));
    for (qsizetype place = matcher.indexIn(folded); place >= 0 && hits.size() < mostHits;
         place = matcher.indexIn(folded, place + words.size()))
        hits.push_back(static_cast<int>(place));
    return hits;
}
