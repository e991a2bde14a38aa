#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ormala {

/// The system's numbers for the two errors that the program tells apart.
constexpr int errorFileNotFound = 2;
constexpr int errorPathNotFound = 3;

/// A settings file has some ten thousand bytes; a file beyond this size is none and isn't read.
constexpr std::size_t largestSettingsFile = std::size_t{16} << 20U;

struct ReadResult {
    enum class Status {
        ok,
        notFound,  ///< there is no such file, be it that its folder is missing or that a link leads
                   ///< nowhere
        failed     ///< there is something, but it can't be read: held by another program, no
                   ///< permission, too large, a folder
    };
    Status status = Status::failed;
    std::string bytes;  ///< empty unless `ok`
};

struct RemoveResult {
    bool removed = false;
    std::string description;  ///< the system's words for the failure, may be empty
};

struct WriteResult {
    bool written = false;     ///< all of it is on the disk
    std::string description;  ///< the system's words for the failure, may be empty

    explicit operator bool() const { return written; }
};

/// The files of the computer. Paths are UTF-8, of any length and with any characters. Nothing
/// throws for what the file system answers.
class FileStore {
  public:
    virtual ~FileStore() = default;

    /// A file that another program holds is tried again for up to two seconds.
    virtual ReadResult read(const std::string& path) = 0;

    /// The same without a second try.
    virtual ReadResult readAtOnce(const std::string& path) = 0;

    /// Writes the whole file: whatever happens, it holds the old bytes or the new ones. It keeps
    /// the old one's access rights. A file that another program holds is tried again for two
    /// seconds.
    virtual WriteResult replace(const std::string& path, std::string_view bytes) = 0;

    /// The same, and the old file, if there is one, stays beside it under a `keptName`. A folder
    /// isn't moved away. If the process ends at the wrong moment there is only the kept file.
    virtual WriteResult replaceKeeping(const std::string& path, std::string_view bytes) = 0;

    /// The system's error number for a look at the path, 0 if something is there.
    virtual int errorOfPath(const std::string& path) = 0;

    /// The local time at which the file was last written, in the form of the settings files:
    /// "2024-05-17 08:30:12". Empty if there is none.
    virtual std::string timeOf(const std::string& path) = 0;

    virtual RemoveResult remove(const std::string& path) = 0;

    /// What `remove` would answer now, or within two seconds if another program holds the file; the
    /// file stays.
    virtual RemoveResult couldRemove(const std::string& path) = 0;

    /// Makes every folder named in the path; what follows its last backslash is a file's name and
    /// isn't made. Folders that are there already are no failure.
    virtual bool createFolders(const std::string& path) = 0;
};

}  // namespace ormala
