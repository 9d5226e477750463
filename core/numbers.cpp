#include "core/numbers.h"

#include "core/runtimeerror.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>
#include <string>

double LeadingNumber(QStringView text) {
    text = text.trimmed();
    const bool negative = text.startsWith(u'-');
    if (negative || text.startsWith(u'+'))
        text = text.mid(1);
    if (text.isEmpty() || !(text[0] == u'.' || (text[0] >= u'0' && text[0] <= u'9')))
        return 0; // from_chars would read "inf" and "nan" as numbers, and a second sign.
    const QByteArray bytes = text.toLatin1();
    double number = 0;
    const auto [end, failure] = std::from_chars(bytes.begin(), bytes.end(), number);
    if (failure == std::errc::result_out_of_range) { // A stream reads the largest number, or 0.
        std::istringstream digits(std::string(bytes.begin(), end));
        digits.imbue(std::locale::classic());
        digits >> number;
    }
    return negative ? -number : number;
}

int ToInteger16(double number) {
    const double whole = std::nearbyint(number); // The default rounding sends a half to the even.
    if (!(whole >= std::numeric_limits<qint16>::min() &&
          whole <= std::numeric_limits<qint16>::max()))
        throw RunTimeError({QStringLiteral("Число слишком велико: %1.").arg(number),
                            QStringLiteral("The number is too large: %1.").arg(number)});
    return static_cast<int>(whole);
}
