#include "storage/win/WindowsFileStore.h"

#include <windows.h>

#include <cstddef>
#include <memory>
#include <string_view>

#include "base/Utf8.h"
#include "storage/FileReplacement.h"
#include "storage/win/FileHandle.h"
#include "storage/win/LongPath.h"
#include "storage/win/NeighbourFile.h"

namespace ormala {

namespace {

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
    NeighbourFile neighbour(target);
    return replaceFile(neighbour, bytes);
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
