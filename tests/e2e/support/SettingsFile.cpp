#include "e2e/support/SettingsFile.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

#include "base/Utf8.h"

namespace ormala::test {

namespace {

bool sameName(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char one, char other) {
        return std::tolower(static_cast<unsigned char>(one)) ==
               std::tolower(static_cast<unsigned char>(other));
    });
}

}  // namespace

SettingsFile SettingsFile::read(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw std::runtime_error("no settings file " + path.string());
    }
    return parse(std::string(std::istreambuf_iterator<char>(file), {}));
}

SettingsFile SettingsFile::parse(std::string_view text) {
    SettingsFile settings;
    std::istringstream lines{std::string(text)};
    Section* section = nullptr;
    for (std::string line; std::getline(lines, line);) {
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        const auto equals = line.find('=');
        if (line.starts_with('[') && line.find(']') != std::string::npos) {
            section = &settings.findOrAdd(line.substr(1, line.find(']') - 1));
        } else if (section != nullptr && equals != std::string::npos && !line.starts_with(';')) {
            const std::string key(trimBlanks(std::string_view(line).substr(0, equals)));
            section->entries.push_back({key, line.substr(equals + 1)});
        }
    }
    return settings;
}

std::vector<std::string> SettingsFile::sectionNames() const {
    std::vector<std::string> names;
    std::transform(sections_.begin(), sections_.end(), std::back_inserter(names),
                   [](const Section& section) { return section.name; });
    return names;
}

std::optional<std::string> SettingsFile::value(std::string_view section,
                                               std::string_view key) const {
    if (const Section* found = find(section)) {
        for (const Entry& entry : found->entries) {
            if (sameName(entry.key, key)) {
                return entry.value;
            }
        }
    }
    return std::nullopt;
}

std::optional<double> SettingsFile::number(std::string_view section, std::string_view key) const {
    const auto found = value(section, key);
    if (!found) {
        return std::nullopt;
    }
    const std::string_view digits = trimBlanks(*found);
    const char* end = digits.data() + digits.size();
    double result = 0;
    const auto parsed = std::from_chars(digits.data(), end, result);
    return parsed.ec == std::errc() && parsed.ptr == end ? std::optional(result) : std::nullopt;
}

void SettingsFile::set(std::string_view section, std::string_view key, std::string_view value) {
    Section& target = findOrAdd(section);
    const auto entry = std::find_if(target.entries.begin(), target.entries.end(),
                                    [key](const Entry& one) { return sameName(one.key, key); });
    if (entry == target.entries.end()) {
        target.entries.push_back({std::string(key), std::string(value)});
    } else {
        entry->value = value;
    }
}

void SettingsFile::write(const std::filesystem::path& path) const {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << text();
    file.close();
    if (!file) {
        throw std::runtime_error("cannot write the settings file " + path.string());
    }
}

std::string SettingsFile::text() const {
    std::string text;
    for (const Section& section : sections_) {
        text += '[' + section.name + "]\r\n";
        for (const Entry& entry : section.entries) {
            text += entry.key + '=' + entry.value + "\r\n";
        }
    }
    return text;
}

const SettingsFile::Section* SettingsFile::find(std::string_view section) const {
    const auto found =
        std::find_if(sections_.begin(), sections_.end(),
                     [section](const Section& one) { return sameName(one.name, section); });
    return found == sections_.end() ? nullptr : &*found;
}

SettingsFile::Section& SettingsFile::findOrAdd(std::string_view section) {
    const auto found =
        std::find_if(sections_.begin(), sections_.end(),
                     [section](const Section& one) { return sameName(one.name, section); });
    if (found != sections_.end()) {
        return *found;
    }
    return sections_.emplace_back(Section{std::string(section), {}});
}

}  // namespace ormala::test
