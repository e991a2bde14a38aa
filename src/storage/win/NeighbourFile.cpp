#include "storage/win/NeighbourFile.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <vector>

#include "base/Utf8.h"
#include "storage/win/AccessRights.h"
#include "storage/win/LongPath.h"
#include "storage/win/SystemClock.h"
#include "storage/win/timeText.h"

namespace ormala {

namespace {

struct CloseSearch {
    void operator()(HANDLE search) const { FindClose(search); }
};
using SearchHandle = std::unique_ptr<std::remove_pointer_t<HANDLE>, CloseSearch>;

/// FileRenameInfoEx, by its documented number: not every header has the name.
constexpr auto renameInfoEx = static_cast<FILE_INFO_BY_HANDLE_CLASS>(22);

/// A rename of an open file, as the system takes it: a head with the new path behind it.
class RenameRequest {
  public:
    explicit RenameRequest(const std::wstring& path)
        : bytes_(sizeof(FILE_RENAME_INFO) + path.size() * sizeof(wchar_t)) {
        request().FileNameLength = static_cast<DWORD>(path.size() * sizeof(wchar_t));
        std::memcpy(request().FileName, path.data(), path.size() * sizeof(wchar_t));
    }

    /// At first in the way that also replaces a file which another program has open and lets others
    /// remove; older systems, and the file systems of some disks and servers, refuse that one.
    bool apply(HANDLE file) {
        request().Flags = FILE_RENAME_FLAG_REPLACE_IF_EXISTS | FILE_RENAME_FLAG_POSIX_SEMANTICS;
        if (apply(file, renameInfoEx)) {
            return true;
        }
        request().Flags = 0;
        request().ReplaceIfExists = TRUE;
        return apply(file, FileRenameInfo);
    }

  private:
    FILE_RENAME_INFO& request() { return *reinterpret_cast<FILE_RENAME_INFO*>(bytes_.data()); }

    bool apply(HANDLE file, FILE_INFO_BY_HANDLE_CLASS how) {
        return SetFileInformationByHandle(file, how, bytes_.data(),
                                          static_cast<DWORD>(bytes_.size())) != 0;
    }

    std::vector<std::byte> bytes_;
};

/// Whether a file that another program holds is one reason for such a failure.
bool mayBeHeld(DWORD error) {
    return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION ||
           error == ERROR_ACCESS_DENIED || error == ERROR_USER_MAPPED_FILE;
}

/// Tries patiently while the file may be held. `GetLastError` tells why the last try failed.
template <typename Attempt>
bool insist(const Attempt& attempt) {
    SystemClock clock;
    DWORD error = ERROR_SUCCESS;
    tryPatiently(clock, longestWaitForFile, [&] {
        error = attempt() ? ERROR_SUCCESS : GetLastError();
        return !mayBeHeld(error);
    });
    SetLastError(error);
    return error == ERROR_SUCCESS;
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
    if (!noted(file_ != nullptr)) {
        return false;
    }
    AccessRights::of(target_).giveTo(path_);
    return true;
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
        insist([&] {
            return MoveFileExW(kept_.c_str(), target_.c_str(), MOVEFILE_WRITE_THROUGH) != 0;
        });
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
