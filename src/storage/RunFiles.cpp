#include "storage/RunFiles.h"

#include <algorithm>
#include <utility>

namespace ormala {

namespace {

std::string sameCase(std::string path) {
    std::ranges::transform(path, path.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return path;
}

}  // namespace

void RunFiles::noteUnreadable(const std::string& path) {
    unreadable_.insert(sameCase(path));
}

bool RunFiles::couldNotRead(const std::string& path) const {
    return unreadable_.contains(sameCase(path));
}

void RunFiles::noteContents(const std::string& path, std::string bytes) {
    path_ = sameCase(path);
    contents_ = std::move(bytes);
    unreadable_.erase(path_);
}

std::optional<std::string_view> RunFiles::contentsOf(const std::string& path) const {
    const bool noted = !path.empty() && path_ == sameCase(path);
    return noted ? std::optional<std::string_view>(contents_) : std::nullopt;
}

}  // namespace ormala
