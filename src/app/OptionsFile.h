#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/Options.h"
#include "storage/WindowPlacement.h"
#include "storage/fileVersions.h"

namespace ormala {

/// All that the options file keeps of a run.
struct KeptOptions {
    Options options;
    /// The places of windows, by the names of their sections.
    std::vector<std::pair<std::string, WindowPlacement>> places;

    bool operator==(const KeptOptions&) const = default;
};

/// Writes the options file.
class OptionsFile {
  public:
    /// Both must outlive the object.
    OptionsFile(INIFile& file, FileStore& store) : file_(file), others_(store) {}

    /// What the file holds by the end of the start.
    void noteAsSaved(KeptOptions kept) { saved_ = std::move(kept); }
    /// False if it is not on the disk, which a message tells. What another copy of the program has
    /// written meanwhile stays beside. `time` is that of the saving.
    bool save(const KeptOptions& kept, const std::string& version, const std::string& time);
    [[nodiscard]] bool differ(const KeptOptions& kept) const { return saved_ != kept; }

  private:
    INIFile& file_;
    OtherVersions others_;
    std::optional<KeptOptions> saved_;
};

}  // namespace ormala
