#include "base/Utf8.h"

#include <cstddef>
#include <cstdint>

namespace ormala {

namespace {

constexpr char32_t replacement = 0xFFFD;

constexpr bool isContinuation(unsigned char byte) {
    return (byte & 0xC0U) == 0x80U;
}

constexpr bool isSurrogate(char32_t point) {
    return point >= 0xD800 && point <= 0xDFFF;
}

/// How many bytes the sequence has that this byte leads, 0 if it leads none.
std::size_t sequenceLength(unsigned char lead) {
    if (lead < 0x80) {
        return 1;
    }
    if (lead >= 0xC2 && lead < 0xE0) {
        return 2;
    }
    if (lead >= 0xE0 && lead < 0xF0) {
        return 3;
    }
    return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

/// The code point at `at`, which moves behind it.
char32_t nextPoint(std::string_view text, std::size_t& at) {
    const auto lead = static_cast<unsigned char>(text[at++]);
    const std::size_t length = sequenceLength(lead);
    if (length <= 1) {
        return length == 1 ? lead : replacement;
    }
    constexpr unsigned leadMask[] = {0, 0, 0x1F, 0x0F, 0x07};
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    char32_t point = lead & leadMask[length];
    for (std::size_t i = 1; i < length; ++i) {
        if (at >= text.size() || !isContinuation(static_cast<unsigned char>(text[at]))) {
            return replacement;
        }
        point = (point << 6U) | (static_cast<unsigned char>(text[at++]) & 0x3FU);
    }
    const bool valid = point >= smallest[length] && point <= 0x10FFFFU && !isSurrogate(point);
    return valid ? point : replacement;
}

void appendUtf8(std::string& out, char32_t point) {
    const auto put = [&out](char32_t byte) { out += static_cast<char>(byte); };
    if (point < 0x80) {
        put(point);
    } else if (point < 0x800) {
        put(0xC0U | (point >> 6U));
        put(0x80U | (point & 0x3FU));
    } else if (point < 0x10000) {
        put(0xE0U | (point >> 12U));
        put(0x80U | ((point >> 6U) & 0x3FU));
        put(0x80U | (point & 0x3FU));
    } else {
        put(0xF0U | (point >> 18U));
        put(0x80U | ((point >> 12U) & 0x3FU));
        put(0x80U | ((point >> 6U) & 0x3FU));
        put(0x80U | (point & 0x3FU));
    }
}

}  // namespace

std::u16string utf16FromUtf8(std::string_view text) {
    std::u16string out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const char32_t point = nextPoint(text, at);
        if (point < 0x10000) {
            out += static_cast<char16_t>(point);
        } else {
            out += static_cast<char16_t>(0xD800U + ((point - 0x10000U) >> 10U));
            out += static_cast<char16_t>(0xDC00U + ((point - 0x10000U) & 0x3FFU));
        }
    }
    return out;
}

std::string utf8FromUtf16(std::u16string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        char32_t point = text[at];
        if (isSurrogate(point)) {
            const bool high = point < 0xDC00;
            const char32_t low = high && at + 1 < text.size() ? text[at + 1] : U'\0';
            if (low >= 0xDC00 && low <= 0xDFFF) {
                point = 0x10000U + ((point - 0xD800U) << 10U) + (low - 0xDC00U);
                ++at;
            } else {
                point = replacement;
            }
        }
        appendUtf8(out, point);
    }
    return out;
}

std::string lowerCase(std::string text) {
    for (char& c : text) {
        c = lowerCase(c);
    }
    return text;
}

std::string_view trimBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace ormala
