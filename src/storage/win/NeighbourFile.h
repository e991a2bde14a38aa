#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "storage/FileReplacement.h"
#include "storage/win/FileHandle.h"

namespace ormala {

/// A new file beside the one that it is to replace. It stays open to nobody else until it has taken
/// that one's name, so that what can be removed of this kind is a leftover of a process that ended.
class NeighbourFile : public ReplacementSteps {
  public:
    /// The path of the file to replace, as `longPath` gives it.
    explicit NeighbourFile(std::wstring target) : target_(std::move(target)) {}

    /// The system's number for the failure of the step that failed.
    [[nodiscard]] DWORD error() const { return error_; }

    void removeLeftovers() override;
    bool makeNeighbour() override;
    bool write(std::string_view bytes) override;
    bool flush() override;
    bool keepOld() override;
    void putOldBack() override;
    bool renameOver() override;
    void removeNeighbour() override;

  private:
    bool noted(bool success);

    std::wstring target_;
    std::wstring path_;
    /// The old file's new path; empty if there was none.
    std::wstring kept_;
    FileHandle file_;
    DWORD error_ = ERROR_SUCCESS;
};

}  // namespace ormala
