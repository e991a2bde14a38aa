#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "storage/FileStore.h"
#include "storage/ProfileText.h"

namespace ormala {

/// A settings file, reached by its keys; see `ProfileText` for its form. Texts are bytes of the
/// file's code page. Each access reads the file, and writes it where it changes something, unless a
/// `Scope` is open. A file that can't be read gives defaults and is never written over.
class ProfileFile {
  public:
    /// While one is open, the file is read once, and written once when the last one closes, if
    /// anything has changed. The file must outlive it.
    class Scope {
      public:
        /// `failed` is called if the changes could not be written.
        Scope(ProfileFile& file, std::function<void()> failed);
        ~Scope();
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

      private:
        ProfileFile& file_;
        std::function<void()> failed_;
    };

    /// The store must outlive the file.
    explicit ProfileFile(FileStore& store) : store_(store) {}

    const std::string& path() const { return path_; }

    /// Returns false if an open scope had changes for the former path that could not be written.
    bool setPath(std::string path);

    /// The value, cut to `size` - 1 bytes; nothing if it, its section or the file is missing.
    std::optional<std::string> find(std::string_view section, std::string_view key,
                                    std::size_t size);

    /// The same with a default for what is missing, cut too.
    std::string value(std::string_view section, std::string_view key, std::string_view defaultText,
                      std::size_t size);

    /// Makes the file, the section and the key as needed. Inside a scope true means that the change
    /// is noted.
    bool setValue(std::string_view section, std::string_view key, std::string_view value);

    /// The names that fit into a buffer of `size` bytes, in the order of the file: each takes one
    /// byte more than it has, and one byte stays for the end of the list. A name that doesn't fit
    /// whole ends the list.
    std::vector<std::string> sectionNames(std::size_t size);

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

    std::optional<ProfileText> read() const;
    ProfileText* text(std::optional<ProfileText>& fresh);
    bool writeGrouped();

    FileStore& store_;
    std::string path_;
    int openScopes_ = 0;
    std::optional<Grouped> grouped_;
};

}  // namespace ormala
