#include "storage/ProfileText.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/Utf8.h"
#include "modAPI/textForms.h"

namespace ormala {

namespace {

constexpr bool isLineEnd(char c) {
    return c == '\r' || c == '\n';
}

constexpr bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

/// Names that are alike, such as "Tool 1" and "Tool 2", differ at their ends.
bool sameName(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.rbegin(), a.rend(), b.rbegin(), [](char c, char d) {
               return lowerCase(c) == lowerCase(d);
           });
}

std::string_view withoutBlanks(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
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

/// The name of the key that a line holds, nothing if it holds none.
std::optional<std::string_view> keyOf(std::string_view line) {
    const std::size_t equals = line.find('=');
    const std::string_view name = withoutBlanks(line.substr(0, equals));
    if (equals == std::string_view::npos || name.starts_with(';')) {
        return std::nullopt;
    }
    return name;
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
    const std::size_t close = line.starts_with('[') ? line.rfind(']') : std::string_view::npos;
    if (close == std::string_view::npos) {
        return std::nullopt;
    }
    return line.substr(1, close - 1);
}

}  // namespace

ProfileText::ProfileText(std::string bytes) : bytes_(std::move(bytes)) {
    const std::string_view all = bytes_;
    std::string_view rest = all;
    while (!rest.empty()) {
        const std::size_t start = all.size() - rest.size();
        const std::string_view line = takeLine(rest);
        const std::size_t next = all.size() - rest.size();
        if (const auto name = sectionOpenedBy(line)) {
            sections_.push_back({start, rangeOf(*name), next, keys_.size()});
        } else if (!sections_.empty()) {
            noteLine(line, next);
        }
    }
}

/// A further line of the last section; `next` is where the one behind it begins.
void ProfileText::noteLine(std::string_view line, std::size_t next) {
    if (withoutBlanks(line).empty()) {
        return;
    }
    sections_.back().full = next;
    if (const auto name = keyOf(line)) {
        keys_.push_back(rangeOf(*name));
    }
}

std::string_view ProfileText::textOf(const Range& range) const {
    return std::string_view(bytes_).substr(range.at, range.size);
}

ProfileText::Range ProfileText::rangeOf(std::string_view piece) const {
    return {static_cast<std::size_t>(piece.data() - bytes_.data()), piece.size()};
}

ProfileText::Sections::const_iterator ProfileText::findSection(std::string_view name) const {
    const auto named = [&](const Section& section) { return sameName(textOf(section.name), name); };
    const auto recent = sections_.begin() + static_cast<std::ptrdiff_t>(recent_);
    if (recent_ < sections_.size() && named(*recent)) {
        return recent;
    }
    const auto found = std::ranges::find_if(sections_, named);
    recent_ = static_cast<std::size_t>(found - sections_.begin());
    return found;
}

std::size_t ProfileText::endOfKeys(Sections::const_iterator section) const {
    const auto next = std::next(section);
    return next == sections_.end() ? keys_.size() : next->firstKey;
}

/// All that stands behind the equals sign of the key's line.
std::optional<std::string_view> ProfileText::rawValue(Sections::const_iterator section,
                                                      std::string_view key) const {
    const auto begin = keys_.begin() + static_cast<std::ptrdiff_t>(section->firstKey);
    const auto end = keys_.begin() + static_cast<std::ptrdiff_t>(endOfKeys(section));
    const auto found =
        std::find_if(begin, end, [&](const Range& name) { return sameName(textOf(name), key); });
    if (found == end) {
        return std::nullopt;
    }
    const std::string_view rest = std::string_view(bytes_).substr(found->at + found->size);
    const std::string_view value = rest.substr(rest.find('=') + 1);
    return value.substr(0, indexOf(value, isLineEnd));
}

std::optional<std::string_view> ProfileText::value(std::string_view section,
                                                   std::string_view key) const {
    const auto found = findSection(upToLineEnd(section));
    if (found == sections_.end()) {
        return std::nullopt;
    }
    const auto raw = rawValue(found, keyName(key));
    return raw ? std::optional(withoutBlanks(upToLineEnd(*raw))) : std::nullopt;
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
    if (!canHold(name)) {
        return false;
    }
    const auto found = findSection(section);
    const auto present = found == sections_.end() ? std::nullopt : rawValue(found, name);
    if (present) {
        const bool changed = *present != value;
        if (changed) {
            replaceRange(rangeOf(*present), value);
        }
        return changed;
    }
    const std::string line = std::string(name).append("=").append(value).append(lineBreak);
    if (found == sections_.end()) {
        addSection(section, name, line);
    } else {
        addKey(static_cast<std::size_t>(found - sections_.begin()), name, line);
    }
    return true;
}

/// Everything behind the piece moves with its end.
void ProfileText::replaceRange(const Range& range, std::string_view with) {
    bytes_.replace(range.at, range.size, with);
    const std::size_t end = range.at + range.size;
    const auto move = [&](std::size_t& place) {
        place = place < end ? place : place - range.size + with.size();
    };
    // Sections and keys stand in the order of the text, so what moves is at the end of the lists.
    for (auto key = keys_.rbegin(); key != keys_.rend() && key->at >= end; ++key) {
        move(key->at);
    }
    for (auto section = sections_.rbegin(); section != sections_.rend() && section->full >= end;
         ++section) {
        move(section->header);
        move(section->name.at);
        move(section->full);
    }
}

/// Behind the last line of the section that isn't empty.
void ProfileText::addKey(std::size_t section, std::string_view name, std::string_view line) {
    const std::size_t end = sections_[section].full;
    const std::string_view begin = isLineEnd(bytes_[end - 1]) ? "" : lineBreak;
    const auto next = sections_.begin() + static_cast<std::ptrdiff_t>(section);
    const std::size_t key = endOfKeys(next);
    replaceRange({end, 0}, std::string(begin).append(line));
    keys_.insert(keys_.begin() + static_cast<std::ptrdiff_t>(key),
                 {end + begin.size(), name.size()});
    for (auto later = std::next(next); later != sections_.end(); ++later) {
        ++later->firstKey;
    }
}

void ProfileText::addSection(std::string_view section, std::string_view name,
                             std::string_view line) {
    if (!bytes_.empty() && !isLineEnd(bytes_.back())) {
        bytes_ += lineBreak;
    }
    const std::size_t header = bytes_.size();
    bytes_.append("[").append(section).append("]").append(lineBreak);
    const Range key{bytes_.size(), name.size()};
    bytes_ += line;
    sections_.push_back({header, {header + 1, section.size()}, bytes_.size(), keys_.size()});
    keys_.push_back(key);
}

std::vector<std::string_view> ProfileText::sectionNames() const {
    std::vector<std::string_view> names;
    names.reserve(sections_.size());
    for (const Section& section : sections_) {
        const std::string_view name = textOf(section.name);
        if (!name.empty()) {
            names.push_back(name);
        }
    }
    return names;
}

}  // namespace ormala
