#include "language/MlStringModule.h"

#include <algorithm>
#include <cstddef>

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

char lowerCase(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

}  // namespace

int& CurrentLanguage() {
    static int language = 0;
    return language;
}

std::string MlString(int Id, std::string_view DefaultText) {
    switch (CurrentLanguage()) {
        case languageEnglish:
            return textOf(englishTexts(), Id, DefaultText);
        case languageGerman:
            return textOf(germanTexts(), Id, DefaultText);
        default:
            return {};
    }
}

void MlSetLanguage(int LanguageId, std::string_view /*Ignored*/) {
    const auto languages = MlLanguages();
    const bool known = std::ranges::find(languages, LanguageId) != languages.end();
    CurrentLanguage() = known ? LanguageId : languageEnglish;
}

std::array<int, 2> MlLanguages() {
    return {languageEnglish, languageGerman};
}

std::string MlFormat(std::string_view Template, std::span<const std::string> Args) {
    std::string text = replaceAll(Template, "%n", "\r\n");
    for (std::size_t i = 0; i < Args.size(); ++i) {
        text = replaceAll(text, std::string("%").append(std::to_string(i)), Args[i]);
    }
    return text;
}

int languageForLocaleName(std::string_view englishName) {
    std::string name(englishName);
    std::ranges::transform(name, name.begin(), lowerCase);
    return name.find("german") != std::string::npos ? languageGerman : languageEnglish;
}

LanguageSupport& GetLanguageSupport() {
    static LanguageSupport support;
    return support;
}

}  // namespace ormala
