#pragma once

#include <string>
#include <string_view>

namespace ormala {

/// The single steps of replacing a file, on whatever it lies. Each may fail, and the process may
/// end before, after and within each.
class ReplacementSteps {
  public:
    virtual ~ReplacementSteps() = default;

    /// Removes what replacements that were cut short have left in the file's folder.
    virtual void removeLeftovers() = 0;
    /// Makes an empty new file beside the old one.
    virtual bool makeNeighbour() = 0;
    /// May fail with a part of the bytes written.
    virtual bool write(std::string_view bytes) = 0;
    /// Brings what is written to the disk itself.
    virtual bool flush() = 0;
    /// Gives the old file, if there is one, another name that no file has.
    virtual bool keepOld() = 0;
    virtual void putOldBack() = 0;
    /// Gives the new file the place and the name of the old one in a single step.
    virtual bool renameOver() = 0;
    virtual void removeNeighbour() = 0;
};

/// What becomes of the old file.
enum class OldFile { goes, staysBeside };

/// Writes a file anew, so that it holds the old bytes or the new ones whatever happens. False if
/// the old ones stay; the new file is removed then.
bool replaceFile(ReplacementSteps& steps, std::string_view bytes, OldFile old);

/// The name of the new file while it is written: `process` keeps two copies of the program apart,
/// `number` one that is there already.
std::string neighbourName(unsigned long process, int number);

/// Whether a file's name is one that `neighbourName` gives.
bool isNeighbourName(std::string_view name);

/// The path of an old file that stays beside its successor: "C:\\a (kept 2024-01-31 23.05.09).OM".
/// `time` is that of the keeping, in the form of the settings files; a `number` from 2 on stands
/// behind it where there is such a file already.
std::string keptName(std::string_view path, std::string_view time, int number);

/// The path of another version of a file: "C:\\a (other).OM" for the word "other". A `number` from
/// 2 on stands behind the word where there is such a file already.
std::string versionName(std::string_view path, std::string_view word, int number = 1);

}  // namespace ormala
