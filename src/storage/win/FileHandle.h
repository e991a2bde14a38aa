#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <type_traits>

namespace ormala {

struct CloseFile {
    void operator()(HANDLE file) const { CloseHandle(file); }
};
using FileHandle = std::unique_ptr<std::remove_pointer_t<HANDLE>, CloseFile>;

/// Whatever others do with the file.
inline constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// Null if the file can't be opened; `GetLastError` tells why. `flags` are of FILE_FLAG_*.
inline FileHandle openFile(const std::wstring& path, DWORD access, DWORD share, DWORD disposition,
                           DWORD flags = 0) {
    const HANDLE file = CreateFileW(path.c_str(), access, share, nullptr, disposition,
                                    FILE_ATTRIBUTE_NORMAL | flags, nullptr);
    return FileHandle(file == INVALID_HANDLE_VALUE ? nullptr : file);
}

}  // namespace ormala
