#include "storage/TextMark.h"

#include <cstddef>
#include <string_view>

#include "base/Utf8.h"

namespace ormala {

namespace {

constexpr std::string_view markOfUtf16 = "\xFF\xFE";
constexpr std::string_view markOfUtf8 = "\xEF\xBB\xBF";

/// Half a character at the end is dropped.
std::u16string utf16FromBytes(std::string_view bytes) {
    std::u16string text;
    text.reserve(bytes.size() / 2);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto low = static_cast<unsigned char>(bytes[i]);
        const auto high = static_cast<unsigned char>(bytes[i + 1]);
        text += static_cast<char16_t>(high << 8U | low);
    }
    return text;
}

}  // namespace

std::string codePageText(std::string bytes, const CodePage& codePage) {
    const std::string_view text = bytes;
    if (text.starts_with(markOfUtf16)) {
        const std::u16string wide = utf16FromBytes(text.substr(markOfUtf16.size()));
        return codePage.bytesFromUtf8(utf8FromUtf16(wide));
    }
    if (text.starts_with(markOfUtf8)) {
        return codePage.bytesFromUtf8(text.substr(markOfUtf8.size()));
    }
    return bytes;
}

}  // namespace ormala
