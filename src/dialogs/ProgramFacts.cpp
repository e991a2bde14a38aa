#include "dialogs/ProgramFacts.h"

#include <string_view>
#include <utility>

#include "language/MlStringModule.h"
#include "modAPI/textForms.h"

namespace ormala {

namespace {

bool standsInLinks(char letter) {
    return (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z') ||
           (letter >= '0' && letter <= '9') ||
           std::string_view("-._~").find(letter) != std::string_view::npos;
}

/// All bytes that have a meaning in links, or none there, become "%" and two digits.
std::string encodedForLink(std::string_view text) {
    std::string encoded;
    for (const char letter : text) {
        if (standsInLinks(letter)) {
            encoded += letter;
            continue;
        }
        const auto byte = static_cast<unsigned char>(letter);
        encoded += '%';
        encoded += hexDigits[byte / hexDigits.size()];
        encoded += hexDigits[byte % hexDigits.size()];
    }
    return encoded;
}

}  // namespace

ProgramFacts programFacts(std::string title, std::string version) {
    return {std::move(title), std::move(version), MlString(375, ""), MlString(351, "")};
}

std::string mailLink(const ProgramFacts& facts) {
    return "mailto:" + facts.mailAddress +
           "?subject=" + encodedForLink(facts.title + " " + facts.version);
}

}  // namespace ormala
