#pragma once

#include <windows.h>

#include <functional>
#include <stdexcept>
#include <string>

namespace ormala::test {

/// Asks every 10 ms, for up to ten seconds.
inline void awaitFile(const std::function<bool()>& condition) {
    for (int i = 0; i < 1000 && !condition(); ++i) {
        Sleep(10);
    }
    if (!condition()) {
        throw std::runtime_error("there is no link");
    }
}

/// Makes a link in a folder that leads to no file. Wine makes none itself: there the system below
/// it does, by the function that tells a file's name on that system.
inline void makeDanglingLink(const std::wstring& folder, const std::wstring& name) {
    const std::wstring target = folder + L"\\target";
    const std::wstring link = folder + L"\\" + name;
    CloseHandle(CreateFileW(target.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr));
    using UnixName = char*(CDECL*)(const wchar_t*);
    const auto unixName = reinterpret_cast<UnixName>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"kernel32"), "wine_get_unix_file_name")));
    if (unixName != nullptr) {
        const std::string there = unixName(folder.c_str());
        const std::string file(name.begin(), name.end());
        WinExec(("Z:\\bin\\ln -s " + there + "/target " + there + "/" + file).c_str(), SW_HIDE);
    } else {
        constexpr DWORD unprivileged = 2;
        CreateSymbolicLinkW(link.c_str(), target.c_str(), unprivileged);
    }
    awaitFile([&] { return GetFileAttributesW(link.c_str()) != INVALID_FILE_ATTRIBUTES; });
    DeleteFileW(target.c_str());
}

}  // namespace ormala::test
