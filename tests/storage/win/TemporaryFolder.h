#pragma once

#include <windows.h>

#include <string>

#include "base/Utf8.h"
#include "storage/win/LongPath.h"

namespace ormala {

/// An empty folder of its own for one test, removed with all that is in it, at any depth.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        static int number = 0;
        wchar_t temporary[MAX_PATH + 1] = {};
        GetTempPathW(MAX_PATH, temporary);
        const std::wstring text = std::wstring(temporary) + L"ormala-test-" +
                                  std::to_wstring(GetCurrentProcessId()) + L"-" +
                                  std::to_wstring(++number);
        path_ = utf8FromUtf16(std::u16string(text.begin(), text.end()));
        CreateDirectoryW(folder().c_str(), nullptr);
    }
    ~TemporaryFolder() { removeAll(folder()); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    /// UTF-8.
    std::string path(const std::string& name) const { return path_ + "\\" + name; }

    int entries() const {
        int count = 0;
        forEachEntry(folder(), [&count](const WIN32_FIND_DATAW&) { ++count; });
        return count;
    }

  private:
    std::wstring folder() const { return longPath(path_); }

    template <typename Visit>
    static void forEachEntry(const std::wstring& folder, const Visit& visit) {
        WIN32_FIND_DATAW entry{};
        const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &entry);
        if (search == INVALID_HANDLE_VALUE) {
            return;
        }
        do {
            const std::wstring name = entry.cFileName;
            if (name != L"." && name != L"..") {
                visit(entry);
            }
        } while (FindNextFileW(search, &entry) != 0);
        FindClose(search);
    }

    static void removeAll(const std::wstring& folder) {
        forEachEntry(folder, [&folder](const WIN32_FIND_DATAW& entry) {
            const std::wstring path = folder + L"\\" + entry.cFileName;
            if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
                removeAll(path);
            } else {
                DeleteFileW(path.c_str());
            }
        });
        RemoveDirectoryW(folder.c_str());
    }

    std::string path_;
};

}  // namespace ormala
