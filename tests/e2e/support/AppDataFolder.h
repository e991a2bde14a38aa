#pragma once

#include <filesystem>

#include "support/win/TemporaryFolder.h"

namespace ormala::test {

/// For its lifetime the shell tells every program that starts that the user's application-data
/// folder (special folder 26) is a fresh one. There can be one at a time.
///
/// The shell takes the folder from the user's "User Shell Folders" in the registry and not from
/// the environment. What stood there is kept in the registry too, so that the next run can put it
/// back if this one ends without its destructors.
class AppDataFolder {
  public:
    AppDataFolder();
    ~AppDataFolder();
    AppDataFolder(const AppDataFolder&) = delete;
    AppDataFolder& operator=(const AppDataFolder&) = delete;

    /// Puts back what a run that was ended by force has left changed.
    static void restoreAfterCrash();

    const std::filesystem::path& path() const { return folder_.path(); }
    /// The program's own files.
    std::filesystem::path optionsFile() const { return path() / "Ormala" / "Ormala.ini"; }
    std::filesystem::path toolsFile() const { return path() / "Ormala" / "Ormala Tools.ini"; }

  private:
    TemporaryFolder folder_;
};

}  // namespace ormala::test
