#pragma once

#include <set>
#include <string>
#include <string_view>

#include "storage/FileReplacement.h"
#include "support/MemoryFileStore.h"

namespace ormala {

/// Files in memory that are replaced step by step, one of which can break. What isn't flushed is
/// lost in part at a restart, as after a loss of power.
class BreakableFileStore : public MemoryFileStore, private ReplacementSteps {
  public:
    enum class Break {
        none,
        failsOnce,        ///< a full disk, for the one step
        failsFromThenOn,  ///< a disk that is gone
        dies              ///< nothing happens any more, since there is no process
    };

    /// The step to break, counted from 0 over all replacements from now on.
    void breakAt(int step, Break how) {
        steps_ = 0;
        brokenStep_ = step;
        how_ = how;
        dead_ = false;
    }
    /// How many steps have been taken since `breakAt`.
    [[nodiscard]] int steps() const { return steps_; }

    /// Only what has reached the disk is there, and nothing breaks.
    void restart() {
        for (const std::string& path : unflushed_) {
            files[path].resize(files[path].size() / 2);
        }
        unflushed_.clear();
        breakAt(0, Break::none);
    }

    ReadResult readAtOnce(const std::string& path) override {
        return dead_ ? ReadResult{} : MemoryFileStore::readAtOnce(path);
    }
    WriteResult replace(const std::string& path, std::string_view bytes) override {
        return replaced(path, bytes, OldFile::goes);
    }
    WriteResult replaceKeeping(const std::string& path, std::string_view bytes) override {
        return replaced(path, bytes, OldFile::staysBeside);
    }
    RemoveResult remove(const std::string& path) override {
        return dead_ ? RemoveResult{} : MemoryFileStore::remove(path);
    }
    bool createFolders(const std::string& path) override {
        return !dead_ && MemoryFileStore::createFolders(path);
    }

  private:
    WriteResult replaced(const std::string& path, std::string_view bytes, OldFile old) {
        target_ = path;
        const bool written = replaceFile(*this, bytes, old);
        dead_ = dead_ || (how_ == Break::dies && steps_ == brokenStep_);
        return {written, {}};
    }

    bool works() {
        const int step = steps_++;
        if (how_ == Break::dies && step == brokenStep_) {
            dead_ = true;
        }
        const bool fails = (how_ == Break::failsOnce && step == brokenStep_) ||
                           (how_ == Break::failsFromThenOn && step >= brokenStep_);
        return !dead_ && !fails;
    }

    void removeLeftovers() override {
        if (works()) {
            std::erase_if(files, [this](const auto& file) {
                const std::string folder = folderOf(target_) + "\\";
                return file.first.starts_with(folder) &&
                       isNeighbourName(file.first.substr(folder.size()));
            });
        }
    }
    bool makeNeighbour() override { return works() && files.try_emplace(neighbour()).second; }
    bool write(std::string_view bytes) override {
        const bool alive = !dead_;
        const bool whole = works();
        if (alive) {
            files[neighbour()] = bytes.substr(0, whole ? bytes.size() : bytes.size() / 2);
            unflushed_.insert(neighbour());
        }
        return whole;
    }
    bool flush() override {
        const bool flushed = works();
        if (flushed) {
            unflushed_.erase(neighbour());
        }
        return flushed;
    }
    bool keepOld() override {
        if (!works()) {
            return false;
        }
        kept_ = freeKeptName(target_);
        files[kept_] = files[target_];
        files.erase(target_);
        return true;
    }
    void putOldBack() override {
        if (works()) {
            files[target_] = files[kept_];
            files.erase(kept_);
        }
    }
    bool renameOver() override {
        if (!works()) {
            return false;
        }
        files[target_] = files[neighbour()];
        files.erase(neighbour());
        if (unflushed_.erase(neighbour()) > 0) {
            unflushed_.insert(target_);
        }
        return true;
    }
    void removeNeighbour() override {
        if (works()) {
            files.erase(neighbour());
            unflushed_.erase(neighbour());
        }
    }

    [[nodiscard]] std::string neighbour() const {
        return folderOf(target_) + "\\" + neighbourName(1, 0);
    }

    std::string target_;
    std::string kept_;
    std::set<std::string> unflushed_;
    int steps_ = 0;
    int brokenStep_ = 0;
    Break how_ = Break::none;
    bool dead_ = false;
};

}  // namespace ormala
