#include "storage/win/WindowsFileStore.h"

#include <windows.h>

#include <cstddef>
#include <string_view>

#include "base/win/systemMessage.h"
#include "storage/FileReplacement.h"
#include "storage/Patience.h"
#include "storage/win/FileHandle.h"
#include "storage/win/LongPath.h"
#include "storage/win/NeighbourFile.h"
#include "storage/win/SystemClock.h"
#include "storage/win/timeText.h"

namespace ormala {

namespace {

/// Devices answer with another type, and folders can't be opened this way.
bool isFileOfReadableSize(HANDLE file) {
    LARGE_INTEGER size{};
    return GetFileType(file) == FILE_TYPE_DISK && GetFileSizeEx(file, &size) != 0 &&
           size.QuadPart <= static_cast<LONGLONG>(largestSettingsFile);
}

/// Reads to the end, which may have moved since the size was asked for. Returns the system's error.
DWORD readAll(HANDLE file, std::string& bytes) {
    constexpr DWORD blockSize = 1U << 16U;
    DWORD count = 0;
    do {
        const std::size_t before = bytes.size();
        bytes.resize(before + blockSize);
        if (ReadFile(file, bytes.data() + before, blockSize, &count, nullptr) == 0) {
            return GetLastError();
        }
        bytes.resize(before + count);
    } while (count > 0 && bytes.size() <= largestSettingsFile);
    return count == 0 ? ERROR_SUCCESS : ERROR_FILE_TOO_LARGE;
}

constexpr bool isMissing(DWORD error) {
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

/// Tries to read once, and returns the system's error.
DWORD readOnce(const std::wstring& path, ReadResult& result) {
    result = {};
    const FileHandle file = openFile(path, GENERIC_READ, shareAll, OPEN_EXISTING);
    if (!file) {
        const DWORD error = GetLastError();
        // A text that can't be a path is no file that isn't there.
        if (isMissing(error) && !path.empty()) {
            result.status = ReadResult::Status::notFound;
        }
        return error;
    }
    if (!isFileOfReadableSize(file.get())) {
        return ERROR_FILE_TOO_LARGE;
    }
    const DWORD error = readAll(file.get(), result.bytes);
    if (error == ERROR_SUCCESS) {
        result.status = ReadResult::Status::ok;
    } else {
        result.bytes.clear();
    }
    return error;
}

/// Whether the target is missing or a file that may be written.
bool isReplaceable(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    constexpr DWORD obstacles = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY;
    return attributes == INVALID_FILE_ATTRIBUTES || (attributes & obstacles) == 0;
}

/// Whether a link stands there that leads to nothing.
bool isDanglingLink(const std::wstring& path, DWORD attributes) {
    if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
        return false;
    }
    return !openFile(path, 0, shareAll, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS) &&
           isMissing(GetLastError());
}

bool isFolder(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

WriteResult replaced(const std::wstring& target, std::string_view bytes, OldFile old) {
    if (target.empty() || !isReplaceable(target)) {
        return {false, systemMessage(target.empty() ? ERROR_PATH_NOT_FOUND : ERROR_ACCESS_DENIED)};
    }
    NeighbourFile neighbour(target);
    if (replaceFile(neighbour, bytes, old)) {
        return {true, {}};
    }
    return {false, systemMessage(neighbour.error())};
}

}  // namespace

ReadResult WindowsFileStore::read(const std::string& path) {
    SystemClock clock;
    const std::wstring target = longPath(path);
    ReadResult result;
    tryPatiently(clock, longestWaitForFile, [&] {
        const DWORD error = readOnce(target, result);
        return error != ERROR_SHARING_VIOLATION && error != ERROR_LOCK_VIOLATION;
    });
    return result;
}

ReadResult WindowsFileStore::readAtOnce(const std::string& path) {
    ReadResult result;
    readOnce(longPath(path), result);
    return result;
}

WriteResult WindowsFileStore::replace(const std::string& path, std::string_view bytes) {
    return replaced(longPath(path), bytes, OldFile::goes);
}

WriteResult WindowsFileStore::replaceKeeping(const std::string& path, std::string_view bytes) {
    return replaced(longPath(path), bytes, OldFile::staysBeside);
}

int WindowsFileStore::errorOfPath(const std::string& path) {
    const std::wstring target = longPath(path);
    const DWORD attributes = GetFileAttributesW(target.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        return static_cast<int>(GetLastError());
    }
    return isDanglingLink(target, attributes) ? errorFileNotFound : 0;
}

std::string WindowsFileStore::timeOf(const std::string& path) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    SYSTEMTIME universal{};
    SYSTEMTIME local{};
    if (GetFileAttributesExW(longPath(path).c_str(), GetFileExInfoStandard, &data) == FALSE ||
        FileTimeToSystemTime(&data.ftLastWriteTime, &universal) == FALSE ||
        SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local) == FALSE) {
        return {};
    }
    return timeText(local);
}

RemoveResult WindowsFileStore::remove(const std::string& path) {
    if (DeleteFileW(longPath(path).c_str()) != 0) {
        return {true, {}};
    }
    return {false, systemMessage(GetLastError())};
}

RemoveResult WindowsFileStore::couldRemove(const std::string& path) {
    const std::wstring target = longPath(path);
    if (!isReplaceable(target)) {
        return {false, systemMessage(ERROR_ACCESS_DENIED)};
    }
    SystemClock clock;
    DWORD error = ERROR_SUCCESS;
    tryPatiently(clock, longestWaitForFile, [&] {
        error = openFile(target, DELETE, shareAll, OPEN_EXISTING) ? ERROR_SUCCESS : GetLastError();
        return error != ERROR_SHARING_VIOLATION;
    });
    if (error != ERROR_SUCCESS) {
        return {false, systemMessage(error)};
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
