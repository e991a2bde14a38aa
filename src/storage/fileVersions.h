#pragma once

#include <string>
#include <string_view>

#include "storage/INIFile.h"

// Versions of a settings file that stay beside it.

namespace ormala {

/// To be called at a start, before anything is written: once a day the file of the last run is
/// copied to its "(previous)" one. `today` begins with the day, in the form of the settings files.
/// A file that is missing, empty or unreadable changes nothing.
void keepPrevious(FileStore& store, const std::string& path, std::string_view today);

/// Of one settings file that several copies of the program write: what another one has written
/// stays beside the file as "(other)" before this one, which has not seen it, writes over it.
class OtherVersions {
  public:
    /// Must outlive the object.
    explicit OtherVersions(FileStore& store) : store_(store) {}

    /// To be called before the file is written. A failure says that another version could not be
    /// kept. What this copy has kept there is replaced by what is newer, and so is a version of its
    /// own that another copy has kept.
    WriteResult keep(const INIFile& file);

  private:
    WriteResult keepBeside(const INIFile& file, const std::string& bytes);
    [[nodiscard]] bool mayReplace(const INIFile& file, const ReadResult& there) const;

    FileStore& store_;
    /// What this copy has kept last.
    std::string kept_;
};

}  // namespace ormala
