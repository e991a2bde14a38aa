#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "storage/CodePage.h"
#include "storage/FileStore.h"
#include "storage/ProfileText.h"
#include "storage/RunFiles.h"

namespace ormala {

/// A settings file, reached by its keys; see `ProfileText` for its form. Texts are bytes of the
/// code page. Each access reads the file, and writes it where it changes something, unless a
/// `Scope` is open. A file that can't be read gives defaults, and a write to it begins a new one:
/// what this run could not read stays beside it.
class ProfileFile {
  public:
    /// While one is open, the file is read once, and written once when the last one closes, if
    /// anything has changed. The file must outlive it.
    class Scope {
      public:
        /// `failed` is called with the system's words if the changes could not be written.
        using Failed = std::function<void(const std::string& description)>;
        Scope(ProfileFile& file, Failed failed);
        ~Scope();
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

      private:
        ProfileFile& file_;
        Failed failed_;
    };

    /// Both must outlive the file.
    ProfileFile(FileStore& store, const CodePage& codePage) : store_(store), codePage_(codePage) {}

    const std::string& path() const { return path_; }

    /// A failure is that of an open scope whose changes for the former path could not be written.
    WriteResult setPath(std::string path);

    /// What the last look at the file found; `check` takes one, or tells what the open scope has
    /// seen.
    [[nodiscard]] ReadResult::Status status() const { return status_; }
    ReadResult::Status check();

    /// What the last look found counts as read by this run as a whole.
    void noteAsRead();
    /// Whether the file has other contents than this run has last read as a whole or written. A
    /// file that isn't there, or can't be read now, hasn't.
    [[nodiscard]] bool changedElsewhere();

    /// What that was; nothing if there was no file.
    [[nodiscard]] std::optional<std::string_view> knownContents() const {
        return run_.contentsOf(path_);
    }
    /// This run could not read the file, so that its next writing keeps it beside.
    [[nodiscard]] bool keepsOld() const { return run_.couldNotRead(path_); }

    /// The value, cut to `size` - 1 bytes; nothing if it, its section or the file is missing.
    std::optional<std::string> find(std::string_view section, std::string_view key,
                                    std::size_t size);

    /// The same with a default for what is missing, cut too.
    std::string value(std::string_view section, std::string_view key, std::string_view defaultText,
                      std::size_t size);

    /// Makes the file, the section and the key as needed. Inside a scope true means that the change
    /// is noted.
    WriteResult setValue(std::string_view section, std::string_view key, std::string_view value);

    /// In the order of the file, without nameless ones.
    std::vector<std::string> sectionNames();

    /// Removes the file. Inside a scope the old contents stay on the disk until the new ones are
    /// complete: the file goes at the end, and only if nothing has been written to it again.
    RemoveResult remove();

    /// Drops what an open scope has read and noted, because there is no such file.
    void forget() { grouped_.reset(); }

  private:
    struct Grouped {
        ProfileText text;
        bool changed = false;
        bool removed = false;
    };

    ReadResult look();
    ProfileText& text(std::optional<ProfileText>& fresh);
    WriteResult write(const std::string& bytes);
    WriteResult writeGrouped();

    FileStore& store_;
    const CodePage& codePage_;
    std::string path_;
    ReadResult::Status status_ = ReadResult::Status::notFound;
    /// What `status_` tells about, in whichever form the file has.
    std::string seen_;
    RunFiles run_;
    int openScopes_ = 0;
    std::optional<Grouped> grouped_;
};

}  // namespace ormala
