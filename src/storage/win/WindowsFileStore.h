#pragma once

#include <string>

#include "storage/FileStore.h"

namespace ormala {

/// The files of the disk. A file is replaced by writing a new one in the same folder, flushing it
/// to the disk and renaming it over the old one; where any of that fails, the old file stays and
/// the new one is removed, by the next replacement in that folder if the process ended. Only files
/// are read, no devices or pipes, which could block for ever.
class WindowsFileStore : public FileStore {
  public:
    ReadResult read(const std::string& path) override;
    ReadResult readAtOnce(const std::string& path) override;
    WriteResult replace(const std::string& path, std::string_view bytes) override;
    WriteResult replaceKeeping(const std::string& path, std::string_view bytes) override;
    int errorOfPath(const std::string& path) override;
    std::string timeOf(const std::string& path) override;
    RemoveResult remove(const std::string& path) override;
    RemoveResult couldRemove(const std::string& path) override;
    bool createFolders(const std::string& path) override;
};

}  // namespace ormala
