#pragma once

#include <windows.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>

namespace ormala::test {

/// A file that another program keeps to itself until the object's end.
class HeldFile {
  public:
    /// `share` is what it lets others do after all, of FILE_SHARE_*.
    explicit HeldFile(const std::wstring& path, DWORD share = 0) {
        const HANDLE handle =
            CreateFileW(path.c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING, 0, nullptr);
        if (handle == INVALID_HANDLE_VALUE) {
            throw std::runtime_error("the file can't be held");
        }
        handle_.reset(handle);
    }

    void release() { handle_.reset(); }

  private:
    struct Close {
        void operator()(HANDLE handle) const { CloseHandle(handle); }
    };
    std::unique_ptr<std::remove_pointer_t<HANDLE>, Close> handle_;
};

}  // namespace ormala::test
