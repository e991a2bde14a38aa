#include "storage/win/WindowsCodePage.h"

#include <windows.h>

#include <cstddef>

#include "base/Utf8.h"

namespace ormala {

std::string WindowsCodePage::bytesFromUtf8(std::string_view text) const {
    const std::u16string utf16 = utf16FromUtf8(text);
    const std::wstring wide(utf16.begin(), utf16.end());
    const auto length = static_cast<int>(wide.size());
    const int size =
        WideCharToMultiByte(CP_ACP, 0, wide.data(), length, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_ACP, 0, wide.data(), length, bytes.data(), size, nullptr, nullptr);
    return bytes;
}

std::string WindowsCodePage::utf8FromBytes(std::string_view bytes) const {
    const auto length = static_cast<int>(bytes.size());
    const int size = MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, wide.data(), size);
    return utf8FromUtf16(std::u16string(wide.begin(), wide.end()));
}

}  // namespace ormala
