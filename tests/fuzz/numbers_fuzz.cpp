// Any text read as the number that it begins with, compared with how C reads it.
#include "core/codepage.h"
#include "core/numbers.h"
#include "fuzz.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace {

double NumberOfC(const QByteArray& text) {
    // Of C's numbers these are none here: hexadecimal ones, "inf" and "nan".
    const auto letter =
        std::find_if(text.begin(), text.end(), [](char c) { return std::strchr("xXiInN", c); });
    const double number = std::strtod(text.left(letter - text.begin()).constData(), nullptr);
    constexpr double largest = std::numeric_limits<double>::max();
    return std::clamp(number, -largest, largest);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, std::size_t size) {
    const QByteArray bytes = Input(data, size).Rest();
    const double number = LeadingNumber(FromAnsi(bytes));
    Require(std::isfinite(number), "a number is finite");
    if (IsAscii(bytes))
        Require(number == NumberOfC(bytes), "a number is what C reads");
    const QString text = FromAnsi(bytes);
    const QString typed = AsTyped(text).english;
    Require(text.contains(typed) ? LeadingNumber(typed) == number
                                 : typed == u'"' + text.trimmed() + u'"' && number == 0,
            "a number is named as it was typed");
    Succeeds([number] {
        const int whole = ToInteger16(number);
        Require(std::abs(whole - number) <= 0.5, "the nearest whole number");
        Require(whole == static_cast<qint16>(whole), "a whole number of 16 bits");
    });
    return 0;
}
