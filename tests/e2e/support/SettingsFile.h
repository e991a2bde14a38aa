#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ormala::test {

/// The sections and keys of an INI file, in their order. Values are the bytes behind the equals
/// sign as they stand, leading blanks too. Names are compared without case; comments and lines
/// without an equals sign are left out.
class SettingsFile {
  public:
    SettingsFile() = default;
    /// Throws std::runtime_error if there is no such file.
    static SettingsFile read(const std::filesystem::path& path);
    static SettingsFile parse(std::string_view text);

    bool hasSection(std::string_view section) const { return find(section) != nullptr; }
    std::vector<std::string> sectionNames() const;
    std::optional<std::string> value(std::string_view section, std::string_view key) const;
    /// The value as a number with a decimal point; none if it is missing or no number.
    std::optional<double> number(std::string_view section, std::string_view key) const;

    void set(std::string_view section, std::string_view key, std::string_view value);
    /// Makes the folder if it is not there, and replaces the file. Throws std::runtime_error.
    void write(const std::filesystem::path& path) const;
    std::string text() const;

    bool operator==(const SettingsFile&) const = default;

  private:
    struct Entry {
        std::string key;
        std::string value;
        bool operator==(const Entry&) const = default;
    };
    struct Section {
        std::string name;
        std::vector<Entry> entries;
        bool operator==(const Section&) const = default;
    };

    const Section* find(std::string_view section) const;
    Section& findOrAdd(std::string_view section);

    std::vector<Section> sections_;
};

}  // namespace ormala::test
