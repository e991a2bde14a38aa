#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>

#include "storage/FileStore.h"

namespace ormala {

/// Files in memory, with switches for what can go wrong. The folder C:\data is there from the
/// start.
class MemoryFileStore : public FileStore {
  public:
    static constexpr int errorAccessDenied = 5;

    std::map<std::string, std::string> files;
    std::set<std::string> folders{"C:\\data"};
    std::set<std::string> unreadable;  ///< files and would-be files that can't be looked at
    bool fullDisk = false;             ///< nothing can be written, no folder can be made
    bool readOnly = false;             ///< nothing can be removed or written
    std::string removeDescription;     ///< what the system says when it can't remove a file
    int reads = 0;
    int writes = 0;
    int removals = 0;

    ReadResult read(const std::string& path) override {
        ++reads;
        switch (errorOfPath(path)) {
            case 0:
                return {ReadResult::Status::ok, files[path]};
            case errorFileNotFound:
                return {ReadResult::Status::notFound, {}};
            default:
                return {ReadResult::Status::failed, {}};
        }
    }

    bool replace(const std::string& path, std::string_view bytes) override {
        ++writes;
        if (fullDisk || readOnly || !folders.contains(folderOf(path))) {
            return false;
        }
        files[path] = bytes;
        return true;
    }

    int errorOfPath(const std::string& path) override {
        if (unreadable.contains(path)) {
            return errorAccessDenied;
        }
        if (!folders.contains(folderOf(path))) {
            return errorPathNotFound;
        }
        return files.contains(path) ? 0 : errorFileNotFound;
    }

    RemoveResult remove(const std::string& path) override {
        const RemoveResult result = couldRemove(path);
        if (result.removed) {
            files.erase(path);
            ++removals;
        }
        return result;
    }

    RemoveResult couldRemove(const std::string& path) override {
        if (readOnly || errorOfPath(path) != 0) {
            return {false, removeDescription};
        }
        return {true, {}};
    }

    bool createFolders(const std::string& path) override {
        if (fullDisk) {
            return false;
        }
        const std::string folder = folderOf(path);
        for (std::size_t at = folder.find('\\'); at != std::string::npos;
             at = folder.find('\\', at + 1)) {
            folders.insert(folder.substr(0, at));
        }
        folders.insert(folder);
        return true;
    }

  protected:
    static std::string folderOf(const std::string& path) {
        const std::size_t end = path.rfind('\\');
        return end == std::string::npos ? std::string() : path.substr(0, end);
    }
};

}  // namespace ormala
