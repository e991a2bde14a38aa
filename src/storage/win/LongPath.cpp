#include "storage/win/LongPath.h"

#include <windows.h>

#include <cstddef>

#include "base/Utf8.h"

namespace ormala {

namespace {

constexpr std::wstring_view longPrefix = LR"(\\?\)";
constexpr std::wstring_view longSharePrefix = LR"(\\?\UNC\)";
constexpr std::wstring_view devicePrefix = LR"(\\.\)";
constexpr std::wstring_view sharePrefix = LR"(\\)";

/// The absolute path, without "." and "..", which the long form doesn't resolve.
std::wstring fullPath(const std::wstring& path) {
    const DWORD size = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
    std::wstring full(size, L'\0');
    const DWORD length = GetFullPathNameW(path.c_str(), size, full.data(), nullptr);
    full.resize(length < size ? length : 0);
    return full;
}

}  // namespace

std::wstring longPath(std::string_view path) {
    if (path.empty() || path.find('\0') != std::string_view::npos) {
        return {};
    }
    const std::u16string text = utf16FromUtf8(path);
    std::wstring full(text.begin(), text.end());
    if (full.starts_with(longPrefix)) {
        return full;
    }
    full = fullPath(full);
    if (full.empty() || full.starts_with(devicePrefix) || full.starts_with(longPrefix)) {
        return full;
    }
    if (full.starts_with(sharePrefix)) {
        return std::wstring(longSharePrefix) + full.substr(sharePrefix.size());
    }
    return std::wstring(longPrefix) + full;
}

std::wstring folderOf(const std::wstring& longPath) {
    return longPath.substr(0, longPath.rfind(L'\\') + 1);
}

}  // namespace ormala
