#include "storage/NumberForm.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "base/Utf8.h"
#include "modAPI/textForms.h"

namespace ormala {

namespace {

/// The largest number whose 15 digits, rounded up, are still finite.
constexpr double largestWritten = 1.79769313486231e308;

constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Whether a number begins here; the words for infinity and the like are none.
bool startsNumber(std::string_view text) {
    if (text.starts_with('-')) {
        text.remove_prefix(1);
    }
    if (text.starts_with('.')) {
        text.remove_prefix(1);
    }
    return !text.empty() && isDigit(text.front());
}

/// The exponent that ends the text of a number, cut to what no text of a number can outweigh.
std::int64_t exponentOf(std::string_view text) {
    constexpr std::int64_t farBeyond = std::numeric_limits<std::int64_t>::max() / 4;
    const std::size_t mark = text.find_first_of("eE");
    if (mark == std::string_view::npos) {
        return 0;
    }
    text.remove_prefix(mark + 1);
    const bool negative = text.starts_with('-');
    text.remove_prefix(isDigit(text.front()) ? 0 : 1);
    std::int64_t exponent = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), exponent);
    exponent = error == std::errc() ? std::min(exponent, farBeyond) : farBeyond;
    return negative ? -exponent : exponent;
}

/// Whether a number that no double can hold is too large, not too small.
bool isTooLarge(std::string_view number) {
    const std::string_view mantissa = number.substr(0, number.find_first_of("eE"));
    const std::size_t first = mantissa.find_first_of("123456789");
    if (first == std::string_view::npos) {
        return false;
    }
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const auto places = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first);
    return places + exponentOf(number) > 0;
}

}  // namespace

std::string numberText(double value) {
    if (!std::isfinite(value) || value == 0) {
        return " 0";
    }
    const double written = std::min(std::abs(value), largestWritten);
    std::array<char, 32> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), written,
                                            std::chars_format::general, significantDigits);
    std::string text(buffer.data(), end);
    std::ranges::replace(text, 'e', 'E');
    text.erase(0, text.starts_with("0.") ? 1 : 0);
    return (value < 0 ? "-" : " ") + text;
}

std::optional<double> numberFromText(std::string_view text) {
    text = trimBlanks(text);
    if (!startsNumber(text)) {
        return 0.0;
    }
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::result_out_of_range) {
        const auto length = static_cast<std::size_t>(end - text.data());
        return isTooLarge(text.substr(0, length)) ? std::nullopt : std::optional(0.0);
    }
    constexpr double positiveZero = 0;
    return value == 0 ? positiveZero : value;
}

}  // namespace ormala
