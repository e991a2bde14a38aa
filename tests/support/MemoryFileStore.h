#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "storage/FileReplacement.h"
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
    std::set<std::string> held;        ///< files that another program keeps to itself
    bool fullDisk = false;             ///< nothing can be written, no folder can be made
    bool readOnly = false;             ///< nothing can be removed or written
    std::string removeDescription;     ///< what the system says when it can't remove a file
    std::string writeDescription;      ///< and when it can't write one
    std::string time = "2024-05-17 08:30:12";
    std::map<std::string, std::string> times;  ///< of the files that have been written
    int reads = 0;
    int patientReads = 0;  ///< those that would have waited for a file that is held
    int writes = 0;
    int removals = 0;

    ReadResult read(const std::string& path) override {
        ++patientReads;
        return readAtOnce(path);
    }

    ReadResult readAtOnce(const std::string& path) override {
        ++reads;
        if (unreadable.contains(path) || held.contains(path)) {
            return {ReadResult::Status::failed, {}};
        }
        if (errorOfPath(path) != 0) {
            return {ReadResult::Status::notFound, {}};
        }
        return {ReadResult::Status::ok, files[path]};
    }

    WriteResult replace(const std::string& path, std::string_view bytes) override {
        ++writes;
        if (fullDisk || readOnly || held.contains(path) || !folders.contains(folderOf(path))) {
            return {false, writeDescription};
        }
        files[path] = bytes;
        times[path] = time;
        unreadable.erase(path);
        return {true, {}};
    }

    WriteResult replaceKeeping(const std::string& path, std::string_view bytes) override {
        const auto old = files.contains(path) ? std::optional(files[path]) : std::nullopt;
        const WriteResult result = replace(path, bytes);
        if (result && old) {
            files[freeKeptName(path)] = *old;
        }
        return result;
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

    std::string timeOf(const std::string& path) override {
        return files.contains(path) ? times[path] : std::string();
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
        if (readOnly || held.contains(path) || !files.contains(path)) {
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
    std::string freeKeptName(const std::string& path) const {
        int number = 1;
        while (files.contains(keptName(path, time, number))) {
            ++number;
        }
        return keptName(path, time, number);
    }

    static std::string folderOf(const std::string& path) {
        const std::size_t end = path.rfind('\\');
        return end == std::string::npos ? std::string() : path.substr(0, end);
    }
};

}  // namespace ormala
