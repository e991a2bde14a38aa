#pragma once

#include <filesystem>

namespace ormala::test {

/// A new empty folder in the user's folder for temporary files; it goes with its contents at the
/// end of the object.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
};

}  // namespace ormala::test
