#include "support/win/TemporaryFolder.h"

#include <windows.h>

#include <chrono>
#include <string>
#include <system_error>

namespace ormala::test {

TemporaryFolder::TemporaryFolder() {
    const auto parent = std::filesystem::temp_directory_path();
    const auto now = std::chrono::system_clock::now().time_since_epoch().count();
    const std::wstring name = L"Ormala test " + std::to_wstring(GetCurrentProcessId()) + L' ';
    auto number = now;
    do {
        path_ = parent / (name + std::to_wstring(number++));
    } while (!std::filesystem::create_directories(path_));
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

}  // namespace ormala::test
