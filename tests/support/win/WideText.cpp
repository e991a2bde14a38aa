#include "support/win/WideText.h"

#include "base/Utf8.h"

namespace ormala::test {

std::wstring wide(std::string_view text) {
    const std::u16string units = utf16FromUtf8(text);
    return {units.begin(), units.end()};
}

std::string narrow(std::wstring_view text) {
    return utf8FromUtf16(std::u16string(text.begin(), text.end()));
}

}  // namespace ormala::test
