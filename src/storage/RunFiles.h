#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace ormala {

/// What a run of the program knows of the files that it works with. Paths are the same if they
/// differ in the case of the letters A to Z only.
class RunFiles {
  public:
    void noteUnreadable(const std::string& path);
    /// True from the first read that failed until the contents are noted.
    [[nodiscard]] bool couldNotRead(const std::string& path) const;

    /// The file holds these bytes, and the program has all of them: it has read or written them.
    void noteContents(const std::string& path, std::string bytes);
    /// The bytes noted last for that file; nothing without any.
    [[nodiscard]] std::optional<std::string_view> contentsOf(const std::string& path) const;

  private:
    std::set<std::string> unreadable_;
    std::map<std::string, std::string> contents_;
};

}  // namespace ormala
