#pragma once

#include <windows.h>

#include <memory>
#include <string>

namespace ormala {

/// Who may do what with a file: its list of access rights. What the folder hands down to all of its
/// files stays handed down. There are disks and servers without such lists, and users who may not
/// read or change one; then nothing is taken or given.
class AccessRights {
  public:
    /// Those of the file, if there is one. The path is one that `longPath` gives.
    static AccessRights of(const std::wstring& path);

    /// Gives them to a file, which may be open to nobody else.
    void giveTo(const std::wstring& path) const;

  private:
    struct Free {
        void operator()(void* descriptor) const { LocalFree(descriptor); }
    };
    std::unique_ptr<void, Free> descriptor_;
    /// Part of the descriptor.
    ACL* list_ = nullptr;
};

}  // namespace ormala
