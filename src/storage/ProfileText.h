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

    /// The key's value up to its first zero byte, without the blanks around it. Valid until the
    /// text changes.
    std::optional<std::string_view> value(std::string_view section, std::string_view key) const;

    /// Whether a line with this key would be read back as such.
    static bool canHold(std::string_view key);

    /// Replaces a value in place, or adds the key behind the last line of its section that isn't
    /// empty, or the section at the end. Returns whether that changed the text, which a key that
    /// can't be held doesn't.
    bool setValue(std::string_view section, std::string_view key, std::string_view value);

    /// In the order of the file, without nameless ones.
    std::vector<std::string_view> sectionNames() const;

  private:
    /// A piece of the text.
    struct Range {
        std::size_t at = 0;
        std::size_t size = 0;
    };
    /// It ends where the next one begins.
    struct Section {
        /// Of its own line.
        std::size_t header = 0;
        Range name;
        /// Behind its last line that holds more than blanks, its own line included.
        std::size_t full = 0;
        /// Index of its first key in `keys_`.
        std::size_t firstKey = 0;
    };
    using Sections = std::vector<Section>;

    void noteLine(std::string_view line, std::size_t next);
    [[nodiscard]] std::string_view textOf(const Range& range) const;
    [[nodiscard]] Range rangeOf(std::string_view piece) const;
    [[nodiscard]] Sections::const_iterator findSection(std::string_view name) const;
    [[nodiscard]] std::size_t endOfKeys(Sections::const_iterator section) const;
    [[nodiscard]] std::optional<std::string_view> rawValue(Sections::const_iterator section,
                                                           std::string_view key) const;
    void replaceRange(const Range& range, std::string_view with);
    void addKey(std::size_t section, std::string_view name, std::string_view line);
    void addSection(std::string_view section, std::string_view name, std::string_view line);

    std::string bytes_;
    Sections sections_;
    /// The section that was found last: keys are asked for one section after the other.
    mutable std::size_t recent_ = 0;
    /// The names of all keys, in the order of the file.
    std::vector<Range> keys_;
};

}  // namespace ormala
