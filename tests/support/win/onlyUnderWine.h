#pragma once

#include <array>
#include <string>

namespace ormala::test {

/// Tests that hold only on the stage, under Wine, and why.
struct OnlyUnderWine {
    /// As GoogleTest filters.
    const char* tests;
    const char* reason;
};

/// The one list of them, of all programs of tests. On Windows itself they are left out; every other
/// test has to pass there.
inline constexpr std::array onlyUnderWine{
    OnlyUnderWine{"*/*Golden.*",
                  "the pictures have the fonts and the look of controls of the stage"},
    OnlyUnderWine{"Monitors.*", "the stage makes the second monitor and takes it away"},
    OnlyUnderWine{"NoTaskBar.*", "the stage leaves out the task bar"},
};

bool runsUnderWine();

/// A filter of GoogleTest that leaves these out besides.
std::string withoutThose(const std::string& filter);

/// The filter to run with: as it is under Wine, without those elsewhere.
std::string filterForThisSystem(const std::string& filter);

}  // namespace ormala::test
