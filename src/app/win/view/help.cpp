#include "app/win/view/help.h"
// Needs the system's basic types, which come with the window.
#include <shellapi.h>

#include "language/MlStringModule.h"
#include "platform/win/text.h"

namespace ormala {

namespace {

std::wstring programFolder() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length =
            GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path.substr(0, path.find_last_of(L'\\') + 1);
        }
        path.resize(path.size() * 2);
    }
}

bool fileIsThere(const std::wstring& path) {
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool openFile(HWND window, const std::wstring& path) {
    constexpr INT_PTR lastError = 32;
    const HINSTANCE answer =
        ShellExecuteW(window, nullptr, path.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    return reinterpret_cast<INT_PTR>(answer) > lastError;
}

}  // namespace

std::string helpFileName() {
    return MlString(265, "help_en.html");
}

bool openHelp(HWND window) {
    const std::wstring name = wide(helpFileName());
    const std::wstring path = fileIsThere(name) ? name : programFolder() + name;
    return fileIsThere(path) && openFile(window, path);
}

}  // namespace ormala
