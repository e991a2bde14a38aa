#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>

#include "support/win/Wait.h"

namespace ormala::test {

/// Something that a scenario waited for did not come. It ends the scenario as failed.
class StageFailure : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Keeps a picture of the screen, then throws StageFailure.
[[noreturn]] void failStage(const std::string& message);

/// Waits for the predicate; fails the stage with "no <what>" at the deadline.
void requireSoon(const std::string& what, const std::function<bool()>& predicate,
                 milliseconds deadline = usualDeadline);

/// The folder that the environment variable ORMALA_ARTIFACTS names, made if it is not there; none
/// if the variable is not set.
std::optional<std::filesystem::path> artefactFolder();

/// Saves the screen as "<Suite>.<Test>.png" and a list of the visible windows as
/// "<Suite>.<Test>.txt" in the folder of artefacts, once in each test. Does nothing without one.
void keepArtefacts();

/// From now on calls keepArtefacts at each failed expectation, while the programs still run, and
/// removes what was kept in a test that passes in the end. What an earlier try has left gets
/// another name, "<Suite>.<Test> (earlier).png".
void keepArtefactsOfFailures();

}  // namespace ormala::test
