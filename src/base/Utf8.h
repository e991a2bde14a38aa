#pragma once

#include <string>
#include <string_view>

namespace ormala {

/// UTF-8 to UTF-16. Bytes that are no UTF-8 become U+FFFD, one for each broken sequence.
std::u16string utf16FromUtf8(std::string_view text);

/// UTF-16 to UTF-8. A surrogate without its partner becomes U+FFFD.
std::string utf8FromUtf16(std::u16string_view text);

/// A to Z become a to z; all else stays.
constexpr char lowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}
std::string lowerCase(std::string text);

/// Without the blanks (U+0020) at both ends.
std::string_view trimBlanks(std::string_view text);

}  // namespace ormala
