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
    path_ = lowerCase(path);
    contents_ = std::move(bytes);
    unreadable_.erase(path_);
}

std::optional<std::string_view> RunFiles::contentsOf(const std::string& path) const {
    const bool noted = !path.empty() && path_ == lowerCase(path);
    return noted ? std::optional<std::string_view>(contents_) : std::nullopt;
}

}  // namespace ormala
