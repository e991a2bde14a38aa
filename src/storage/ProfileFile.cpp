#include "storage/ProfileFile.h"

#include <algorithm>
#include <utility>

#include "storage/TextMark.h"

namespace ormala {

namespace {

std::string cutToBuffer(std::string_view text, std::size_t size) {
    const std::size_t most = std::max<std::size_t>(size, 1) - 1;
    if (text.size() <= most) {
        return std::string(text);
    }
    // What is left may end in blanks, which would be gone once it is written and read again.
    text = text.substr(0, most);
    return std::string(text.substr(0, text.find_last_not_of(" \t") + 1));
}

}  // namespace

ProfileFile::Scope::Scope(ProfileFile& file, Failed failed)
    : file_(file), failed_(std::move(failed)) {
    ++file_.openScopes_;
}

ProfileFile::Scope::~Scope() {
    --file_.openScopes_;
    if (file_.openScopes_ > 0) {
        return;
    }
    const WriteResult result = file_.writeGrouped();
    if (!result) {
        failed_(result.description);
    }
}

WriteResult ProfileFile::setPath(std::string path) {
    WriteResult result{true, {}};
    if (path != path_) {
        result = writeGrouped();
        path_ = std::move(path);
    }
    if (!grouped_) {
        // The next look may wait for the file again.
        status_ = ReadResult::Status::notFound;
    }
    return result;
}

/// A file that was unreadable just now isn't waited for again.
ReadResult ProfileFile::look() {
    const bool wasUnreadable = status_ == ReadResult::Status::failed;
    ReadResult result = wasUnreadable ? store_.readAtOnce(path_) : store_.read(path_);
    status_ = result.status;
    if (status_ == ReadResult::Status::failed) {
        run_.noteUnreadable(path_);
    }
    seen_ = result.bytes;
    return result;
}

ReadResult::Status ProfileFile::check() {
    std::optional<ProfileText> fresh;
    text(fresh);
    return status_;
}

void ProfileFile::noteAsRead() {
    if (status_ == ReadResult::Status::ok) {
        run_.noteContents(path_, seen_);
    }
}

bool ProfileFile::changedElsewhere() {
    const auto known = run_.contentsOf(path_);
    if (!known) {
        return false;
    }
    const ReadResult now = look();
    return now.status == ReadResult::Status::ok && now.bytes != *known;
}

/// The text to work on: the one of the open scope, or `fresh`, read now. Empty for a file that
/// can't be read.
ProfileText& ProfileFile::text(std::optional<ProfileText>& fresh) {
    if (grouped_) {
        return grouped_->text;
    }
    ProfileText& text = fresh.emplace(codePageText(look().bytes, codePage_));
    if (openScopes_ == 0) {
        return text;
    }
    grouped_ = Grouped{std::move(text)};
    return grouped_->text;
}

WriteResult ProfileFile::write(const std::string& bytes) {
    WriteResult result = run_.couldNotRead(path_) ? store_.replaceKeeping(path_, bytes)
                                                  : store_.replace(path_, bytes);
    if (result) {
        status_ = ReadResult::Status::ok;
        run_.noteContents(path_, bytes);
    }
    return result;
}

/// Ends the grouping of what has been read and noted so far; a success if nothing is lost.
WriteResult ProfileFile::writeGrouped() {
    const std::optional<Grouped> grouped = std::exchange(grouped_, std::nullopt);
    if (!grouped) {
        return {true, {}};
    }
    if (grouped->changed) {
        return write(grouped->text.bytes());
    }
    if (!grouped->removed) {
        return {true, {}};
    }
    RemoveResult result = store_.remove(path_);
    return {result.removed, std::move(result.description)};
}

RemoveResult ProfileFile::remove() {
    if (openScopes_ == 0) {
        return store_.remove(path_);
    }
    RemoveResult result = store_.couldRemove(path_);
    if (result.removed) {
        grouped_ = Grouped{};
        grouped_->removed = true;
        status_ = ReadResult::Status::notFound;
    }
    return result;
}

std::optional<std::string> ProfileFile::find(std::string_view section, std::string_view key,
                                             std::size_t size) {
    std::optional<ProfileText> fresh;
    const auto found = text(fresh).value(section, key);
    return found ? std::optional(cutToBuffer(*found, size)) : std::nullopt;
}

std::string ProfileFile::value(std::string_view section, std::string_view key,
                               std::string_view defaultText, std::size_t size) {
    return find(section, key, size).value_or(cutToBuffer(defaultText, size));
}

WriteResult ProfileFile::setValue(std::string_view section, std::string_view key,
                                  std::string_view value) {
    if (!ProfileText::canHold(key)) {
        return {};
    }
    std::optional<ProfileText> fresh;
    ProfileText& profile = text(fresh);
    const bool changed = profile.setValue(section, key, value);
    if (grouped_) {
        grouped_->changed = grouped_->changed || changed;
        return {true, {}};
    }
    return changed ? write(profile.bytes()) : WriteResult{true, {}};
}

std::vector<std::string> ProfileFile::sectionNames() {
    std::optional<ProfileText> fresh;
    const std::vector<std::string_view> names = text(fresh).sectionNames();
    return {names.begin(), names.end()};
}

}  // namespace ormala
