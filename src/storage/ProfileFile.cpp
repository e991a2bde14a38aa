#include "storage/ProfileFile.h"

#include <algorithm>
#include <utility>

namespace ormala {

namespace {

std::string cutToBuffer(std::string_view text, std::size_t size) {
    return std::string(text.substr(0, std::max<std::size_t>(size, 1) - 1));
}

}  // namespace

ProfileFile::Scope::Scope(ProfileFile& file, std::function<void()> failed)
    : file_(file), failed_(std::move(failed)) {
    ++file_.openScopes_;
}

ProfileFile::Scope::~Scope() {
    --file_.openScopes_;
    if (file_.openScopes_ == 0 && !file_.writeGrouped()) {
        failed_();
    }
}

bool ProfileFile::setPath(std::string path) {
    const bool written = path == path_ || writeGrouped();
    path_ = std::move(path);
    return written;
}

/// The contents of the file, empty for a missing one, nothing for one that can't be read.
std::optional<ProfileText> ProfileFile::read() const {
    ReadResult result = store_.read(path_);
    if (result.status == ReadResult::Status::failed) {
        return std::nullopt;
    }
    return ProfileText(std::move(result.bytes));
}

/// The text to work on: the one of the open scope, or `fresh`, read now. Null if it can't be read.
ProfileText* ProfileFile::text(std::optional<ProfileText>& fresh) {
    if (grouped_) {
        return &grouped_->text;
    }
    fresh = read();
    if (!fresh || openScopes_ == 0) {
        return fresh ? &*fresh : nullptr;
    }
    grouped_ = Grouped{std::move(*fresh)};
    return &grouped_->text;
}

/// Ends the grouping of what has been read and noted so far; true if nothing is lost.
bool ProfileFile::writeGrouped() {
    const std::optional<Grouped> grouped = std::exchange(grouped_, std::nullopt);
    if (!grouped) {
        return true;
    }
    if (grouped->changed) {
        return store_.replace(path_, grouped->text.bytes());
    }
    return !grouped->removed || store_.remove(path_).removed;
}

RemoveResult ProfileFile::remove() {
    if (openScopes_ == 0) {
        return store_.remove(path_);
    }
    RemoveResult result = store_.couldRemove(path_);
    if (result.removed) {
        grouped_ = Grouped{};
        grouped_->removed = true;
    }
    return result;
}

std::optional<std::string> ProfileFile::find(std::string_view section, std::string_view key,
                                             std::size_t size) {
    std::optional<ProfileText> fresh;
    const ProfileText* const profile = text(fresh);
    const auto found = profile != nullptr ? profile->value(section, key) : std::nullopt;
    return found ? std::optional(cutToBuffer(*found, size)) : std::nullopt;
}

std::string ProfileFile::value(std::string_view section, std::string_view key,
                               std::string_view defaultText, std::size_t size) {
    return find(section, key, size).value_or(cutToBuffer(defaultText, size));
}

bool ProfileFile::setValue(std::string_view section, std::string_view key, std::string_view value) {
    std::optional<ProfileText> fresh;
    ProfileText* const profile = text(fresh);
    if (profile == nullptr || !ProfileText::canHold(key)) {
        return false;
    }
    const bool changed = profile->setValue(section, key, value);
    if (grouped_) {
        grouped_->changed = grouped_->changed || changed;
        return true;
    }
    return !changed || store_.replace(path_, profile->bytes());
}

std::vector<std::string> ProfileFile::sectionNames(std::size_t size) {
    std::optional<ProfileText> fresh;
    const ProfileText* const profile = text(fresh);
    std::vector<std::string> names;
    if (profile == nullptr) {
        return names;
    }
    std::size_t used = 1;
    for (const std::string_view name : profile->sectionNames()) {
        used += name.size() + 1;
        if (used > size) {
            break;
        }
        names.emplace_back(name);
    }
    return names;
}

}  // namespace ormala
