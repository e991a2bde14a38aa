#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "modAPI/textForms.h"

namespace ormala {

/// A sentence of the help, in either language and as a reader sees it, and the proof of it.
struct HelpStatement {
    std::string_view text;
    /// In words, for whoever reads the table.
    std::string_view played;
    std::function<std::string()> play;
    std::string_view comesOut;
};

/// With at most two decimals.
inline std::string shown(double value) {
    std::string text = formatNumber(value, "0.00", {".", {}});
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') {
        text.pop_back();
    }
    return text;
}

/// One blank for each run of white space.
inline std::string withSingleBlanks(std::string_view text) {
    std::istringstream words{std::string(text)};
    std::string all;
    for (std::string word; words >> word;) {
        all += (all.empty() ? "" : " ") + word;
    }
    return all;
}

/// A page without its tags: what stands inside of a line joins what is beside it, as it is read.
inline std::string readableText(const std::string& page) {
    constexpr std::array<std::string_view, 5> inLine{"a", "em", "kbd", "code", "strong"};
    std::string text;
    for (std::size_t at = 0; at < page.size(); ++at) {
        if (page[at] != '<') {
            text += page[at];
            continue;
        }
        const std::size_t end = page.find('>', at);
        const std::size_t begin = at + (page[at + 1] == '/' ? 2 : 1);
        const std::string tag = page.substr(begin, page.find_first_of(" >", begin) - begin);
        text += std::ranges::find(inLine, tag) == inLine.end() ? " " : "";
        at = end;
    }
    return withSingleBlanks(text);
}

inline const std::string& helpText() {
    static const std::string text = [] {
        std::string all;
        for (const char* const name : {"help_en.html", "help_de.html"}) {
            std::ifstream file(std::string(ORMALA_SOURCE_DIR) + "/help/" + name, std::ios::binary);
            std::ostringstream page;
            page << file.rdbuf();
            all += readableText(page.str()) + " ";
        }
        return all;
    }();
    return text;
}

/// Each stands in the help word for word, and the program does what it says.
inline void expectHeld(const std::vector<HelpStatement>& statements) {
    for (const HelpStatement& statement : statements) {
        SCOPED_TRACE(std::string(statement.text) + " | " + std::string(statement.played));
        EXPECT_NE(helpText().find(withSingleBlanks(statement.text)), std::string::npos)
            << "The help does not say this.";
        EXPECT_EQ(statement.play(), statement.comesOut);
    }
}

}  // namespace ormala
