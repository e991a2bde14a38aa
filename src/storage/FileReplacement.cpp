#include "storage/FileReplacement.h"

#include <algorithm>

namespace ormala {

namespace {

constexpr std::string_view nameBegin = "~settings-";
constexpr std::string_view nameEnd = ".tmp";

bool isNumber(std::string_view text) {
    return !text.empty() && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

}  // namespace

bool replaceFile(ReplacementSteps& steps, std::string_view bytes) {
    steps.removeLeftovers();
    if (!steps.makeNeighbour()) {
        return false;
    }
    if (steps.write(bytes) && steps.flush() && steps.renameOver()) {
        return true;
    }
    steps.removeNeighbour();
    return false;
}

std::string neighbourName(unsigned long process, int number) {
    return std::string(nameBegin) + std::to_string(process) + "-" + std::to_string(number) +
           std::string(nameEnd);
}

bool isNeighbourName(std::string_view name) {
    if (!name.starts_with(nameBegin) || !name.ends_with(nameEnd)) {
        return false;
    }
    name.remove_prefix(nameBegin.size());
    name.remove_suffix(nameEnd.size());
    const std::size_t dash = name.find('-');
    return dash != std::string_view::npos && isNumber(name.substr(0, dash)) &&
           isNumber(name.substr(dash + 1));
}

}  // namespace ormala
