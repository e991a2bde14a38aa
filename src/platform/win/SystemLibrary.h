#pragma once

#include <windows.h>

namespace ormala {

/// A library of Windows that is not among those which the system has always loaded from its own
/// folder. Were it named among the imports, a file of that name beside the program would be taken
/// for it; so it is loaded here, from nowhere but the system's folder.
class SystemLibrary {
  public:
    /// `name` is that of the file: L"oleacc.dll".
    explicit SystemLibrary(const wchar_t* name)
        : module_(LoadLibraryExW(name, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32)) {}
    ~SystemLibrary() {
        if (module_ != nullptr) {
            FreeLibrary(module_);
        }
    }
    SystemLibrary(const SystemLibrary&) = delete;
    SystemLibrary& operator=(const SystemLibrary&) = delete;

    /// Null where the library or the function is missing: function<decltype(DwmFlush)>("DwmFlush").
    template <typename Function>
    [[nodiscard]] Function* function(const char* name) const {
        return reinterpret_cast<Function*>(
            reinterpret_cast<void*>(module_ != nullptr ? GetProcAddress(module_, name) : nullptr));
    }

  private:
    HMODULE module_;
};

}  // namespace ormala
