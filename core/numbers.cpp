#include "core/numbers.h"

#include "core/runtimeerror.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>
#include <string>

namespace {

struct Number {
    double value = 0;
    qsizetype length = 0; // Of its text, blanks before it included; 0 where there is none.
};

Number ReadNumber(QStringView text) {
    qsizetype start = 0;
    while (start < text.size() && text[start].isSpace())
        ++start;
    const bool negative = text.mid(start).startsWith(u'-');
    if (negative || text.mid(start).startsWith(u'+'))
        ++start;
    const QStringView digits = text.mid(start);
    if (digits.isEmpty() || !(digits[0] == u'.' || (digits[0] >= u'0' && digits[0] <= u'9')))
        return {}; // from_chars would read "inf" and "nan" as numbers, and a second sign.
    const QByteArray bytes = digits.toLatin1();
    double number = 0;
    const auto [end, failure] = std::from_chars(bytes.begin(), bytes.end(), number);
    if (failure == std::errc::invalid_argument)
        return {};
    if (failure == std::errc::result_out_of_range) { // A stream reads the largest number, or 0.
        std::istringstream stream(std::string(bytes.begin(), end));
        stream.imbue(std::locale::classic());
        stream >> number;
    }
    return {negative ? -number : number, start + (end - bytes.begin())};
}

} // namespace

double LeadingNumber(QStringView text) {
    return ReadNumber(text).value;
}

Phrase AsTyped(QStringView text) {
    if (const qsizetype length = ReadNumber(text).length; length > 0) {
        const QString number = text.left(length).trimmed().toString();
        return {number, number};
    }
    return {u'«' + text.trimmed() + u'»', u'"' + text.trimmed() + u'"'};
}

int ToInteger16(double number) {
    const double whole = std::nearbyint(number); // The default rounding sends a half to the even.
    if (!(whole >= std::numeric_limits<qint16>::min() &&
          whole <= std::numeric_limits<qint16>::max()))
        throw RunTimeError({QStringLiteral("Число должно быть от -32768 до 32767."),
                            QStringLiteral("The number must lie between -32768 and 32767.")});
    return static_cast<int>(whole);
}
