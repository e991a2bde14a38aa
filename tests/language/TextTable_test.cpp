#include "language/TextTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace ormala {
namespace {

void expectAscending(std::span<const TextRow> rows) {
    const auto disorder = std::ranges::adjacent_find(
        rows, [](const TextRow& a, const TextRow& b) { return a.id >= b.id; });
    EXPECT_EQ(disorder, rows.end()) << "at row " << disorder->id;
}

std::set<int> idsOf(std::span<const TextRow> rows) {
    std::set<int> ids;
    for (const TextRow& row : rows) {
        ids.insert(row.id);
    }
    return ids;
}

TEST(TextTable, IsSortedById) {
    expectAscending(englishTexts());
    expectAscending(germanTexts());
}

TEST(TextTable, StaysInItsRangeOfIds) {
    EXPECT_GE(englishTexts().front().id, 1);
    EXPECT_LE(englishTexts().back().id, 699);
    EXPECT_GE(germanTexts().front().id, 1);
    EXPECT_LE(germanTexts().back().id, 699);
}

TEST(TextTable, HasAnEnglishTextForEveryGermanOne) {
    const std::set<int> english = idsOf(englishTexts());
    const std::set<int> german = idsOf(germanTexts());
    EXPECT_TRUE(std::ranges::includes(english, german));
}

TEST(TextTable, LeavesOutInGermanOnlyWhatReadsTheSame) {
    const std::set<int> english = idsOf(englishTexts());
    const std::set<int> german = idsOf(germanTexts());
    std::set<int> missing;
    std::ranges::set_difference(english, german, std::inserter(missing, missing.end()));
    EXPECT_EQ(missing, (std::set{67, 68, 69, 70, 71, 72, 73, 74, 75, 76, 101, 102}));
}

TEST(TextTable, HasTheSameEmptyRowsInBothLanguages) {
    for (const auto rows : {englishTexts(), germanTexts()}) {
        std::set<int> empty;
        for (const TextRow& row : rows) {
            if (row.text.empty()) {
                empty.insert(row.id);
            }
        }
        // These two are the addresses that the program was built with.
        empty.erase(351);
        empty.erase(375);
        EXPECT_EQ(empty, (std::set{115, 237, 347}));
    }
}

}  // namespace
}  // namespace ormala
