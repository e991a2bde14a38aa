#pragma once

#include <span>
#include <string_view>

namespace ormala {

/// One text of a language. The number means the same text in every language.
struct TextRow {
    int id = 0;
    std::string_view text;
};

/// The rows of each language, ascending by id. An empty text leaves a control untouched. English
/// has every text of the program; German leaves out those that read the same.
std::span<const TextRow> englishTexts();
std::span<const TextRow> germanTexts();

}  // namespace ormala
