#pragma once

#include <string>
#include <string_view>

#include "storage/FileReplacement.h"
#include "storage/win/FileHandle.h"

namespace ormala {

/// A new file beside the one that it is to replace. It stays open to nobody else until it has taken
/// that one's name, so that what can be removed of this kind is a leftover of a process that ended.
class NeighbourFile : public ReplacementSteps {
  public:
    /// The path of the file to replace, as `longPath` gives it.
    explicit NeighbourFile(std::wstring target) : target_(std::move(target)) {}

    void removeLeftovers() override;
    bool makeNeighbour() override;
    bool write(std::string_view bytes) override;
    bool flush() override;
    bool renameOver() override;
    void removeNeighbour() override;

  private:
    std::wstring target_;
    std::wstring path_;
    FileHandle file_;
};

}  // namespace ormala
