#pragma once

#include <string>

#include "app/ToolFile.h"
#include "storage/fileVersions.h"

namespace ormala {

/// The automatic file, by which the tools of the last run come back by themselves. It has nothing
/// to do with the open document.
class AutomaticTools {
  public:
    struct Ports {
        /// Of this file alone.
        INIFile& file;
        ToolFile& toolFile;
        FileStore& store;
        ToolList& tools;
    };

    /// The ports must outlive the object.
    AutomaticTools(const Ports& ports, std::string path)
        : ports_(ports), others_(ports.store), path_(std::move(path)) {}

    /// At the start: brings the tools of the last run back, or shows the first tools if there was
    /// none or its file can't be read, which a message tells. `now` is the time, by which the file
    /// of the last run is kept once a day.
    void load(const std::string& now);

    /// False if the tools are not on the disk, which a message tells. What another copy of the
    /// program has written meanwhile stays beside.
    bool save();
    /// Whether the tools are other ones than at the start, or at the last save.
    [[nodiscard]] bool differ() const { return ports_.tools.keysText() != saved_; }
    /// The same if they differ.
    bool saveChanges() { return !differ() || save(); }

  private:
    bool loadIfReadable();

    Ports ports_;
    OtherVersions others_;
    std::string path_;
    std::string saved_;
};

}  // namespace ormala
