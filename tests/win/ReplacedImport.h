#pragma once

#include <windows.h>

#include <type_traits>

namespace ormala::test {

/// Puts a function in the place of one that the program imports, as long as it lives. `imported` is
/// the program's own pointer to it, whose symbol is `__imp_` and the function's name.
template <auto& imported>
class ReplacedImport {
  public:
    using Function = std::remove_reference_t<decltype(imported)>;

    explicit ReplacedImport(Function replacement) {
        system();
        put(replacement);
    }
    ReplacedImport(const ReplacedImport&) = delete;
    ReplacedImport& operator=(const ReplacedImport&) = delete;
    ~ReplacedImport() { put(system()); }

    /// The system's own function.
    static Function system() {
        static const Function own = imported;
        return own;
    }

  private:
    static void put(Function function) {
        DWORD former = 0;
        VirtualProtect(&imported, sizeof imported, PAGE_READWRITE, &former);
        imported = function;
    }
};

}  // namespace ormala::test
