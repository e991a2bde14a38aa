#include "storage/RunFiles.h"

#include <utility>

#include "base/Utf8.h"

namespace ormala {

void RunFiles::noteUnreadable(const std::string& path) {
    unreadable_.insert(lowerCase(path));
}

bool RunFiles::couldNotRead(const std::string& path) const {
    return unreadable_.contains(lowerCase(path));
}

void RunFiles::noteContents(const std::string& path, std::string bytes) {
    const std::string key = lowerCase(path);
    contents_[key] = std::move(bytes);
    unreadable_.erase(key);
}

std::optional<std::string_view> RunFiles::contentsOf(const std::string& path) const {
    const auto at = contents_.find(lowerCase(path));
    return at != contents_.end() ? std::optional<std::string_view>(at->second) : std::nullopt;
}

}  // namespace ormala
