#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "fuzz/Targets.h"

namespace ormala {
namespace {

using Target = void (*)(const std::uint8_t*, std::size_t);

/// Runs every file of a target's corpus and returns how many there were.
int runCorpus(const std::string& name, Target target) {
    const auto folder = std::filesystem::path(ORMALA_SOURCE_DIR) / "tests/fuzz/corpus" / name;
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
        target(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
        ++count;
    }
    return count;
}

TEST(FuzzCorpus, ProfileFileHoldsToItsRules) {
    EXPECT_GT(runCorpus("ProfileFile", fuzzProfileFile), 5);
}

TEST(FuzzCorpus, NumberFormHoldsToItsRules) {
    EXPECT_GT(runCorpus("NumberForm", fuzzNumberForm), 5);
}

TEST(FuzzCorpus, ToolFileHoldsToItsRules) {
    EXPECT_GT(runCorpus("ToolFile", fuzzToolFile), 5);
}

TEST(FuzzCorpus, ToolKeysHoldToTheirRules) {
    EXPECT_GT(runCorpus("ToolKeys", fuzzToolKeys), 5);
    EXPECT_GT(runCorpus("ToolFile", fuzzToolKeys), 5);
}

TEST(FuzzCorpus, RunningListHoldsToItsRules) {
    EXPECT_GT(runCorpus("ToolFile", fuzzRunningList), 5);
}

TEST(FuzzCorpus, NumericTextHoldsToItsRules) {
    EXPECT_GT(runCorpus("NumericText", fuzzNumericText), 5);
}

TEST(FuzzCorpus, WindowPlacementHoldsToItsRules) {
    EXPECT_GT(runCorpus("WindowPlacement", fuzzWindowPlacement), 5);
}

}  // namespace
}  // namespace ormala
