#include "diagrams/linebreaking.h"

#include <algorithm>

namespace {

constexpr double chordGap = 100;

// How many characters from the front fit; at least one, and never half of a pair.
qsizetype FittingCharacters(QStringView text, TextStyle style, double width,
                            const TextWidth& textWidth) {
    const auto fitting = [&](qsizetype count) {
        return textWidth(style, text.first(count).toString()) <= width;
    };
    qsizetype fits = 0;
    qsizetype tooMany = std::min<qsizetype>(text.size(), 16);
    while (fitting(tooMany)) {
        fits = tooMany;
        if (fits == text.size())
            return fits;
        tooMany = std::min(text.size(), tooMany * 2);
    }
    while (tooMany - fits > 1) {
        const qsizetype middle = (fits + tooMany) / 2;
        (fitting(middle) ? fits : tooMany) = middle;
    }
    if (fits > 0 && text[fits - 1].isHighSurrogate())
        --fits;
    const qsizetype least = text.size() > 1 && text[0].isHighSurrogate() ? 2 : 1;
    return std::max(fits, least);
}

// A piece of a word with the chord above it.
struct Syllable {
    QString chord;
    QString text;
};

using Word = std::vector<Syllable>;

// Words end behind their blanks; a word may hold several chords.
std::vector<Word> WordsOf(const std::vector<LyricPart>& parts) {
    std::vector<Word> words(1);
    for (const LyricPart& part : parts) {
        QString chord = part.chord;
        qsizetype start = 0;
        while (start < part.text.size() || !chord.isEmpty()) {
            qsizetype end = part.text.indexOf(u' ', start);
            while (end >= 0 && end < part.text.size() && part.text[end] == u' ')
                ++end;
            const bool wordEnds = end >= 0;
            end = wordEnds ? end : part.text.size();
            words.back().push_back({chord, part.text.sliced(start, end - start)});
            chord.clear();
            start = end;
            if (wordEnds)
                words.emplace_back();
        }
    }
    if (words.back().empty())
        words.pop_back();
    return words;
}

class LyricsBreaker {
public:
    LyricsBreaker(double width, const TextWidth& textWidth)
        : m_width(width), m_textWidth(textWidth) {}

    std::vector<std::vector<LinePiece>> Break(const std::vector<LyricPart>& parts) {
        for (const Word& word : WordsOf(parts)) {
            if (m_x > 0 && m_x + WidthOf(word) > m_width)
                NextLine();
            for (const Syllable& syllable : word)
                Place(syllable);
        }
        m_lines.push_back(std::move(m_line));
        return std::move(m_lines);
    }

private:
    double WidthOf(const Word& word) const {
        double width = 0;
        double chordEnd = 0;
        for (const Syllable& syllable : word) {
            if (!syllable.chord.isEmpty()) {
                width = std::max(width, chordEnd);
                chordEnd = width + ChordWidth(syllable.chord);
            }
            width += m_textWidth(TextStyle::Lyrics, syllable.text.trimmed());
        }
        return std::max(width, chordEnd - chordGap);
    }

    double ChordWidth(const QString& chord) const {
        return m_textWidth(TextStyle::Chord, chord) + chordGap;
    }

    void Place(const Syllable& syllable) {
        if (!syllable.chord.isEmpty())
            PlaceChord(syllable.chord);
        QStringView text = syllable.text;
        while (!text.isEmpty()) {
            const qsizetype fits =
                FittingCharacters(text, TextStyle::Lyrics, m_width - m_x, m_textWidth);
            if (fits >= text.size() || text.sliced(fits).trimmed().isEmpty()) {
                AddText(text);
                return;
            }
            AddText(text.first(fits));
            text = text.sliced(fits);
            NextLine();
        }
    }

    void PlaceChord(const QString& chord) {
        if (m_x < m_chordEnd) { // Room for the chord before.
            m_x = m_chordEnd;
            m_textGoesOn = false;
        }
        if (m_x > 0 && m_x + ChordWidth(chord) - chordGap > m_width)
            NextLine();
        const qsizetype fits =
            FittingCharacters(chord, TextStyle::Chord, m_width - m_x, m_textWidth);
        m_line.push_back({m_x, TextStyle::Chord, chord.first(fits)});
        m_chordEnd = m_x + ChordWidth(m_line.back().text);
    }

    // Words that follow each other are one piece.
    void AddText(QStringView text) {
        if (!m_textGoesOn) {
            m_textPiece = m_line.size();
            m_line.push_back({m_x, TextStyle::Lyrics, {}});
            m_textGoesOn = true;
        }
        m_line[m_textPiece].text += text;
        const LinePiece& piece = m_line[m_textPiece];
        m_x = piece.x + m_textWidth(TextStyle::Lyrics, piece.text);
    }

    void NextLine() {
        m_lines.push_back(std::move(m_line));
        m_line.clear();
        m_x = 0;
        m_chordEnd = 0;
        m_textGoesOn = false;
    }

    double m_width;
    const TextWidth& m_textWidth;
    std::vector<std::vector<LinePiece>> m_lines;
    std::vector<LinePiece> m_line;
    double m_x = 0;
    double m_chordEnd = 0;
    std::size_t m_textPiece = 0;
    bool m_textGoesOn = false;
};

} // namespace

QStringList BreakText(const QString& text, TextStyle style, double width,
                      const TextWidth& textWidth) {
    QStringList pieces;
    QStringView rest = text;
    while (!rest.isEmpty()) {
        qsizetype end = FittingCharacters(rest, style, width, textWidth);
        if (end < rest.size()) {
            const qsizetype blank = rest.first(end + 1).lastIndexOf(u' ');
            if (blank > 0)
                end = blank + 1;
        }
        pieces += rest.first(end).toString();
        rest = rest.sliced(end);
    }
    return pieces.isEmpty() ? QStringList(QString()) : pieces;
}

std::vector<std::vector<LinePiece>> BreakLyrics(const std::vector<LyricPart>& parts, double width,
                                                const TextWidth& textWidth) {
    return LyricsBreaker(width, textWidth).Break(parts);
}
