#include "e2e/backdrop/BackdropLook.h"

#include <array>
#include <charconv>
#include <utility>

namespace ormala::test {

namespace {

constexpr std::array<std::pair<BackdropPattern, std::string_view>, 3> patternNames{
    {{BackdropPattern::Columns, "columns"},
     {BackdropPattern::Rows, "rows"},
     {BackdropPattern::Points, "points"}}};
constexpr std::string_view solidPrefix = "solid:";
constexpr int hexadecimal = 16;

}  // namespace

std::string textOf(const BackdropLook& look) {
    for (const auto& [pattern, name] : patternNames) {
        if (pattern == look.pattern) {
            return std::string(name);
        }
    }
    std::array<char, 8> digits{};
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), look.color, hexadecimal);
    return std::string(solidPrefix) + std::string(digits.data(), end.ptr);
}

std::optional<BackdropLook> lookFromText(std::string_view text) {
    for (const auto& [pattern, name] : patternNames) {
        if (name == text) {
            return BackdropLook{pattern, 0};
        }
    }
    if (!text.starts_with(solidPrefix)) {
        return std::nullopt;
    }
    const std::string_view digits = text.substr(solidPrefix.size());
    BackdropLook look;
    const char* end = digits.data() + digits.size();
    const auto parsed = std::from_chars(digits.data(), end, look.color, hexadecimal);
    return parsed.ec == std::errc() && parsed.ptr == end ? std::optional(look) : std::nullopt;
}

}  // namespace ormala::test
