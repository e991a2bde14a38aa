#include "storage/FileReplacement.h"

#include <algorithm>

namespace ormala {

namespace {

constexpr std::string_view nameBegin = "~settings-";
constexpr std::string_view nameEnd = ".tmp";

/// In front of the extension of the file's name.
std::string markedName(std::string_view path, std::string_view mark) {
    const std::string_view name = path.substr(path.rfind('\\') + 1);
    const std::size_t extension = name.size() - std::min(name.rfind('.'), name.size());
    const std::size_t stem = path.size() - extension;
    std::string marked(path.substr(0, stem));
    return marked.append(" (").append(mark).append(")").append(path.substr(stem));
}

bool isNumber(std::string_view text) {
    return !text.empty() && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

}  // namespace

bool replaceFile(ReplacementSteps& steps, std::string_view bytes, OldFile old) {
    steps.removeLeftovers();
    if (!steps.makeNeighbour()) {
        return false;
    }
    const bool keeps = old == OldFile::staysBeside;
    if (steps.write(bytes) && steps.flush() && (!keeps || steps.keepOld())) {
        if (steps.renameOver()) {
            return true;
        }
        if (keeps) {
            steps.putOldBack();
        }
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

std::string keptName(std::string_view path, std::string_view time, int number) {
    std::string mark = "kept " + std::string(time);
    std::ranges::replace(mark, ':', '.');
    if (number > 1) {
        mark += ", " + std::to_string(number);
    }
    return markedName(path, mark);
}

std::string versionName(std::string_view path, std::string_view word, int number) {
    const std::string mark(word);
    return markedName(path, number > 1 ? mark + " " + std::to_string(number) : mark);
}

}  // namespace ormala
