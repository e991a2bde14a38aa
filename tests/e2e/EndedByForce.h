#pragma once

#include <windows.h>

#include <stdexcept>

#include "e2e/support/Program.h"
#include "e2e/support/SettingsFile.h"

namespace ormala::test {

/// Ends it as a loss of power does, and returns when it is gone.
inline void endByForce(const Program& program) {
    const KernelHandle process(
        OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, program.process().id()));
    TerminateProcess(process.get(), 1);
    WaitForSingleObject(process.get(), 10000);
}

/// A key of a settings file; -1000 if the file or the key is missing at this moment, or the file is
/// just being replaced.
inline double fileNumber(const std::filesystem::path& path, std::string_view section,
                         std::string_view key) {
    constexpr double none = -1000;
    try {
        return SettingsFile::read(path).number(section, key).value_or(none);
    } catch (const std::runtime_error&) {
        return none;
    }
}

}  // namespace ormala::test
