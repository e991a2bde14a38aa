#include "storage/win/SpecialFolder.h"

#include <windows.h>

#include <shlobj.h>

#include <array>
#include <memory>
#include <string_view>

#include "base/Utf8.h"

namespace ormala {

std::string GetSpecialFolder(int number) {
    PIDLIST_ABSOLUTE item = nullptr;
    if (FAILED(SHGetSpecialFolderLocation(nullptr, number, &item))) {
        return {};
    }
    const std::unique_ptr<ITEMIDLIST, decltype(&CoTaskMemFree)> owner(item, &CoTaskMemFree);
    std::array<wchar_t, MAX_PATH> buffer{};
    SHGetPathFromIDListW(item, buffer.data());
    const std::wstring_view path(buffer.data());
    return utf8FromUtf16(std::u16string(path.begin(), path.end()));
}

}  // namespace ormala
