#include "language/win/UserLocale.h"

#include <windows.h>

#include <cstddef>

#include "base/Utf8.h"

namespace ormala {

std::string MlGetLocaleInfo(int Locale, int InfoType) {
    const auto locale = static_cast<LCID>(Locale);
    const auto infoType = static_cast<LCTYPE>(InfoType);
    const int size = GetLocaleInfoW(locale, infoType, nullptr, 0);
    if (size <= 0) {
        return {};
    }
    std::wstring text(static_cast<std::size_t>(size), L' ');
    const int copied = GetLocaleInfoW(locale, infoType, text.data(), size);
    if (copied <= 0) {
        return {};
    }
    return utf8FromUtf16(std::u16string(text.begin(), text.begin() + copied - 1));
}

std::string decimalSeparator() {
    const std::string separator = MlGetLocaleInfo(localeUserDefault, LOCALE_SDECIMAL);
    return separator.empty() ? "." : separator;
}

}  // namespace ormala
