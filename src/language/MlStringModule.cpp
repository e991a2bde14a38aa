#include "language/MlStringModule.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

#include "base/Utf8.h"
#include "language/TextTable.h"

namespace ormala {

namespace {

std::string textOf(std::span<const TextRow> rows, int id, std::string_view defaultText) {
    const auto row = std::ranges::lower_bound(rows, id, {}, &TextRow::id);
    const bool found = row != rows.end() && row->id == id;
    return std::string(found ? row->text : defaultText);
}

std::string replaceAll(std::string_view text, std::string_view what, std::string_view with) {
    std::string result;
    for (;;) {
        const std::size_t at = text.find(what);
        result += text.substr(0, at);
        if (at == std::string_view::npos) {
            return result;
        }
        result += with;
        text.remove_prefix(at + what.size());
    }
}

struct Language {
    int number;
    /// As the system names it in English, in small letters.
    std::string_view englishName;
    std::span<const TextRow> (*texts)();
};

/// The first one is that of users whose own there is not.
constexpr std::array languages{Language{languageEnglish, "english", &englishTexts},
                               Language{languageGerman, "german", &germanTexts}};

}  // namespace

int& CurrentLanguage() {
    static int language = 0;
    return language;
}

std::string MlString(int Id, std::string_view DefaultText) {
    const auto* const current = std::ranges::find(languages, CurrentLanguage(), &Language::number);
    return current != languages.end() ? textOf(current->texts(), Id, DefaultText) : std::string();
}

void MlSetLanguage(int LanguageId, std::string_view /*Ignored*/) {
    const auto* const wanted = std::ranges::find(languages, LanguageId, &Language::number);
    CurrentLanguage() = wanted != languages.end() ? LanguageId : languages.front().number;
}

std::vector<int> MlLanguages() {
    std::vector<int> numbers;
    std::ranges::transform(languages, std::back_inserter(numbers), &Language::number);
    return numbers;
}

std::string MlFormat(std::string_view Template, std::span<const std::string> Args) {
    std::string text = replaceAll(Template, "%n", "\r\n");
    for (std::size_t i = 0; i < Args.size(); ++i) {
        text = replaceAll(text, std::string("%").append(std::to_string(i)), Args[i]);
    }
    return text;
}

int languageForLocaleName(std::string_view englishName) {
    const std::string name = lowerCase(std::string(englishName));
    const auto* const own = std::ranges::find_if(languages, [&name](const Language& language) {
        return name.find(language.englishName) != std::string::npos;
    });
    return own != languages.end() ? own->number : languages.front().number;
}

LanguageSupport& GetLanguageSupport() {
    static LanguageSupport support;
    return support;
}

}  // namespace ormala
