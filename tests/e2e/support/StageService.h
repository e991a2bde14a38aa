#pragma once

#include <filesystem>
#include <string>

namespace ormala::test {

/// What only the stage can do, asked for by files in a folder (tools/stage_service.py).
class StageService {
  public:
    /// `variable` is the environment variable that names the folder.
    explicit StageService(const wchar_t* variable);

    /// Whether this stage has it.
    [[nodiscard]] bool isThere() const { return !folder_.empty(); }
    /// The answer to a question.
    [[nodiscard]] std::string ask(const std::string& wanted) const;
    /// Returns when it is done; fails the stage if it cannot be.
    void request(const std::string& wanted) const;

  private:
    std::filesystem::path folder_;
};

}  // namespace ormala::test
