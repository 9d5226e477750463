// Where words stand in a text.
#pragma once

#include <QString>

#include <vector>

// No more hits than this are looked for: nobody goes through them, and marking them takes time.
constexpr std::size_t mostHits = 10'000;

// A text made ready for being searched: as long as the text, letter by letter, without
// capitals; ё is е, as it is mostly typed.
QString Folded(QStringView text);

// Where the words begin in a folded text, in its order, hits that overlap left out; the first
// mostHits of them. None for no words.
std::vector<int> FindWords(const QString& folded, const QString& words);
