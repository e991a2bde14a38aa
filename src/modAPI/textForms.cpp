#include "modAPI/textForms.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <iterator>

#include "base/Utf8.h"
#include "modAPI/angles.h"
#include "modAPI/constants.h"
#include "modAPI/rounding.h"

namespace ormala {

namespace {

/// The number 0.d1d2d3... * 10^point without its sign. No digits is zero.
struct Decimal {
    std::string digits;
    int point = 0;

    bool operator==(const Decimal&) const = default;
};

/// At 15 significant digits; the value is finite.
Decimal decimalOf(double value) {
    std::array<char, 32> text{};
    const auto written = std::to_chars(text.data(), text.data() + text.size(), std::abs(value),
                                       std::chars_format::scientific, significantDigits - 1);
    const char* mark = std::find(text.data(), written.ptr, 'e');
    Decimal number;
    std::copy_if(static_cast<const char*>(text.data()), mark, std::back_inserter(number.digits),
                 [](char c) { return c != '.'; });
    const char* exponent = mark[1] == '+' ? mark + 2 : mark + 1;
    std::from_chars(exponent, written.ptr, number.point);
    ++number.point;
    if (value == 0) {
        return {};
    }
    return number;
}

/// Halves away from zero, on the decimal digits.
void roundToDecimals(Decimal& number, int decimals) {
    const int kept = number.point + decimals;
    if (kept >= static_cast<int>(number.digits.size())) {
        return;
    }
    if (kept < 0) {
        number = {};
        return;
    }
    const bool up = number.digits[static_cast<std::size_t>(kept)] >= '5';
    number.digits.resize(static_cast<std::size_t>(kept));
    if (!up) {
        return;
    }
    auto last = std::find_if(number.digits.rbegin(), number.digits.rend(),
                             [](char digit) { return digit != '9'; });
    std::fill(number.digits.rbegin(), last, '0');
    if (last == number.digits.rend()) {
        number.digits.insert(number.digits.begin(), '1');
        ++number.point;
    } else {
        ++*last;
    }
}

/// The digit at a place counted from the point: 0 is the first decimal, -1 the units.
char digitAt(const Decimal& number, int place) {
    const int index = place + number.point;
    const bool known = index >= 0 && index < static_cast<int>(number.digits.size());
    return known ? number.digits[static_cast<std::size_t>(index)] : '0';
}

bool isZero(const Decimal& number) {
    return number.digits.find_first_not_of('0') == std::string::npos;
}

/// How many digits a pattern asks for.
struct DigitCounts {
    explicit DigitCounts(std::string_view pattern) {
        const std::size_t dot = pattern.find('.');
        const std::string_view whole = pattern.substr(0, dot);
        if (const auto first = whole.find('0'); first != std::string_view::npos) {
            leastWhole = static_cast<int>(whole.size() - first);
        }
        if (dot != std::string_view::npos) {
            const std::string_view fraction = pattern.substr(dot + 1);
            hasPoint = true;
            mostDecimals = static_cast<int>(fraction.size());
            leastDecimals = static_cast<int>(fraction.rfind('0') + 1);
        }
    }

    int leastWhole = 0;
    bool hasPoint = false;
    int leastDecimals = 0;
    int mostDecimals = 0;
};

}  // namespace

std::string formatNumber(double value, std::string_view pattern, const TextForm& form) {
    if (!std::isfinite(value)) {
        return form.infinite;
    }
    const DigitCounts counts(pattern);
    Decimal number = decimalOf(value);
    roundToDecimals(number, counts.mostDecimals);

    std::string text = value < 0 && !isZero(number) ? "-" : "";
    for (int place = -std::max(number.point, counts.leastWhole); place < 0; ++place) {
        text += digitAt(number, place);
    }
    if (counts.hasPoint) {
        text += form.decimalSeparator;
    }
    int shown = counts.mostDecimals;
    while (shown > counts.leastDecimals && digitAt(number, shown - 1) == '0') {
        --shown;
    }
    for (int place = 0; place < shown; ++place) {
        text += digitAt(number, place);
    }
    return text;
}

std::string formatPixels(double pixels, std::string_view pattern, const TextForm& form) {
    constexpr double pixelsPerInch = 96;
    return form.logicalDpi == 0
               ? formatNumber(pixels, pattern, form)
               : formatNumber(pixels * pixelsPerInch / form.logicalDpi, "0.0", form);
}

std::string FormatRatio(double value, const TextForm& form) {
    if (IsInfinite(value)) {
        return form.infinite;
    }
    const double rounded = RoundSignificant(value, 4, true);
    if (rounded >= 10) {
        return formatNumber(rounded, "0.00", form);
    }
    return formatNumber(rounded, rounded > 0.9999999999 ? "0.000" : "0.0000###", form);
}

std::string FormatAngle(double angle, int unit, const TextForm& form) {
    if (unit == 1) {
        return formatNumber(angle, "0.0000", form) + " rad";
    }
    return formatNumber(angle * 180 / pi, "0.00", form) + "°";
}

std::string FormatLength(double length, int mode, double factor, std::string_view unitName,
                         double reference, const TextForm& form) {
    if (mode != 1 && mode != 2) {
        return formatPixels(length, "0.0", form);
    }
    double shown = length * factor;
    if (mode == 2) {
        shown = reference == 0 ? 0 : length / reference * factor;
    }
    const double rounded = RoundSignificant(shown, 5, true);
    std::string text = formatNumber(rounded, "#######################0.0#############", form);
    text += ' ';
    text += unitName;
    return std::string(trimBlanks(text));
}

bool SameNumberText(double a, double b) {
    if (!std::isfinite(a) || !std::isfinite(b)) {
        return a == b;
    }
    const Decimal first = decimalOf(a);
    return first == decimalOf(b) && (std::signbit(a) == std::signbit(b) || first.digits.empty());
}

std::string onOneLine(std::string text) {
    const std::string_view end = lineBreak;
    for (auto at = text.find(end); at != std::string::npos; at = text.find(end, at)) {
        text.replace(at, end.size(), ", ");
    }
    return text;
}

}  // namespace ormala
