#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>

#include "e2e/Monkey.h"

namespace ormala::test {
namespace {

/// Of the run that belongs to the tests.
constexpr const char* usualSeeds = "20";
constexpr int usualActions = 150;

TEST(Monkey, NothingItDoesBreaksTheProgram) {
    const char* const seeds = std::getenv("ORMALA_MONKEY_SEEDS");
    const char* const actions = std::getenv("ORMALA_MONKEY_ACTIONS");
    std::istringstream list(seeds != nullptr ? seeds : usualSeeds);
    for (std::uint32_t seed = 0; list >> seed && !HasFailure();) {
        Monkey(seed).play(actions != nullptr ? std::atoi(actions) : usualActions);
        std::printf("seed %u: %s\n", seed, HasFailure() ? "failed" : "passed");
        std::fflush(stdout);
    }
}

}  // namespace
}  // namespace ormala::test
