#include "storage/ProfileText.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace ormala {

namespace {

constexpr std::string_view lineBreak = "\r\n";

constexpr bool isLineEnd(char c) {
    return c == '\r' || c == '\n';
}

constexpr char lowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool sameName(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, {}, lowerCase, lowerCase);
}

std::string_view withoutBlanks(std::string_view text) {
    constexpr std::string_view blanks = " \t";
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

/// The index of the first such character, or the size of the text.
template <typename Predicate>
std::size_t indexOf(std::string_view text, Predicate predicate) {
    return static_cast<std::size_t>(std::ranges::find_if(text, predicate) - text.begin());
}

/// As much of a text as one line can hold.
std::string_view upToLineEnd(std::string_view text) {
    return text.substr(0, indexOf(text, [](char c) { return isLineEnd(c) || c == '\0'; }));
}

std::string_view keyName(std::string_view key) {
    return withoutBlanks(upToLineEnd(key));
}

/// Takes the first line off the text and returns it without its line end.
std::string_view takeLine(std::string_view& text) {
    const std::string_view line = text.substr(0, indexOf(text, isLineEnd));
    text.remove_prefix(line.size());
    const bool pair = text.starts_with(lineBreak);
    text.remove_prefix(std::min<std::size_t>(text.size(), pair ? 2 : 1));
    return line;
}

/// The name that a line opens a section with, nothing if it doesn't open one.
std::optional<std::string_view> sectionOpenedBy(std::string_view line) {
    line = withoutBlanks(line);
    const std::size_t close = line.rfind(']');
    if (!line.starts_with('[') || close == std::string_view::npos) {
        return std::nullopt;
    }
    return line.substr(1, close - 1);
}

/// How many bytes at the start only tell an editor that the text is UTF-8.
std::size_t markLength(std::string_view text) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    return text.starts_with(mark) ? mark.size() : 0;
}

}  // namespace

ProfileText::ProfileText(std::string bytes) : bytes_(std::move(bytes)) {
    const std::string_view all = bytes_;
    std::string_view rest = all.substr(markLength(all));
    while (!rest.empty()) {
        const std::size_t header = all.size() - rest.size();
        if (sectionOpenedBy(takeLine(rest))) {
            sections_.push_back({header, all.size() - rest.size()});
        }
    }
}

std::string_view ProfileText::nameOf(const Section& section) const {
    std::string_view line = bytes_;
    line = line.substr(section.header, section.body - section.header);
    return sectionOpenedBy(takeLine(line)).value_or(std::string_view());
}

ProfileText::Sections::const_iterator ProfileText::findSection(std::string_view name) const {
    return std::ranges::find_if(
        sections_, [&](const Section& section) { return sameName(nameOf(section), name); });
}

std::size_t ProfileText::endOf(Sections::const_iterator section) const {
    const auto next = std::next(section);
    return next == sections_.end() ? bytes_.size() : next->header;
}

/// All that stands behind the equals sign of the key's line.
std::optional<std::string_view> ProfileText::rawValue(Sections::const_iterator section,
                                                      std::string_view key) const {
    std::string_view rest = bytes_;
    rest = rest.substr(section->body, endOf(section) - section->body);
    while (!rest.empty()) {
        const std::string_view line = takeLine(rest);
        const std::size_t equals = line.find('=');
        const std::string_view name = withoutBlanks(line.substr(0, equals));
        if (equals != std::string_view::npos && !name.starts_with(';') && sameName(name, key)) {
            return line.substr(equals + 1);
        }
    }
    return std::nullopt;
}

std::optional<std::string_view> ProfileText::value(std::string_view section,
                                                   std::string_view key) const {
    const auto found = findSection(upToLineEnd(section));
    if (found == sections_.end()) {
        return std::nullopt;
    }
    const auto raw = rawValue(found, keyName(key));
    return raw ? std::optional(withoutBlanks(*raw)) : std::nullopt;
}

bool ProfileText::canHold(std::string_view key) {
    const std::string_view name = keyName(key);
    return !name.starts_with('[') && !name.starts_with(';') &&
           name.find('=') == std::string_view::npos;
}

bool ProfileText::setValue(std::string_view section, std::string_view key, std::string_view value) {
    section = upToLineEnd(section);
    value = upToLineEnd(value);
    const std::string_view name = keyName(key);
    const std::string line = std::string(name).append("=").append(value).append(lineBreak);
    const auto found = findSection(section);
    if (found == sections_.end()) {
        addSection(section, line);
        return true;
    }
    const auto present = rawValue(found, name);
    if (!present) {
        const std::size_t end = endOfLastFullLine(found);
        const bool ended = isLineEnd(bytes_[end - 1]);
        replaceRange(end, 0, ended ? line : std::string(lineBreak) + line, found);
        return true;
    }
    const bool changed = *present != value;
    if (changed) {
        const auto from = static_cast<std::size_t>(present->data() - bytes_.data());
        replaceRange(from, present->size(), value, found);
    }
    return changed;
}

/// Behind the last line of the section, its own line included, that holds more than blanks.
std::size_t ProfileText::endOfLastFullLine(Sections::const_iterator section) const {
    std::string_view rest = bytes_;
    rest = rest.substr(section->body, endOf(section) - section->body);
    std::size_t end = section->body;
    const std::size_t sectionEnd = endOf(section);
    while (!rest.empty()) {
        if (!withoutBlanks(takeLine(rest)).empty()) {
            end = sectionEnd - rest.size();
        }
    }
    return end;
}

void ProfileText::replaceRange(std::size_t from, std::size_t count, std::string_view with,
                               Sections::const_iterator section) {
    const std::size_t oldSize = bytes_.size();
    bytes_.replace(from, count, with);
    const std::size_t growth = bytes_.size() - oldSize;
    for (auto next = sections_.begin() + (section - sections_.begin()) + 1; next != sections_.end();
         ++next) {
        next->header += growth;
        next->body += growth;
    }
}

void ProfileText::addSection(std::string_view section, std::string_view line) {
    if (!bytes_.empty() && !isLineEnd(bytes_.back())) {
        bytes_ += lineBreak;
    }
    const std::size_t header = bytes_.size();
    bytes_.append("[").append(section).append("]").append(lineBreak);
    sections_.push_back({header, bytes_.size()});
    bytes_ += line;
}

std::vector<std::string_view> ProfileText::sectionNames() const {
    std::vector<std::string_view> names;
    names.reserve(sections_.size());
    for (const Section& section : sections_) {
        const std::string_view name = nameOf(section);
        if (!name.empty()) {
            names.push_back(name);
        }
    }
    return names;
}

}  // namespace ormala
