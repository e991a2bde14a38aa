#include "storage/win/NeighbourFile.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <vector>

#include "base/Utf8.h"
#include "storage/win/LongPath.h"

namespace ormala {

namespace {

struct CloseSearch {
    void operator()(HANDLE search) const { FindClose(search); }
};
using SearchHandle = std::unique_ptr<std::remove_pointer_t<HANDLE>, CloseSearch>;

/// A rename of an open file, as the system takes it: a head with the new path behind it.
class RenameRequest {
  public:
    explicit RenameRequest(const std::wstring& path)
        : bytes_(sizeof(FILE_RENAME_INFO) + path.size() * sizeof(wchar_t)) {
        auto* const request = reinterpret_cast<FILE_RENAME_INFO*>(bytes_.data());
        request->ReplaceIfExists = TRUE;
        request->FileNameLength = static_cast<DWORD>(path.size() * sizeof(wchar_t));
        std::memcpy(request->FileName, path.data(), path.size() * sizeof(wchar_t));
    }

    bool apply(HANDLE file) {
        return SetFileInformationByHandle(file, FileRenameInfo, bytes_.data(),
                                          static_cast<DWORD>(bytes_.size())) != 0;
    }

  private:
    std::vector<std::byte> bytes_;
};

/// Virus scanners and the like hold a file for a moment, so one failure isn't the last word.
template <typename Attempt>
bool insist(const Attempt& attempt) {
    constexpr int attempts = 5;
    constexpr DWORD pauseMilliseconds = 20;
    for (int i = 1; !attempt(); ++i) {
        const DWORD error = GetLastError();
        if (i == attempts || (error != ERROR_SHARING_VIOLATION && error != ERROR_ACCESS_DENIED)) {
            return false;
        }
        Sleep(pauseMilliseconds);
    }
    return true;
}

/// The local time in the form of the settings files.
std::string presentTime() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d:%02d", now.wYear, now.wMonth,
                  now.wDay, now.wHour, now.wMinute, now.wSecond);
    return text.data();
}

}  // namespace

bool NeighbourFile::noted(bool success) {
    error_ = success ? ERROR_SUCCESS : GetLastError();
    return success;
}

void NeighbourFile::removeLeftovers() {
    const std::wstring folder = folderOf(target_);
    WIN32_FIND_DATAW entry{};
    const HANDLE found = FindFirstFileW((folder + L"~settings-*.tmp").c_str(), &entry);
    if (found == INVALID_HANDLE_VALUE) {
        return;
    }
    const SearchHandle search(found);
    do {
        const std::wstring name = entry.cFileName;
        if (isNeighbourName(utf8FromUtf16(std::u16string(name.begin(), name.end())))) {
            DeleteFileW((folder + name).c_str());
        }
    } while (FindNextFileW(search.get(), &entry) != 0);
}

bool NeighbourFile::makeNeighbour() {
    constexpr int attempts = 100;
    for (int i = 0; i < attempts; ++i) {
        const std::string name = neighbourName(GetCurrentProcessId(), i);
        path_ = folderOf(target_) + std::wstring(name.begin(), name.end());
        // Writing through makes the rename reach the disk too.
        file_ = openFile(path_, GENERIC_WRITE | DELETE, 0, CREATE_NEW, FILE_FLAG_WRITE_THROUGH);
        if (file_ || GetLastError() != ERROR_FILE_EXISTS) {
            break;
        }
    }
    return noted(file_ != nullptr);
}

bool NeighbourFile::write(std::string_view bytes) {
    constexpr std::size_t largestBlock = 1U << 24U;
    while (!bytes.empty()) {
        const auto size = static_cast<DWORD>(std::min(bytes.size(), largestBlock));
        DWORD count = 0;
        if (!noted(WriteFile(file_.get(), bytes.data(), size, &count, nullptr) != 0)) {
            return false;
        }
        if (count == 0) {
            error_ = ERROR_DISK_FULL;
            return false;
        }
        bytes.remove_prefix(count);
    }
    return true;
}

bool NeighbourFile::flush() {
    return noted(FlushFileBuffers(file_.get()) != 0);
}

bool NeighbourFile::keepOld() {
    constexpr int attempts = 100;
    const std::string path = utf8FromUtf16(std::u16string(target_.begin(), target_.end()));
    const std::string time = presentTime();
    for (int number = 1; number <= attempts; ++number) {
        const std::u16string name = utf16FromUtf8(keptName(path, time, number));
        kept_.assign(name.begin(), name.end());
        if (insist([&] {
                return MoveFileExW(target_.c_str(), kept_.c_str(), MOVEFILE_WRITE_THROUGH) != 0;
            })) {
            return true;
        }
        const DWORD error = GetLastError();
        if (error != ERROR_ALREADY_EXISTS && error != ERROR_FILE_EXISTS) {
            kept_.clear();
            return error == ERROR_FILE_NOT_FOUND || noted(false);
        }
    }
    kept_.clear();
    return noted(false);
}

void NeighbourFile::putOldBack() {
    if (!kept_.empty()) {
        MoveFileExW(kept_.c_str(), target_.c_str(), MOVEFILE_WRITE_THROUGH);
    }
}

bool NeighbourFile::renameOver() {
    RenameRequest request(target_);
    if (!noted(insist([&] { return request.apply(file_.get()); }))) {
        return false;
    }
    file_.reset();
    return true;
}

void NeighbourFile::removeNeighbour() {
    file_.reset();
    DeleteFileW(path_.c_str());
}

}  // namespace ormala
