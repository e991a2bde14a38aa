#include "storage/win/WindowsCodePage.h"

#include <windows.h>

#include <algorithm>
#include <cstddef>

#include "base/Utf8.h"

namespace ormala {

namespace {

/// Such text, as nearly all of a settings file is, has the same bytes in every code page.
bool isAscii(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace

std::string WindowsCodePage::bytesFromUtf8(std::string_view text) const {
    if (isAscii(text)) {
        return std::string(text);
    }
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
    if (isAscii(bytes)) {
        return std::string(bytes);
    }
    const auto length = static_cast<int>(bytes.size());
    const int size = MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, wide.data(), size);
    return utf8FromUtf16(std::u16string(wide.begin(), wide.end()));
}

}  // namespace ormala
