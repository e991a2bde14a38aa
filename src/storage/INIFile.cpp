#include "storage/INIFile.h"

#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>
#include <utility>

#include "base/Utf8.h"
#include "language/MlStringModule.h"
#include "storage/NumberForm.h"
#include "storage/modStorage.h"

namespace ormala {

namespace {

constexpr std::size_t valueBufferSize = 255;

/// The beginnings of the messages, by their numbers in the language tables.
struct Message {
    int id = 0;
    std::string_view text;
};
constexpr Message failedToClear{238, "Failed to clear file '"};
constexpr Message failedToCreateFolder{240, "Failed to create folder for file '"};
constexpr Message failedToLoad{241, "Failed to load file '"};
constexpr Message failedToSave{242, "Failed to save file '"};
constexpr Message messageEnd{239, "'."};

/// `reason` is the system's own sentence, or nothing.
std::string messageAbout(const Message& begin, const std::string& path,
                         const std::string& reason = {}) {
    const std::string message =
        MlString(begin.id, begin.text) + path + MlString(messageEnd.id, messageEnd.text);
    return reason.empty() ? message : message + " " + reason;
}

}  // namespace

INIFile::INIFile(FileStore& store, const CodePage& codePage, MessagePresenter& presenter)
    : store_(store), codePage_(codePage), presenter_(presenter), profile_(store, codePage) {}

void INIFile::setPath(std::string path) {
    const std::string former = profile_.path();
    lastError_.clear();
    toldUnreadable_ = false;
    const WriteResult left = profile_.setPath(std::move(path));
    scanSections();
    if (!left) {
        lastError_ = messageAbout(failedToSave, former, left.description);
    }
}

/// Whether the last look at the file failed, which is told once.
bool INIFile::tellUnreadable() {
    const bool unreadable = status() == ReadResult::Status::failed;
    if (unreadable && !toldUnreadable_) {
        lastError_ = messageAbout(failedToLoad, Path());
    }
    toldUnreadable_ = toldUnreadable_ || unreadable;
    return unreadable;
}

ReadResult::Status INIFile::check() {
    profile_.check();
    tellUnreadable();
    return status();
}

void INIFile::scanSections() {
    sections_.assign(1, std::string());
    if (Path().empty()) {
        return;
    }
    const std::vector<std::string> names = profile_.sectionNames();
    if (tellUnreadable() || names.empty()) {
        return;
    }
    sections_.clear();
    for (const std::string& name : names) {
        sections_.push_back(codePage_.utf8FromBytes(name));
    }
}

void INIFile::setCurrentSection(std::string section) {
    currentSection_ = std::move(section);
    sectionBytes_ = codePage_.bytesFromUtf8(currentSection_);
}

void INIFile::Delete() {
    if (!FileExists(store_, Path())) {
        profile_.forget();
        return;
    }
    const RemoveResult result = profile_.remove();
    if (!result.removed) {
        lastError_ = messageAbout(failedToClear, Path(), result.description);
    }
}

void INIFile::CreateFolderPath() {
    if (!FileExists(store_, Path()) && !CreateFolderForFile(store_, Path())) {
        lastError_ = messageAbout(failedToCreateFolder, Path());
    }
}

void INIFile::tellFailedSave(const std::string& description) {
    lastError_ = messageAbout(failedToSave, Path(), description);
    ShowLastError();
}

bool INIFile::ShowLastError() {
    if (!lastError_.empty()) {
        presenter_.showError(lastError_);
        lastError_.clear();
    }
    return false;
}

bool INIFile::isValid() const {
    return !currentSection_.empty() && !Path().empty();
}

/// Nothing if the file has no such key or the access isn't valid.
std::optional<std::string> INIFile::storedBytes(std::string_view key) {
    if (key.empty() || !isValid()) {
        return std::nullopt;
    }
    return profile_.find(sectionBytes_, codePage_.bytesFromUtf8(key), valueBufferSize);
}

std::string INIFile::StringValue(std::string_view key, std::string_view defaultText) {
    if (key.empty() || !isValid()) {
        return std::string(defaultText);
    }
    const std::string found = profile_.value(sectionBytes_, codePage_.bytesFromUtf8(key),
                                             codePage_.bytesFromUtf8(defaultText), valueBufferSize);
    if (tellUnreadable()) {
        return std::string(defaultText);
    }
    if (found.empty()) {
        lastError_ = messageAbout(failedToLoad, Path());
        return std::string(defaultText);
    }
    return codePage_.utf8FromBytes(trimBlanks(found));
}

std::string INIFile::TextValue(std::string_view key, std::string_view defaultText) {
    const auto stored = storedBytes(key);
    return stored && stored->empty() ? std::string() : StringValue(key, defaultText);
}

void INIFile::setStringValue(std::string_view key, std::string_view value) {
    if (!isValid()) {
        return;
    }
    const WriteResult result = profile_.setValue(sectionBytes_, codePage_.bytesFromUtf8(key),
                                                 codePage_.bytesFromUtf8(value));
    if (!result) {
        lastError_ = messageAbout(failedToSave, Path(), result.description);
    }
}

/// The default's text is made only where it is needed.
std::string INIFile::numberValue(std::string_view key, double defaultValue) {
    std::string text = storedBytes(key).value_or(std::string());
    return text.empty() ? StringValue(key, numberText(defaultValue)) : text;
}

double INIFile::DoubleValue(std::string_view key, double defaultValue) {
    const auto value = numberFromText(numberValue(key, defaultValue));
    if (!value) {
        lastError_ = messageAbout(failedToLoad, Path());
    }
    return value.value_or(defaultValue);
}

void INIFile::setDoubleValue(std::string_view key, double value) {
    setStringValue(key, numberText(value));
}

std::int32_t INIFile::LongValue(std::string_view key, std::int32_t defaultValue) {
    using Limits = std::numeric_limits<std::int32_t>;
    const double value = std::round(DoubleValue(key, defaultValue));
    if (value < Limits::min() || value > Limits::max()) {
        lastError_ = messageAbout(failedToLoad, Path());
        return defaultValue;
    }
    return static_cast<std::int32_t>(value);
}

void INIFile::setLongValue(std::string_view key, std::int32_t value) {
    setDoubleValue(key, value);
}

std::int32_t INIFile::SectionMax() const {
    return static_cast<std::int32_t>(sections_.size()) - 1;
}

std::string INIFile::SectionName(std::int32_t index) const {
    const bool listed = index >= 0 && index <= SectionMax();
    return listed ? sections_[static_cast<std::size_t>(index)] : std::string();
}

ProfileFile::Scope INIFile::group() {
    return {profile_, [this](const std::string& description) {
                lastError_ = messageAbout(failedToSave, Path(), description);
            }};
}

}  // namespace ormala
