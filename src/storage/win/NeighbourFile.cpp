#include "storage/win/NeighbourFile.h"

#include <algorithm>
#include <cstddef>
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

}  // namespace

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
    return file_ != nullptr;
}

bool NeighbourFile::write(std::string_view bytes) {
    constexpr std::size_t largestBlock = 1U << 24U;
    while (!bytes.empty()) {
        const auto size = static_cast<DWORD>(std::min(bytes.size(), largestBlock));
        DWORD count = 0;
        if (WriteFile(file_.get(), bytes.data(), size, &count, nullptr) == 0 || count == 0) {
            return false;
        }
        bytes.remove_prefix(count);
    }
    return true;
}

bool NeighbourFile::flush() {
    return FlushFileBuffers(file_.get()) != 0;
}

/// Virus scanners and the like hold a file for a moment, so one failure isn't the last word.
bool NeighbourFile::renameOver() {
    constexpr int attempts = 5;
    constexpr DWORD pauseMilliseconds = 20;
    RenameRequest request(target_);
    for (int i = 0; i < attempts; ++i) {
        if (request.apply(file_.get())) {
            file_.reset();
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

void NeighbourFile::removeNeighbour() {
    file_.reset();
    DeleteFileW(path_.c_str());
}

}  // namespace ormala
