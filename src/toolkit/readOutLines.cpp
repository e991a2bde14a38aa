#include "toolkit/readOutLines.h"

#include <algorithm>
#include <string_view>

#include "language/MlStringModule.h"
#include "modAPI/textForms.h"

namespace ormala {

namespace {

/// Between what a value is of and the value itself.
constexpr std::string_view equals = " = ";

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos
               ? std::string_view()
               : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// Empty for a control that shows no value.
std::string lineOf(const PanelControl& row, int header, std::string_view shown) {
    const std::size_t at = shown.find(equals);
    const bool named = at != std::string_view::npos;
    const std::string_view value = trimmed(named ? shown.substr(at + equals.size()) : shown);
    if (row.part != PanelPart::value || value.empty()) {
        return {};
    }
    std::string name(trimmed(MlString(header, {})));
    if (named) {
        name += " " + std::string(trimmed(shown.substr(0, at)));
    } else if (row.letter != nullptr) {
        name += " " + std::string(row.letter);
    }
    return name + "\t" + std::string(value);
}

}  // namespace

std::string readOutLines(const PanelDesign& design, const std::vector<ControlText>& texts) {
    std::string lines;
    int header = 0;
    for (const PanelControl& row : design.controls) {
        if (row.part == PanelPart::header) {
            header = row.caption;
        }
        const auto shown = std::ranges::find(texts, row.id, &ControlText::control);
        const std::string line =
            shown != texts.end() ? lineOf(row, header, shown->text) : std::string();
        lines += (lines.empty() || line.empty() ? "" : lineBreak) + line;
    }
    return lines;
}

}  // namespace ormala
