#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "storage/CodePage.h"
#include "storage/FileStore.h"
#include "storage/MessagePresenter.h"
#include "storage/ProfileFile.h"

namespace ormala {

/// Reads and writes one settings file. Accesses go to the current section; they are valid only
/// while path and current section are both non-empty, else reads give their default and writes do
/// nothing, without a failure. A failure leaves its text in `LastError`, until `ShowLastError`
/// shows it or a path is assigned.
class INIFile {
  public:
    /// All three must outlive the object.
    INIFile(FileStore& store, const CodePage& codePage, MessagePresenter& presenter);

    /// The path is UTF-8 and may lie outside the code page. Assigning it, also the same one again,
    /// clears `LastError` and takes a new list of the file's sections. A file that can't be read is
    /// a failure then; accesses that follow are none, though they give defaults.
    const std::string& Path() const { return profile_.path(); }
    void setPath(std::string path);

    /// What the last look at the file found.
    [[nodiscard]] ReadResult::Status status() const { return profile_.status(); }
    /// Takes such a look, or tells what the open group has seen; an unreadable file is a failure,
    /// unless that has been one since the path was assigned.
    ReadResult::Status check();

    /// Says that the program has all that is in the file. What it could not read stays beside the
    /// file when that is written again.
    void noteAsRead() { profile_.noteAsRead(); }
    /// Whether another program has changed the file since that, or since it was written here.
    [[nodiscard]] bool changedElsewhere() { return profile_.changedElsewhere(); }

    /// What this program has last read of it or written to it; nothing if it knows of no file.
    [[nodiscard]] std::optional<std::string_view> knownContents() const {
        return profile_.knownContents();
    }
    /// Whether the next writing keeps the old file beside it, which could not be read.
    [[nodiscard]] bool keepsOld() const { return profile_.keepsOld(); }

    const std::string& CurrentSection() const { return currentSection_; }
    void setCurrentSection(std::string section);

    const std::string& LastError() const { return lastError_; }
    void setLastError(std::string text) { lastError_ = std::move(text); }

    /// Removes the file if `FileExists`. Inside a group the old contents stay on the disk until the
    /// group's end.
    void Delete();

    /// Makes the folder of a file that is reported missing. A missing folder isn't such a report.
    void CreateFolderPath();

    /// Has a message tell that the file could not be saved; the description may be empty.
    void tellFailedSave(const std::string& description);
    /// Shows `LastError` if there is one, and clears it. The result is always false.
    bool ShowLastError();

    /// At most 254 bytes of the stored text, without blanks at its ends. An empty value, and a
    /// missing one with an empty default, is a failure.
    std::string StringValue(std::string_view key, std::string_view defaultText);
    /// The same for a text that may be empty: only a missing one is then a failure.
    std::string TextValue(std::string_view key, std::string_view defaultText);
    void setStringValue(std::string_view key, std::string_view value);

    /// A value that is no number reads as 0; one too large to be finite is a failure.
    double DoubleValue(std::string_view key, double defaultValue);
    void setDoubleValue(std::string_view key, double value);

    /// The text behind `DoubleValue`.
    std::string numberValue(std::string_view key, double defaultValue);

    /// Fractions are rounded, halves away from zero; a value outside the range is a failure.
    std::int32_t LongValue(std::string_view key, std::int32_t defaultValue);
    void setLongValue(std::string_view key, std::int32_t value);

    /// The last index of the list of sections, which has one empty name if the file has none.
    std::int32_t SectionMax() const;
    /// Empty for an index outside the list.
    std::string SectionName(std::int32_t index) const;

    /// Groups the accesses of its lifetime: the file is read once and written once at its end, and
    /// only then a failure of writing shows in `LastError`.
    [[nodiscard]] ProfileFile::Scope group();

  private:
    bool isValid() const;
    std::optional<std::string> storedBytes(std::string_view key);
    bool tellUnreadable();
    void scanSections();

    FileStore& store_;
    const CodePage& codePage_;
    MessagePresenter& presenter_;
    ProfileFile profile_;
    std::string currentSection_;
    /// The same in the code page.
    std::string sectionBytes_;
    std::string lastError_;
    /// `LastError` has had that the file can't be read.
    bool toldUnreadable_ = false;
    std::vector<std::string> sections_{std::string()};
};

/// Makes a section current for its lifetime and then the former one again.
class CurrentSectionGuard {
  public:
    CurrentSectionGuard(INIFile& file, std::string section)
        : file_(file), former_(file.CurrentSection()) {
        file_.setCurrentSection(std::move(section));
    }
    ~CurrentSectionGuard() { file_.setCurrentSection(std::move(former_)); }
    CurrentSectionGuard(const CurrentSectionGuard&) = delete;
    CurrentSectionGuard& operator=(const CurrentSectionGuard&) = delete;

  private:
    INIFile& file_;
    std::string former_;
};

}  // namespace ormala
