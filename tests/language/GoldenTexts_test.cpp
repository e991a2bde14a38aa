#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <string>

#include "language/TextTable.h"

// Every text stands a second time in a file of its language, a line for each: the id, a tab and
// the text. A slip in the one does not pass unnoticed by the other.

namespace ormala {
namespace {

using Texts = std::map<int, std::string>;

/// The two addresses are those that the program is built with.
bool isAddress(int id) {
    return id == 351 || id == 375;
}

Texts goldenTexts(const std::string& language) {
    std::ifstream file(std::string(ORMALA_SOURCE_DIR) + "/tests/golden/texts_" + language + ".tsv");
    Texts texts;
    std::string line;
    while (std::getline(file, line)) {
        const std::size_t tab = line.find('\t');
        EXPECT_NE(tab, std::string::npos) << line;
        const bool fresh = texts.emplace(std::stoi(line), line.substr(tab + 1)).second;
        EXPECT_TRUE(fresh) << line << " stands there twice";
    }
    return texts;
}

void expectSame(std::span<const TextRow> rows, const std::string& language) {
    Texts golden = goldenTexts(language);
    EXPECT_GT(golden.size(), 250U);
    for (const TextRow& row : rows) {
        if (isAddress(row.id)) {
            continue;
        }
        const auto found = golden.find(row.id);
        ASSERT_NE(found, golden.end()) << row.id << " is missing in the golden file";
        EXPECT_EQ(row.text, found->second) << row.id;
        golden.erase(found);
    }
    for (const auto& [id, text] : golden) {
        ADD_FAILURE() << id << " is missing in the table: " << text;
    }
}

TEST(GoldenTexts, AreThoseOfTheEnglishTable) {
    expectSame(englishTexts(), "english");
}

TEST(GoldenTexts, AreThoseOfTheGermanTable) {
    expectSame(germanTexts(), "german");
}

}  // namespace
}  // namespace ormala
