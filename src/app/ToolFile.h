#pragma once

#include <functional>
#include <string>

#include "app/BusyView.h"
#include "app/ToolList.h"
#include "storage/FileStore.h"
#include "storage/INIFile.h"

namespace ormala {

/// Saves, loads and compares the set of tools: the file has a section for the program and one for
/// each tool, "Tool 1" and so on, in the order of the list.
class ToolFile {
  public:
    /// The version of the program and the local time, for the section of the program.
    struct Header {
        std::string version;
        std::function<std::string()> timeOfSaving;
    };
    struct Ports {
        INIFile& file;
        FileStore& store;
        ToolList& tools;
        BusyView& busy;
    };

    /// The ports must outlive the object; its file is the one that `file` has the path of.
    ToolFile(const Ports& ports, Header header) : ports_(ports), header_(std::move(header)) {}

    /// Writes the whole file anew; the old contents stay until the new ones are complete. False
    /// without a path, or if the new contents are not on the disk. One message tells what went
    /// wrong: that of the writing, or else that of what came before it.
    bool save();
    /// Replaces all tools by those of the file and selects the first one. A message tells of each
    /// tool too many. False without a path, or if the file can't be read, which a message tells;
    /// the tools stay then.
    bool load();
    /// Whether the tools that there are equal the first ones of the file. False without a file
    /// that can be read.
    bool compare();

  private:
    void store();
    void loadTools();
    SettingControl* loadTool(const std::string& section);

    Ports ports_;
    Header header_;
};

}  // namespace ormala
