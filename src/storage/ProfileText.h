#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ormala {

/// The contents of a settings file: lines `[section]`, each followed by lines `key=value`. All that
/// isn't written to stays byte by byte as it was: comments (lines that begin with a semicolon),
/// unknown text, empty lines, and line ends of any kind.
///
/// Names compare without regard to the case of the letters A to Z; other letters must be equal. Of
/// several sections or keys of one name the first counts. Texts handed in end at their first line
/// end or zero byte, since a line can't hold more. All work is linear in the size of the text.
class ProfileText {
  public:
    ProfileText() = default;
    explicit ProfileText(std::string bytes);

    const std::string& bytes() const { return bytes_; }

    /// The key's value without the blanks around it. Valid until the text changes.
    std::optional<std::string_view> value(std::string_view section, std::string_view key) const;

    /// Whether a line with this key would be read back as such.
    static bool canHold(std::string_view key);

    /// Replaces a value in place, or adds the key behind the last line of its section that isn't
    /// empty, or the section at the end. Returns whether that changed the text.
    bool setValue(std::string_view section, std::string_view key, std::string_view value);

    /// In the order of the file, without nameless ones.
    std::vector<std::string_view> sectionNames() const;

  private:
    /// Offsets of a section's own line and of what follows it; it ends where the next one begins.
    struct Section {
        std::size_t header = 0;
        std::size_t body = 0;
    };
    using Sections = std::vector<Section>;

    std::string_view nameOf(const Section& section) const;
    Sections::const_iterator findSection(std::string_view name) const;
    std::size_t endOf(Sections::const_iterator section) const;
    std::optional<std::string_view> rawValue(Sections::const_iterator section,
                                             std::string_view key) const;
    std::size_t endOfLastFullLine(Sections::const_iterator section) const;
    void replaceRange(std::size_t from, std::size_t count, std::string_view with,
                      Sections::const_iterator section);
    void addSection(std::string_view section, std::string_view line);

    std::string bytes_;
    Sections sections_;
};

}  // namespace ormala
