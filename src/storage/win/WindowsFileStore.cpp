#include "storage/win/WindowsFileStore.h"

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>
#include <type_traits>

#include "base/Utf8.h"
#include "storage/win/LongPath.h"

namespace ormala {

namespace {

struct CloseFile {
    void operator()(HANDLE file) const { CloseHandle(file); }
};
using FileHandle = std::unique_ptr<std::remove_pointer_t<HANDLE>, CloseFile>;

FileHandle openFile(const std::wstring& path, DWORD access, DWORD share, DWORD disposition) {
    const HANDLE file = CreateFileW(path.c_str(), access, share, nullptr, disposition,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    return FileHandle(file == INVALID_HANDLE_VALUE ? nullptr : file);
}

/// Devices answer with another type, and folders can't be opened this way.
bool isFileOfReadableSize(HANDLE file) {
    LARGE_INTEGER size{};
    return GetFileType(file) == FILE_TYPE_DISK && GetFileSizeEx(file, &size) != 0 &&
           size.QuadPart <= static_cast<LONGLONG>(largestSettingsFile);
}

/// Reads to the end, which may have moved since the size was asked for.
bool readAll(HANDLE file, std::string& bytes) {
    constexpr DWORD blockSize = 1U << 16U;
    DWORD count = 0;
    do {
        const std::size_t before = bytes.size();
        bytes.resize(before + blockSize);
        if (ReadFile(file, bytes.data() + before, blockSize, &count, nullptr) == 0) {
            return false;
        }
        bytes.resize(before + count);
    } while (count > 0 && bytes.size() <= largestSettingsFile);
    return count == 0;
}

bool writeAll(HANDLE file, std::string_view bytes) {
    constexpr std::size_t largestBlock = 1U << 24U;
    while (!bytes.empty()) {
        const auto size = static_cast<DWORD>(std::min(bytes.size(), largestBlock));
        DWORD count = 0;
        if (WriteFile(file, bytes.data(), size, &count, nullptr) == 0 || count == 0) {
            return false;
        }
        bytes.remove_prefix(count);
    }
    return true;
}

/// Makes a file beside the target. Its name has the process in it, so that two copies of the
/// program don't meet, and a number, in case an earlier process with the same number left a file
/// behind.
FileHandle makeNeighbour(const std::wstring& target, std::wstring& path) {
    constexpr int attempts = 100;
    const std::wstring begin =
        folderOf(target) + L"~settings-" + std::to_wstring(GetCurrentProcessId()) + L"-";
    for (int i = 0; i < attempts; ++i) {
        path = begin + std::to_wstring(i) + L".tmp";
        if (FileHandle file = openFile(path, GENERIC_WRITE, 0, CREATE_NEW)) {
            return file;
        }
        if (GetLastError() != ERROR_FILE_EXISTS) {
            break;
        }
    }
    return nullptr;
}

/// Virus scanners and the like hold a fresh file for a moment, so one failure isn't the last word.
bool renameOver(const std::wstring& from, const std::wstring& to) {
    constexpr int attempts = 5;
    constexpr DWORD pauseMilliseconds = 20;
    for (int i = 0; i < attempts; ++i) {
        if (MoveFileExW(from.c_str(), to.c_str(),
                        MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0) {
            return true;
        }
        const DWORD error = GetLastError();
        if (error != ERROR_SHARING_VIOLATION && error != ERROR_ACCESS_DENIED) {
            return false;
        }
        Sleep(pauseMilliseconds);
    }
    return false;
}

/// Whether the target is missing or a file that may be written.
bool isReplaceable(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    constexpr DWORD obstacles = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY;
    return attributes == INVALID_FILE_ATTRIBUTES || (attributes & obstacles) == 0;
}

std::string descriptionOf(DWORD error) {
    wchar_t* text = nullptr;
    const DWORD length = FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
        nullptr, error, 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    const std::unique_ptr<wchar_t, decltype(&LocalFree)> owner(text, &LocalFree);
    const std::string description = utf8FromUtf16(std::u16string(text, text + length));
    return description.substr(0, description.find_last_not_of("\r\n ") + 1);
}

bool isFolder(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace

ReadResult WindowsFileStore::read(const std::string& path) {
    const FileHandle file =
        openFile(longPath(path), GENERIC_READ,
                 FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, OPEN_EXISTING);
    if (!file) {
        const bool missing = GetLastError() == ERROR_FILE_NOT_FOUND;
        return {missing ? ReadResult::Status::notFound : ReadResult::Status::failed, {}};
    }
    ReadResult result;
    if (isFileOfReadableSize(file.get()) && readAll(file.get(), result.bytes)) {
        result.status = ReadResult::Status::ok;
    } else {
        result.bytes.clear();
    }
    return result;
}

bool WindowsFileStore::replace(const std::string& path, std::string_view bytes) {
    const std::wstring target = longPath(path);
    if (target.empty() || !isReplaceable(target)) {
        return false;
    }
    std::wstring neighbour;
    FileHandle file = makeNeighbour(target, neighbour);
    if (!file) {
        return false;
    }
    const bool written = writeAll(file.get(), bytes) && FlushFileBuffers(file.get()) != 0;
    file.reset();
    const bool replaced = written && renameOver(neighbour, target);
    if (!replaced) {
        DeleteFileW(neighbour.c_str());
    }
    return replaced;
}

int WindowsFileStore::errorOfPath(const std::string& path) {
    const DWORD attributes = GetFileAttributesW(longPath(path).c_str());
    return attributes == INVALID_FILE_ATTRIBUTES ? static_cast<int>(GetLastError()) : 0;
}

RemoveResult WindowsFileStore::remove(const std::string& path) {
    if (DeleteFileW(longPath(path).c_str()) != 0) {
        return {true, {}};
    }
    return {false, descriptionOf(GetLastError())};
}

RemoveResult WindowsFileStore::couldRemove(const std::string& path) {
    constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const std::wstring target = longPath(path);
    if (!isReplaceable(target)) {
        return {false, descriptionOf(ERROR_ACCESS_DENIED)};
    }
    if (!openFile(target, DELETE, shareAll, OPEN_EXISTING)) {
        return {false, descriptionOf(GetLastError())};
    }
    return {true, {}};
}

bool WindowsFileStore::createFolders(const std::string& path) {
    const std::wstring folder = folderOf(longPath(path));
    if (folder.empty()) {
        return false;
    }
    for (std::size_t end = folder.find(L'\\'); end != std::wstring::npos;
         end = folder.find(L'\\', end + 1)) {
        CreateDirectoryW(folder.substr(0, end).c_str(), nullptr);
    }
    return isFolder(folder);
}

}  // namespace ormala
