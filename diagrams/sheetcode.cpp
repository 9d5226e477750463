#include "diagrams/sheetcode.h"

#include <algorithm>

namespace {

constexpr int lowestNumber = -15;
constexpr int highestNumber = 20;
constexpr int highestBarre = 15;

using Numbers = std::array<int, stringCount>;

bool IsDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

// The number that so many characters are, as the codes write it: no zero or sign that is not
// needed.
std::optional<int> NumberOf(QStringView text) {
    const bool negative = text.startsWith(u'-');
    const QStringView digits = negative ? text.sliced(1) : text;
    if (digits.isEmpty() || !std::all_of(digits.begin(), digits.end(), IsDigit) ||
        (digits[0] == u'0' && (negative || digits.size() > 1)))
        return std::nullopt;
    const int number = text.toInt();
    return number >= lowestNumber && number <= highestNumber ? std::optional(number) : std::nullopt;
}

// How far the stopped frets lie apart. An open string is none; under a barre it is stopped.
int Span(const Numbers& numbers, bool barre) {
    int lowest = highestNumber + 1;
    int highest = lowestNumber - 1;
    for (const int number : numbers) {
        if (number == 0 && !barre)
            continue;
        lowest = std::min(lowest, number);
        highest = std::max(highest, number);
    }
    return std::max(0, highest - lowest);
}

// Tries every way to part the digits, short numbers first: so of equals the first one found has
// its long numbers furthest to the right.
class Parting {
public:
    explicit Parting(bool barre) : m_barre(barre) {}

    std::optional<Numbers> Best(QStringView digits) {
        Try(digits, 0);
        return m_best;
    }

private:
    void Try(QStringView digits, std::size_t row) {
        if (row == m_numbers.size()) {
            if (digits.isEmpty() && (!m_best || Span(m_numbers, m_barre) < Span(*m_best, m_barre)))
                m_best = m_numbers;
            return;
        }
        const bool negative = digits.startsWith(u'-');
        if (negative && !m_barre)
            return;
        for (const qsizetype size : {1, 2}) {
            const qsizetype taken = size + (negative ? 1 : 0);
            if (taken > digits.size())
                return;
            if (const auto number = NumberOf(digits.first(taken))) {
                m_numbers[row] = *number;
                Try(digits.sliced(taken), row + 1);
            }
        }
    }

    bool m_barre;
    Numbers m_numbers{};
    std::optional<Numbers> m_best;
};

// What begins behind " - ": the barre and the numbers, up to a blank or the end of the line.
std::optional<SheetCode> ReadFrets(QStringView text) {
    // "Б15/" and six of "-15", or less.
    constexpr qsizetype longest = 4 + qsizetype{3} * stringCount;
    qsizetype end = text.first(std::min(text.size(), longest + 1)).indexOf(u' ');
    if (end < 0)
        end = text.size();
    QStringView frets = text.first(end);
    SheetCode code;
    if (frets.startsWith(u'Б')) {
        const qsizetype slash = frets.indexOf(u'/');
        const auto fret = slash > 0 ? NumberOf(frets.sliced(1, slash - 1)) : std::nullopt;
        if (!fret || *fret < 1 || *fret > highestBarre)
            return std::nullopt;
        code.barreFret = fret;
        frets = frets.sliced(slash + 1);
    }
    if (frets.size() > qsizetype{3} * stringCount)
        return std::nullopt;
    const auto numbers = Parting(code.barreFret.has_value()).Best(frets);
    if (!numbers)
        return std::nullopt;
    code.numbers = *numbers;
    code.place.length = end;
    return code;
}

} // namespace

std::vector<SheetCode> CodesOfLine(QStringView line) {
    constexpr QStringView hyphen = u" - ";
    std::vector<SheetCode> codes;
    qsizetype nameStart = 0;
    qsizetype at = line.indexOf(hyphen);
    while (at >= 0) {
        const qsizetype behind = at + hyphen.size();
        qsizetype next = at + 1;
        if (auto code = ReadFrets(line.sliced(behind))) {
            const QStringView name = line.sliced(nameStart, at - nameStart);
            const QStringView trimmed = name.trimmed();
            const qsizetype start = trimmed.isEmpty() ? at + 1 : trimmed.data() - line.data();
            code->name = trimmed.toString();
            const qsizetype end = behind + code->place.length;
            code->place = {start, end - start};
            codes.push_back(*code);
            nameStart = end;
            next = end;
        }
        at = line.indexOf(hyphen, next);
    }
    return codes;
}

Shape ShapeOfCode(const SheetCode& code, bool thinStringAtBottom) {
    Shape shape;
    const int barre = code.barreFret.value_or(0);
    int lastUnderBarre = 0;
    for (int row = 0; row < stringCount; ++row) {
        const int number = code.numbers[static_cast<std::size_t>(row)];
        const int string = StringOfRow(row, thinStringAtBottom);
        shape.frets[static_cast<std::size_t>(string - 1)] =
            static_cast<std::int8_t>(std::max(0, number + barre));
        if (number == 0)
            lastUnderBarre = row;
    }
    // The code does not tell how far the bar reaches: as far as it is needed, and two strings.
    if (barre > 0) {
        const int first = StringOfRow(0, thinStringAtBottom);
        const int last = StringOfRow(std::max(1, lastUnderBarre), thinStringAtBottom);
        shape.barres.push_back({barre, std::min(first, last), std::max(first, last), 0});
    }
    return shape;
}
